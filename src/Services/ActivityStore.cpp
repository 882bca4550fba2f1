// SPDX-License-Identifier: MIT
#include "Services/ActivityStore.h"

#include "Services/JsonFields.h"
#include "Support/OwnFiles.h"

#include <QTimeZone>

#include <algorithm>
#include <cmath>
#include <tuple>

using namespace Qt::StringLiterals;
using JsonFields::Json;

namespace {

/// Twenty records take a few kilobytes; what is larger than this was not written by us.
constexpr qint64 kMaxBytes = 4 * 1024 * 1024;

/// 2001-01-01 00:00:00 UTC, from which the file counts, in milliseconds since 1970.
constexpr qint64 kReferenceDate = 978'307'200'000;

/// No calendar of ours goes further; beyond it a count of milliseconds soon overflows.
constexpr double kMaxSeconds = 1e12;

std::optional<QUuid> uuidOf(const QString &text)
{
    // QUuid also reads braces, and answers a null id for what is none at all.
    const QUuid id = QUuid::fromString(text);
    return id.toString(QUuid::WithoutBraces).compare(text, Qt::CaseInsensitive) == 0 ? std::optional(id) : std::nullopt;
}

std::optional<QDateTime> dateOf(double seconds)
{
    if (std::abs(seconds) > kMaxSeconds)
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(kReferenceDate + std::llround(seconds * 1000), Qt::UTC);
}

std::optional<ActivityRecord> recordOf(const Json &json)
{
    const auto id = JsonFields::text(json, "id").and_then(uuidOf);
    const auto kind = JsonFields::text(json, "kind").and_then(activityKindFromRaw);
    const auto title = JsonFields::text(json, "title");
    const auto detail = JsonFields::text(json, "detail");
    const auto bytes = JsonFields::integer(json, "bytes");
    const auto date = JsonFields::number(json, "date").and_then(dateOf);
    if (!id || !kind || !title || !detail || !bytes || !date)
        return std::nullopt;
    return ActivityRecord{.id = *id, .kind = *kind, .title = *title, .detail = *detail, .bytes = *bytes, .date = *date};
}

} // namespace

std::optional<FileURL> ActivityStore::fileURL(const Places &places)
{
    const std::optional<FileURL> folder = places.dataFolder();
    if (!folder)
        return std::nullopt;
    // Where it cannot be made, the write fails later, and the history lives on in memory.
    std::ignore = OwnFiles::makeFolder(*folder);
    return folder->child("activity.json");
}

QList<ActivityRecord> ActivityStore::load(const Places &places)
{
    const std::optional<FileURL> file = fileURL(places);
    if (!file)
        return {};
    const auto content = OwnFiles::read(*file, kMaxBytes);
    if (!content)
        return {};
    QList<ActivityRecord> records = decode(*content).value_or(QList<ActivityRecord>{});
    std::ranges::stable_sort(records, std::ranges::greater{}, &ActivityRecord::date);
    return records;
}

void ActivityStore::save(const Places &places, const QList<ActivityRecord> &records)
{
    const std::optional<FileURL> file = fileURL(places);
    if (!file)
        return;
    const auto content = OwnFiles::read(*file, kMaxBytes);
    const bool isMissing = !content && content.error() == std::errc::no_such_file_or_directory;
    const bool isUnderstood = content && decode(*content);
    // Whatever it is, somebody may want it back: where it cannot be put aside, it stays.
    if (!isMissing && !isUnderstood && !OwnFiles::keepAside(*file))
        return;
    std::ignore = OwnFiles::write(*file, encode(records.first(std::min(records.size(), kMaxRecords))));
}

QByteArray ActivityStore::encode(const QList<ActivityRecord> &records)
{
    Json list = Json::array();
    for (const ActivityRecord &record : records) {
        Json json;
        json["id"] = record.id.toString(QUuid::WithoutBraces).toStdString();
        json["kind"] = rawValue(record.kind).toStdString();
        json["title"] = record.title.toStdString();
        json["detail"] = record.detail.toStdString();
        json["bytes"] = record.bytes;
        json["date"] = static_cast<double>(record.date.toMSecsSinceEpoch() - kReferenceDate) / 1000;
        list.push_back(std::move(json));
    }
    return QByteArray::fromStdString(list.dump(-1, ' ', false, Json::error_handler_t::replace));
}

std::optional<QList<ActivityRecord>> ActivityStore::decode(const QByteArray &json)
{
    const std::optional<Json> list = JsonFields::parse(json);
    if (!list || !list->is_array())
        return std::nullopt;
    QList<ActivityRecord> records;
    for (const Json &item : *list) {
        std::optional<ActivityRecord> record = recordOf(item);
        if (!record)
            return std::nullopt;
        records.append(*std::move(record));
    }
    return records;
}
