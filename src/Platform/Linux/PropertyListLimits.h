// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// How much of a property list is handed to libplist, which goes down any nesting by recursion, writes each shared
/// object of a binary list out anew, and ends the program over a key that holds a NUL byte: without limits, a small
/// hostile file in somebody's download would do that.
namespace PropertyListLimits {

inline constexpr qint64 kMaxBytes = 16 * 1024 * 1024;
inline constexpr qsizetype kMaxDepth = 256;           // writing takes about 200 bytes of stack for each
inline constexpr qint64 kMaxObjects = 500'000;        // when every shared object is written out
inline constexpr qint64 kMaxUnfolded = 4 * kMaxBytes; // bytes of texts and data, likewise

} // namespace PropertyListLimits
