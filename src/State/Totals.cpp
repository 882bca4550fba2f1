// SPDX-License-Identifier: MIT
#include "State/Totals.h"

#include "Models/CheckedSum.h"

#include <algorithm>
#include <cmath>

bool Totals::isUnused(const InstalledApp &app, const QDateTime &now)
{
    return app.lastUsed && *app.lastUsed < now.addDuration(-std::chrono::milliseconds{kUnusedAfter});
}

qint64 Totals::relatedSize(const InstalledApp &app)
{
    return checkedTotal(app.relatedFiles, [](const RelatedFile &file) { return file.size.value_or(0); });
}

qint64 Totals::sizeOf(const InstalledApp &app)
{
    return checkedSum(app.bundleSize.value_or(0), relatedSize(app));
}

qint64 Totals::unusedAppsSize(const QList<InstalledApp> &apps, const QDateTime &now)
{
    return checkedTotal(apps, [&now](const InstalledApp &app) { return isUnused(app, now) ? sizeOf(app) : 0; });
}

qint64 Totals::reclaimable(const QList<DuplicateGroup> &groups)
{
    return checkedTotal(groups, [](const DuplicateGroup &group) { return group.reclaimable(); });
}

qint64 Totals::sizeOf(const QList<DuplicateFile> &files)
{
    return checkedTotal(files, [](const DuplicateFile &file) { return file.size; });
}

qint64 Totals::sizeOf(const QList<LargeFile> &files)
{
    return checkedTotal(files, [](const LargeFile &file) { return file.size; });
}

qint64 Totals::sizeOf(const QList<JunkFile> &files)
{
    return checkedTotal(files, [](const JunkFile &file) { return file.size; });
}

qint64 Totals::sizeOf(const QList<JunkCategory> &categories)
{
    return checkedTotal(categories, [](const JunkCategory &category) { return category.totalSize; });
}

double Totals::freeableProgress(qint64 freeableBytes)
{
    constexpr double gigabyte = 1e9;
    constexpr double fullGauge = 2.699837725867246; // log10 of 501: 500 GB would fill it
    constexpr double fullest = 0.92;                // a gauge that is full says there is no more to come
    if (freeableBytes < 1)
        return 0;
    return std::min(std::log10(static_cast<double>(freeableBytes) / gigabyte + 1) / fullGauge, fullest);
}
