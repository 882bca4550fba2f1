// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Models/TextKey.h"
#include "Platform/Platform.h"

#include <QCoro/QCoroTask>
#include <QString>

#include <memory>
#include <optional>

class FolderPanel;
class UserDefaults;

/// What grants are made of. The two pointers outlive every task that holds a copy.
struct AccessContext {
    std::shared_ptr<const Platform> platform;
    UserDefaults *defaults = nullptr;
    FolderPanel *panel = nullptr;
};

/// Lasting access to folders that the user has granted. Main thread, but for `hasFullDiskAccess`.
namespace AccessStore {

/// A question for access, as data: the key of the grant, and the English text that says why.
struct Request {
    QLatin1StringView key;
    QStringView message;
};
inline constexpr Request libraryForScan{QLatin1StringView("library"),
                                        textKey(u"Brisko needs access to the Library folder to scan caches and logs.")};
inline constexpr Request libraryForApps{
    QLatin1StringView("library"), textKey(u"Brisko needs access to the Library folder to find app-related files.")};
inline constexpr Request applications{
    QLatin1StringView("applications"),
    textKey(u"Brisko needs access to the Applications folder to move apps to Trash.")};

/// The access key of a picked folder: "folder." and its path with every "/" replaced by "_".
[[nodiscard]] QString folderKey(const FileURL &folder);

/// Lets the user choose a folder, keeps a grant for it and starts using it. Absent: cancelled. `message` is
/// already in the interface language.
QCoro::Task<std::optional<FileURL>> pickFolder(AccessContext context, QString message);

/// Stores a grant for `folder` under `key`; nothing when none can be made.
void saveBookmark(const AccessContext &context, const QString &key, const FileURL &folder);

/// Begins using the folder granted under `key`; false without a usable grant. A stale grant is renewed.
[[nodiscard]] bool startAccessing(const AccessContext &context, const QString &key);

/// True when access is there already; else asks, and keeps what the user grants. Where the platform needs no
/// consent, a folder that can be read is granted without a question, and one that does not exist needs none.
/// `message` is already in the interface language.
QCoro::Task<bool> ensureAccess(AccessContext context, QString key, FileURL hint, QString message);

/// Whether protected data of the user can be read; probes the file system only. Any thread.
[[nodiscard]] bool hasFullDiskAccess(const Places &places);

} // namespace AccessStore
