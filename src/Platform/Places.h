// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QByteArray>
#include <QList>
#include <QSet>

#include <optional>

/// A kind of place; each is a list of folders, the documented one first and the desktop's own after it.
enum class Place {
    downloads,
    caches,
    logs,
    temporary,
    trash, // the folders whose entries are trashed items
    crashReports,
    browserCaches,
    chatCaches,
    applications,
    userLaunchAgents,
    systemLaunchAgents,
    systemLaunchDaemons,
};

/// Where this desktop keeps things. Reads the environment once, when made; any thread.
class Places
{
public:
    virtual ~Places() = default;

    /// The home folder: HOME when set and not empty, else the account's. Absent when that is relative, `/`, no folder
    /// or another user's: then scans find nothing and nothing is removed.
    [[nodiscard]] virtual std::optional<FileURL> home() const = 0;
    /// The account's home folder from the user database, whatever HOME says; absent under the same conditions.
    [[nodiscard]] virtual std::optional<FileURL> accountHome() const = 0;
    /// The folders of one kind, in order, each once (by device and inode); those that do not exist are listed too.
    /// Empty without a usable home.
    [[nodiscard]] virtual QList<FileURL> folders(Place place) const = 0;
    /// Path extensions, lower case, of installers on this desktop.
    [[nodiscard]] virtual QSet<QByteArray> installerExtensions() const = 0;
    /// The folder for the program's own short-lived files.
    [[nodiscard]] virtual FileURL temporaryFolder() const = 0;
    /// The folder that holds the program's data (the activity history); absent without a usable home.
    [[nodiscard]] virtual std::optional<FileURL> dataFolder() const = 0;
    /// The settings file; absent without a usable home, and where the system keeps settings itself.
    [[nodiscard]] virtual std::optional<FileURL> settingsFile() const = 0;
    /// Folders and files that no removal may take, whatever list it is given: the root, home and what holds it, every
    /// Trash folder, Library and its direct children, the program's own data. Mount points are found elsewhere.
    [[nodiscard]] virtual QList<FileURL> guarded() const = 0;
    /// The user's Library: `Library` below home.
    [[nodiscard]] std::optional<FileURL> library() const
    {
        return home().transform([](const FileURL &folder) { return folder.child("Library"); });
    }
};
