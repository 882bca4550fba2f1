// SPDX-License-Identifier: MIT
#pragma once

#include "Models/ActivityRecord.h"
#include "Platform/Places.h"

#include <QByteArray>
#include <QList>

#include <optional>

/// The history file. Main thread.
namespace ActivityStore {

inline constexpr qsizetype kMaxRecords = 20;

/// Where the history lies; makes its folder. Absent only without a usable home.
[[nodiscard]] std::optional<FileURL> fileURL(const Places &places);

/// The stored records, newest first; empty when the file is missing or any of it cannot be understood.
[[nodiscard]] QList<ActivityRecord> load(const Places &places);

/// Writes the first 20 records atomically; errors are ignored. A file there that cannot be understood is kept beside
/// first, as `activity.json.broken-N`.
void save(const Places &places, const QList<ActivityRecord> &records);

/// The stored form: a JSON array in the given order; dates are seconds since 2001-01-01 00:00:00 UTC.
[[nodiscard]] QByteArray encode(const QList<ActivityRecord> &records);
/// The records in file order; absent when a single one is off.
[[nodiscard]] std::optional<QList<ActivityRecord>> decode(const QByteArray &json);

} // namespace ActivityStore
