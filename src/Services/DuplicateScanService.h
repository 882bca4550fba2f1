// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Duplicates.h"
#include "Services/ScanRules.h"
#include "Support/CancelToken.h"
#include "Support/Progress.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <memory>
#include <optional>

/// Finds files of identical content under chosen folders. Only reads, but for its own log.
namespace DuplicateScanService {

inline constexpr qint64 kMinSize = 4'096;   // bytes; smaller files are never duplicates
inline constexpr qint64 kChunk = 1'048'576; // bytes hashed at a time
inline constexpr int kDeepestFolder = 23;   // levels below a chosen folder
inline constexpr int kMinWorkers = 2;
inline constexpr int kMaxWorkers = 6;

/// What a scan cost, for benchmarks and tests.
struct Counters {
    qint64 candidates = 0; // files in sizes that more than one file has
    qint64 opens = 0;      // times a candidate was opened
    qint64 bytesRead = 0;
    qint64 bytesHashed = 0; // given to SHA-256
};

struct Options {
    QList<FileURL> folders;
    FileURL logFolder;            // where the scan log goes
    Counters *counters = nullptr; // filled when given
};

using ScanRules::deduplicateFolders;

/// The groups of identical files, the most reclaimable first. Any thread.
[[nodiscard]] QList<DuplicateGroup> scanSync(const Options &options, const Progress &progress,
                                             const CancelToken &cancel);

/// The SHA-256 of a file's whole content as 64 lower-case hexadecimal digits; absent when it cannot be read whole or
/// the token is cancelled. Any thread.
[[nodiscard]] std::optional<QString> sha256(const FileURL &file, const CancelToken &cancel);

/// Unlinks "brisko_scan.log" in `folder` and makes it anew, never through a link, for its owner's eyes alone. Absent
/// when that cannot be done.
[[nodiscard]] std::unique_ptr<QFile> makeScanLog(const FileURL &folder);

} // namespace DuplicateScanService
