// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Duplicates.h"
#include "Models/InstalledApp.h"
#include "Models/Junk.h"
#include "Models/LargeFile.h"

#include <QDateTime>
#include <QList>

#include <chrono>

/// Sums and judgements over what the scans found: pure functions that pages and the command line share. An overflow
/// ends the program. Any thread.
namespace Totals {

inline constexpr auto kUnusedAfter = std::chrono::days{30};

/// Whether an application was last used strictly more than 30 days before `now`; never for one without a date.
[[nodiscard]] bool isUnused(const InstalledApp &app, const QDateTime &now);
/// The known sizes of the bundle and its related files, in bytes.
[[nodiscard]] qint64 sizeOf(const InstalledApp &app);
[[nodiscard]] qint64 relatedSize(const InstalledApp &app);
[[nodiscard]] qint64 unusedAppsSize(const QList<InstalledApp> &apps, const QDateTime &now);
[[nodiscard]] qint64 reclaimable(const QList<DuplicateGroup> &groups);
[[nodiscard]] qint64 sizeOf(const QList<DuplicateFile> &files);
[[nodiscard]] qint64 sizeOf(const QList<LargeFile> &files);
[[nodiscard]] qint64 sizeOf(const QList<JunkFile> &files);
[[nodiscard]] qint64 sizeOf(const QList<JunkCategory> &categories);
/// The fill of the freeable-space gauge: logarithmic up to 500 GB, never above 0.92.
[[nodiscard]] double freeableProgress(qint64 freeableBytes);

} // namespace Totals
