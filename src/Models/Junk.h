// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QUuid>

#include <optional>

/// One item of a junk category. Identity is `url`.
struct JunkFile {
    FileURL url;
    qint64 size = 0; // logical, in bytes; of a folder in the Trash all that lies inside
    std::optional<QDateTime> modified;
    friend bool operator==(const JunkFile &, const JunkFile &) = default;
};

/// One kind of clutter with what was found of it. Identity is `id`, fresh with every scan.
struct JunkCategory {
    QUuid id;
    QString name;   // English; the lookup key of the name shown
    QString symbol; // name of the symbol shown
    QList<FileURL> paths;
    QList<JunkFile> files;
    qint64 totalSize = 0; // the sum over `files`
    bool deletesDirectly = false;
    friend bool operator==(const JunkCategory &, const JunkCategory &) = default;
};
