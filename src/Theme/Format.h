// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

/// Byte counts and dates as people read them, in the interface language of the moment. Any thread.
namespace Format {

/// A byte count in file style: decimal units, "Zero KB", "1 byte", "999 KB", "1.2 MB". `count` is never negative.
[[nodiscard]] QString bytes(qint64 count);

/// Medium date style without a time, in the local time zone ("Mar 5, 2024").
[[nodiscard]] QString date(const QDateTime &date);

/// How `a` and `b` are ordered case-insensitively by the interface language: negative, 0 or positive.
[[nodiscard]] int compareNames(const QString &a, const QString &b);

} // namespace Format
