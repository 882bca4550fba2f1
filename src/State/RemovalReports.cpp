// SPDX-License-Identifier: MIT
#include "State/RemovalReports.h"

#include "Models/CheckedSum.h"

QSet<FileURL> RemovalReports::stayed(const TrashResult &result)
{
    QSet<FileURL> urls(result.notReached.cbegin(), result.notReached.cend());
    for (const FailedTrash &failure : result.failed)
        urls.insert(failure.url);
    return urls;
}

RemovalReport RemovalReports::reportOf(const TrashResult &result, const QHash<FileURL, std::optional<qint64>> &sizes)
{
    RemovalReport report;
    report.failed = result.failed;
    report.stopped = !result.notReached.isEmpty();
    report.removed.reserve(result.removed.size());
    for (const FileURL &url : result.removed)
        report.removed.append({.url = url, .size = sizes.value(url)});
    report.bytes = checkedTotal(report.removed, [](const RemovedItem &item) { return item.size.value_or(0); });
    return report;
}

std::optional<std::error_code> RemovalReports::firstError(const TrashResult &result)
{
    return result.failed.isEmpty() ? std::nullopt : std::optional{result.failed.first().error};
}

ActivityRecord RemovalReports::activityOf(ActivityKind kind, const QString &title, const QString &detail, qint64 bytes,
                                          const QDateTime &now)
{
    return {.id = QUuid::createUuid(), .kind = kind, .title = title, .detail = detail, .bytes = bytes, .date = now};
}
