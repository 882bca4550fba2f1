// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <functional>

/// The cache of a Trash folder that tells how much each trashed folder takes: rules alone, no disk.
namespace DirectorySizes {

struct Line {
    QByteArray name;     // as in the Trash's `files`
    qint64 size = 0;     // bytes on disk, of the folder and all below it
    qint64 recorded = 0; // when the item's record was last changed, seconds since 1970-01-01 UTC
    friend bool operator==(const Line &, const Line &) = default;
};

/// The lines of the file; those that are not understood are left out.
[[nodiscard]] QList<Line> parse(QByteArrayView text);
[[nodiscard]] QByteArray text(const QList<Line> &lines);

/// What the file should hold: the lines whose folder is still there and not among `added`, then `added`.
[[nodiscard]] QList<Line> merged(const QList<Line> &lines, const QList<Line> &added,
                                 const std::function<bool(const QByteArray &name)> &isThere);

} // namespace DirectorySizes
