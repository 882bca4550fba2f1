// SPDX-License-Identifier: MIT
#pragma once

#include "Services/CompareContext.h"

#include <atomic>
#include <span>
#include <vector>

/// Compares open files of one size by their bytes.
namespace BlockCompare {

inline constexpr qint64 kBlock = 256 * 1024;       // bytes read of each file in turn
inline constexpr qint64 kRange = 32 * 1024 * 1024; // bytes of a file that one thread compares in one go

/// One file of a comparison.
struct Item {
    const DuplicateCompare::OpenFile *file = nullptr;
    bool isNew = true;                // others are known to differ from each other, and need not be told apart
    std::atomic<bool> isOut = false;  // equals none of the others
    std::atomic<bool> failed = false; // could not be read
};

/// The items that are equal, as positions: lists of at least two, ascending, in the order of their first items. The
/// rest is out or failed. Reads no further into a file than until it differs from all others, but for the blocks that
/// several threads have in hand. Cancelled, it answers nothing.
[[nodiscard]] std::vector<std::vector<int>> equalItems(DuplicateCompare::Context &context, std::span<Item> items,
                                                       qint64 size);

/// Hashes the bytes of a file from `from` to `to`, for sorting beforehand. Absent when they cannot be read.
[[nodiscard]] std::optional<size_t> roughHash(DuplicateCompare::Context &context,
                                              const DuplicateCompare::OpenFile &file, qint64 from, qint64 to);

} // namespace BlockCompare
