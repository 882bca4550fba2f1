// SPDX-License-Identifier: MIT
#include "Models/ActivityRecord.h"

#include <array>

using namespace Qt::StringLiterals;

QString rawValue(ActivityKind kind)
{
    switch (kind) {
    case ActivityKind::appUninstalled:
        return u"appUninstalled"_s;
    case ActivityKind::duplicatesRemoved:
        return u"duplicatesRemoved"_s;
    case ActivityKind::junkRemoved:
        return u"junkRemoved"_s;
    case ActivityKind::largeFilesRemoved:
        return u"largeFilesRemoved"_s;
    case ActivityKind::startupItemRemoved:
        return u"startupItemRemoved"_s;
    }
    Q_UNREACHABLE();
}

std::optional<ActivityKind> activityKindFromRaw(QStringView raw)
{
    constexpr std::array all{ActivityKind::appUninstalled, ActivityKind::duplicatesRemoved, ActivityKind::junkRemoved,
                             ActivityKind::largeFilesRemoved, ActivityKind::startupItemRemoved};
    for (const ActivityKind kind : all) {
        if (rawValue(kind) == raw)
            return kind;
    }
    return std::nullopt;
}
