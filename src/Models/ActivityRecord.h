// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>
#include <QUuid>

#include <optional>

enum class ActivityKind { appUninstalled, duplicatesRemoved, junkRemoved, largeFilesRemoved, startupItemRemoved };

/// The text under which a kind is stored.
[[nodiscard]] QString rawValue(ActivityKind kind);
/// The kind stored as `raw`; absent for any other text.
[[nodiscard]] std::optional<ActivityKind> activityKindFromRaw(QStringView raw);

/// One completed removal. Identity is `id`.
struct ActivityRecord {
    QUuid id;
    ActivityKind kind = ActivityKind::junkRemoved;
    QString title;
    QString detail;
    qint64 bytes = 0;
    QDateTime date;
    friend bool operator==(const ActivityRecord &, const ActivityRecord &) = default;
};
