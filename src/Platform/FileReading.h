// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

/// Reading the content of open regular files, for scans that read much and must not be fooled by files that change
/// meanwhile. Nothing is mapped into memory: a file cut short by another program would end this one. Any thread.
namespace FileReading {

/// What tells whether a file is still the one it was. The time of its last change moves with every write, even where
/// the time of modification is set back, and when the file is replaced.
struct Stamp {
    qint64 size = 0;
    qint64 modified = 0; // nanoseconds since 1970-01-01 UTC
    qint64 changed = 0;  // likewise
    quint64 device = 0;
    quint64 inode = 0;
    friend bool operator==(const Stamp &, const Stamp &) = default;
};

/// The stamp of an open file; absent for whatever is no regular file.
[[nodiscard]] std::optional<Stamp> stampOf(int descriptor);

/// Reads up to `size` bytes at `offset`, fewer only at the end of the file. Negative on an error.
[[nodiscard]] qint64 readAt(int descriptor, char *into, qint64 size, qint64 offset);

/// As `readAt`, but takes only what needs no waiting for the disk; 0 when that is nothing or cannot be told.
[[nodiscard]] qint64 readCached(int descriptor, char *into, qint64 size, qint64 offset);

/// Asks the system to fetch these bytes while the program does something else.
void prefetch(int descriptor, qint64 offset, qint64 size);

/// How many descriptors this process may have open.
[[nodiscard]] int descriptorLimit();

} // namespace FileReading
