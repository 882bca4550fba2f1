// SPDX-License-Identifier: MIT
#pragma once

#include "Models/ActivityRecord.h"
#include "Models/Duplicates.h"
#include "Models/InstalledApp.h"
#include "Models/Junk.h"
#include "Models/LargeFile.h"
#include "Models/Notices.h"
#include "Models/Removal.h"
#include "Models/StartupItem.h"
#include "Models/UpdateInfo.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>
#include <variant>

/// What commands answer, as records: each is written once for programs and once for people.
namespace CommandLine {

struct JunkResult {
    QList<JunkCategory> categories;
    qint64 reclaimable = 0; // bytes
};

struct LargeFilesResult {
    QList<LargeFile> files;
    qint64 totalSize = 0; // bytes
};

struct DuplicatesResult {
    QList<DuplicateGroup> groups;
    qint64 reclaimable = 0; // bytes
};

struct AppsResult {
    QList<InstalledApp> apps;
    qint64 unusedSize = 0; // bytes
    QDateTime now;         // the moment that "unused" is counted from
};

struct StartupResult {
    QList<StartupItem> items;
};

struct FullScanResult {
    AppsResult apps;
    DuplicatesResult duplicates;
    JunkResult junk;
    LargeFilesResult largeFiles;
    std::optional<ToastData> toast;
};

/// One removal.
struct RemovalResult {
    RemovalReport report;
};

/// Several junk categories cleaned one after another.
struct CategoriesResult {
    struct One {
        QString category;
        RemovalReport report;
    };
    QList<One> results;
};

struct DryRunResult {
    QList<RemovedItem> items;
    qint64 bytes = 0;
};

struct SwitchResult {
    std::optional<StartupItem> item; // as it is afterwards; absent when it was not come to
    std::optional<ToastData> toast;
};

struct StatsResult {
    double cpuUsage = 0; // 0 to 1
    std::optional<qint64> memoryUsed;
    std::optional<qint64> memoryTotal;
    std::optional<qint64> availableDisk;
    std::optional<double> diskTemperature; // degrees Celsius
};

struct HistoryResult {
    QList<ActivityRecord> activities;
};

struct FoldersResult {
    QList<FileURL> folders;
};

struct UpdateResult {
    std::optional<UpdateInfo> info;
    std::optional<ToastData> toast;
};

using Result = std::variant<JunkResult, LargeFilesResult, DuplicatesResult, AppsResult, StartupResult, FullScanResult,
                            RemovalResult, CategoriesResult, DryRunResult, SwitchResult, StatsResult, HistoryResult,
                            FoldersResult, UpdateResult>;

} // namespace CommandLine
