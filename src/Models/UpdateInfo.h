// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>
#include <utility>

/// A version of the program as the update feed announces it.
struct UpdateInfo {
    QString latestVersion;
    std::optional<qint64> latestBuildNumber;
    std::optional<QDateTime> releaseDate;
    std::optional<QString> minimumSystemVersion;
    QUrl downloadURL;
    std::optional<qint64> fileSizeBytes;
    std::optional<QString> sha256;
    QList<std::pair<QString, QString>> releaseNotes; // language code and text, in the feed's order
    bool criticalUpdate = false;
    friend bool operator==(const UpdateInfo &, const UpdateInfo &) = default;
};
