// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

/// A file or folder that an application has left in the user's Library. Identity is `url`.
struct RelatedFile {
    QString name; // the label of the place it was found in, e.g. "Caches"
    FileURL url;
    std::optional<qint64> size; // allocated bytes; absent when it exists but could not be measured
    friend bool operator==(const RelatedFile &, const RelatedFile &) = default;
};

/// An installed application. Identity is `url`, its bundle.
struct InstalledApp {
    FileURL url;
    QString name;
    std::optional<QString> bundleID;
    std::optional<QString> version;
    std::optional<FileURL> icon; // the file that holds its icon, for the interface to load
    std::optional<QDateTime> lastUsed;
    std::optional<qint64> bundleSize; // allocated bytes; absent until measured
    QList<RelatedFile> relatedFiles;  // empty until looked for
    bool detailed = false;            // whether the two above have been looked for
    friend bool operator==(const InstalledApp &, const InstalledApp &) = default;
};
