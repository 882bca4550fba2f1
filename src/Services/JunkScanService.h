// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Junk.h"
#include "Platform/FileSystem.h"
#include "Services/AccessStore.h"
#include "Support/CancelToken.h"
#include "Support/Progress.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QSet>
#include <QThreadPool>

#include <optional>

/// Finds clutter and sorts it into fixed categories. Only reads.
namespace JunkScanService {

struct Found {
    QList<JunkFile> files;
    qint64 size = 0;
};

/// Whose entries count.
enum class Owners : bool {
    everybody,
    ownInForeignFolders // in a folder that the user does not own, such as a shared temporary one, only the user's own
};

/// How one folder is searched.
struct FolderRule {
    int maxDepth = 1;                                    // levels of folders that are listed
    std::optional<QDateTime> notNewerThan = {};          // the cut-off: what was modified later is left out
    std::optional<QSet<QByteArray>> onlyExtensions = {}; // lower case
    std::optional<QSet<QByteArray>> excluding = {};      // lower case
    Owners owners = Owners::everybody;
};

/// Whether a file counts by its name and age alone; one without a date counts as old. `extension` as in the name.
[[nodiscard]] bool counts(const FolderRule &rule, const QByteArray &extension,
                          const std::optional<QDateTime> &modified);

/// Asks for access to the Library on the main thread, then scans on `pool` whatever the answer was.
QCoro::Task<QList<JunkCategory>> scan(AccessContext access, QThreadPool *pool, QDateTime now, Progress progress,
                                      CancelToken cancel);

/// The whole scan: the categories in which something was found, in their fixed order. `now` is the moment that ages
/// are counted from. Any thread.
[[nodiscard]] QList<JunkCategory> scanSync(const Platform &platform, const QDateTime &now, const Progress &progress,
                                           const CancelToken &cancel);

/// What one folder holds; absent when nothing was found.
[[nodiscard]] std::optional<Found> scanDirectory(const FileURL &folder, const FolderRule &rule,
                                                 const CancelToken &cancel);
/// The same rule over several folders, in order; a file that lies in two of them counts once.
[[nodiscard]] std::optional<Found> scanDirectories(const QList<FileURL> &folders, const FolderRule &rule,
                                                   const CancelToken &cancel);
/// The items of a Trash folder, each one entry however large. A linked or foreign Trash is left alone. Hidden entries
/// are bookkeeping in the documented Trash folder, and items like others in a desktop's.
[[nodiscard]] std::optional<Found> scanTrash(const FileURL &folder, FileSystem::Hidden hidden,
                                             const CancelToken &cancel);
/// The sum of the lengths of all regular files below a folder, hidden ones included; 0 when it cannot be read.
[[nodiscard]] qint64 directorySize(const FileURL &folder, const CancelToken &cancel);

} // namespace JunkScanService
