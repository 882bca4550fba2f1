// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Removal.h"

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

} // namespace RemovalReports
