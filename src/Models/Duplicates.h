// SPDX-License-Identifier: MIT
#pragma once

#include "Models/CheckedSum.h"
#include "Models/FileURL.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

/// One copy in a group of identical files. Identity is `url`.
struct DuplicateFile {
    FileURL url;
    qint64 size = 0; // logical, in bytes
    std::optional<QDateTime> modified;
    friend bool operator==(const DuplicateFile &, const DuplicateFile &) = default;
};

/// Files of identical content, ordered by path; the first is the copy that is kept.
struct DuplicateGroup {
    QString id; // the SHA-256 of the content, 64 lower-case hexadecimal digits
    QList<DuplicateFile> files;

    /// Bytes that removing every file but the first would free; 0 for fewer than two files.
    [[nodiscard]] qint64 reclaimable() const
    {
        if (files.size() < 2)
            return 0;
        return checkedTotal(files.sliced(1), [](const DuplicateFile &file) { return file.size; });
    }
    friend bool operator==(const DuplicateGroup &, const DuplicateGroup &) = default;
};
