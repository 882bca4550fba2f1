// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Removal.h"
#include "State/Outcomes.h"
#include "State/Totals.h"

#include <QHash>
#include <QList>
#include <QSet>

/// Facts about a finished removal, from what the trash service answered: pure functions. Any thread.
namespace RemovalReports {

/// The items that stayed: those that failed and those that were not reached.
[[nodiscard]] QSet<FileURL> stayed(const TrashResult &result);

/// A report without notices: what went with its size, what failed, and the bytes of what went.
[[nodiscard]] RemovalReport reportOf(const TrashResult &result, const QHash<FileURL, std::optional<qint64>> &sizes);

[[nodiscard]] std::optional<std::error_code> firstError(const TrashResult &result);

/// The URLs of records, in order.
template <typename Record>
[[nodiscard]] QList<FileURL> urlsOf(const QList<Record> &records)
{
    QList<FileURL> urls;
    urls.reserve(records.size());
    for (const Record &record : records)
        urls.append(record.url);
    return urls;
}

/// The sizes of records by URL.
template <typename Record>
[[nodiscard]] QHash<FileURL, std::optional<qint64>> sizesOf(const QList<Record> &records)
{
    QHash<FileURL, std::optional<qint64>> sizes;
    sizes.reserve(records.size());
    for (const Record &record : records)
        sizes.insert(record.url, record.size);
    return sizes;
}

/// The record of the history of something that was removed; `bytes` as reported.
[[nodiscard]] ActivityRecord activityOf(ActivityKind kind, const QString &title, const QString &detail, qint64 bytes,
                                        const QDateTime &now);

/// The records whose URL is not among `urls`, in order.
template <typename Record>
[[nodiscard]] QList<Record> without(const QList<Record> &records, const QSet<FileURL> &urls)
{
    QList<Record> rest;
    for (const Record &record : records) {
        if (!urls.contains(record.url))
            rest.append(record);
    }
    return rest;
}

/// What the removal of a list of files came to.
template <typename Record>
struct Settled {
    QList<Record> removed; // the entries that went, in order
    QSet<FileURL> gone;    // their URLs
    qint64 freed = 0;      // the bytes of those
    RemovalReport report;  // with its notices, without its record
};

/// Judges the removal of `asked`: what went, and what the user is told of it.
template <typename Record>
[[nodiscard]] Settled<Record> settle(const QList<Record> &asked, const TrashResult &result,
                                     const Outcomes::Wording &wording, Outcomes::Count count = Outcomes::Count::unsaid)
{
    Settled<Record> settled;
    settled.removed = without(asked, stayed(result));
    settled.report = reportOf(result, sizesOf(asked));
    const QList<FileURL> urls = urlsOf(settled.removed);
    settled.gone = QSet<FileURL>(urls.cbegin(), urls.cend());
    settled.freed = Totals::sizeOf(settled.removed);
    auto [toast, alert] = Outcomes::outcomeOf({.removedCount = settled.removed.size(),
                                               .failedCount = result.failed.size(),
                                               .bytes = settled.freed,
                                               .firstError = firstError(result),
                                               .partialTitle = {},
                                               .count = count},
                                              wording);
    settled.report.toast = std::move(toast);
    settled.report.alert = std::move(alert);
    return settled;
}

} // namespace RemovalReports
