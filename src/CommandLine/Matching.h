// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Models/InstalledApp.h"

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>

#include <expected>
#include <functional>
#include <optional>

/// Which listed item an argument means. An answer is never a guess: what fits nothing, or several things, is refused,
/// with one line of English that says so. Looks at the folders on the way, for links.
namespace CommandLine::Matching {

/// The absolute path that an argument means, relative ones taken from `workingFolder`. A `..` is what the system takes
/// it for, also behind a link. Absent for a relative path without a working folder.
[[nodiscard]] std::optional<FileURL> locate(const QByteArray &argument, const std::optional<FileURL> &workingFolder);

/// The listed item that a path means: the one of its own absolute path, else of its folder resolved plus its name.
[[nodiscard]] std::optional<FileURL> listedFile(const QByteArray &argument, const std::optional<FileURL> &workingFolder,
                                                const std::function<bool(const FileURL &)> &isListed);

/// The listed items of all arguments; an error names the first that is not listed.
[[nodiscard]] std::expected<QSet<FileURL>, QString> listedFiles(const QList<QByteArray> &arguments,
                                                                const std::optional<FileURL> &workingFolder,
                                                                const QSet<FileURL> &listed);

/// The bundles of all arguments, each a path, else an identifier, else a name, exactly.
[[nodiscard]] std::expected<QSet<FileURL>, QString> bundles(const QList<QByteArray> &arguments,
                                                            const std::optional<FileURL> &workingFolder,
                                                            const QList<InstalledApp> &apps);

} // namespace CommandLine::Matching
