// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QList>
#include <QString>
#include <QUuid>

#include <functional>
#include <optional>
#include <utility>

/// The symbol colours that notices use, as 0xRRGGBB.
namespace Tint {
inline constexpr quint32 success = 0x22C55E;
inline constexpr quint32 paused = 0xF59E0B;
} // namespace Tint

/// A transient message over the window.
struct ToastData {
    QString symbol;
    quint32 tintHex = 0; // 0xRRGGBB
    QString message;
    friend bool operator==(const ToastData &, const ToastData &) = default;
};

/// A modal message. `id` is fresh for each, so that two equal ones in a row are both shown.
struct AlertData {
    QUuid id;
    QString title;
    QString message;
    friend bool operator==(const AlertData &, const AlertData &) = default;
};

/// A question that must be accepted before anything is removed. Identity is `id`.
struct ConfirmData {
    QUuid id;
    std::optional<FileURL> iconImage; // the file that holds the icon shown
    std::optional<QString> symbol;    // shown when there is no icon
    QString title;
    QString message;
    QList<std::pair<QString, QString>> rows; // label and value
    QString confirmTitle;
    std::function<void()> onConfirm;         // starts the removal; returns before it ends
    std::function<ConfirmData()> again = {}; // the same question in the language of the moment
    friend bool operator==(const ConfirmData &a, const ConfirmData &b) { return a.id == b.id; }
};
