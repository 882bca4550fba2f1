// SPDX-License-Identifier: MIT
#pragma once

#include "Models/InstalledApp.h"
#include "Platform/Platform.h"
#include "Support/CancelToken.h"

#include <QList>

#include <optional>

/// Finds installed applications, and for one at a time its size and what it has left in the Library. Only reads.
namespace AppScanService {

struct DirectorySize {
    bool exists = false;
    std::optional<qint64> size; // allocated bytes; absent when it cannot be measured
};

struct Details {
    std::optional<qint64> size; // of the bundle
    QList<RelatedFile> related; // larger first
    friend bool operator==(const Details &, const Details &) = default;
};

/// The applications of both roots, sorted by name. Sizes and related files are absent. Any thread.
[[nodiscard]] QList<InstalledApp> listApps(const Platform &platform);

/// The space that a file or a folder's visible content takes. Any thread.
[[nodiscard]] DirectorySize directorySize(const FileURL &item, const CancelToken &cancel);

/// Measures the bundle and finds its related files. Any thread.
[[nodiscard]] Details computeDetails(const Platform &platform, const InstalledApp &app, const CancelToken &cancel);

/// One place where an application may have left something.
struct Candidate {
    QString label;
    FileURL url;
};
/// The candidates for an application, in order: the rule alone, without a look at the disk. `containers` are the
/// names found in the Containers folder, in listing order.
[[nodiscard]] QList<Candidate> candidates(const FileURL &library, const InstalledApp &app,
                                          const QList<QByteArray> &containers);

} // namespace AppScanService
