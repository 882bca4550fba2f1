// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// Names and records of trashed items: rules alone, no disk.
namespace TrashNames {

/// What the name of a record adds to the name of its item.
inline constexpr QByteArrayView kRecordEnding = ".trashinfo";

/// The longest name, in bytes, of an item whose record's name still fits a folder that takes names of `longestName`.
[[nodiscard]] qsizetype limitFor(qsizetype longestName);

/// The name under which the `number`th item of one name is kept, `limit` bytes at most: number 1 keeps the name,
/// number 2 of "a.txt" is "a.2.txt". What is too long loses bytes before its ending, whole characters where the name
/// is UTF-8.
[[nodiscard]] QByteArray numbered(const QByteArray &name, quint64 number, qsizetype limit);

/// The text of a record. `path` is the origin's exact bytes, absolute or relative to the Trash's top folder; `date` is
/// local time as "2026-01-02T03:04:05".
[[nodiscard]] QByteArray record(QByteArrayView path, QByteArrayView date);

/// A free number above `taken` whose predecessor is taken, found with about twice the logarithm of how many are taken
/// in questions; with numbers taken in a row, the smallest.
template <typename IsTaken>
[[nodiscard]] quint64 firstFree(quint64 taken, IsTaken isTaken)
{
    quint64 step = 1;
    while (isTaken(taken + step)) {
        taken += step;
        step *= 2;
    }
    quint64 free = taken + step;
    while (free - taken > 1) {
        const quint64 middle = taken + (free - taken) / 2;
        (isTaken(middle) ? taken : free) = middle;
    }
    return free;
}

} // namespace TrashNames
