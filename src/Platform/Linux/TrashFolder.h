// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Platform/Descriptor.h"
#include "Platform/Linux/DirectorySizes.h"
#include "Platform/Linux/ItemStatus.h"
#include "Platform/Linux/RecordsAhead.h"
#include "Platform/Linux/TrashRecords.h"

#include <QByteArray>
#include <QList>

#include <expected>
#include <memory>
#include <system_error>
#include <vector>

/// How an item is moved without replacing anything.
enum class Renames {
    exclusive,  // by the system call that refuses to replace
    placeholder // onto an empty item made for it, where a file system does not know that call
};

/// One Trash folder of the desktop, held open for a run of removals. Used on one thread.
class TrashFolder
{
public:
    enum class Missing : bool { isError, isCreated };

    /// The user's own Trash, which may be reached through links.
    [[nodiscard]] static std::expected<TrashFolder, std::error_code> atHome(const FileURL &folder, uid_t user,
                                                                            Missing missing);
    /// The user's Trash at the top of another mount: the one inside a shared folder that an administrator made, else
    /// one beside it. Each counts only when nobody else can have planted it: no link, the user's, closed to others.
    [[nodiscard]] static std::expected<TrashFolder, std::error_code> atTop(const FileURL &top, uid_t user);
    /// The Trash whose `files` is this open folder, when it really is one.
    [[nodiscard]] static std::expected<TrashFolder, std::error_code> around(const Descriptor &files, uid_t user);

    /// An entry of an open folder, and how it is to be recorded.
    struct Origin {
        FileURL item; // as it was asked for
        int folder = -1;
        QByteArray name;         // what the entry is called there
        QByteArray wishedName;   // what it would be called here
        QByteArray recordedPath; // what its record says, exact bytes
        bool isFolder = false;
    };

    /// These items are about to be taken in this order, their paths recorded as they are: their records are written
    /// ahead of their moves. Whatever does not come leaves nothing behind once this run is finished.
    void expect(std::vector<FileURL> items);
    /// Writes the record, then moves the entry; answers its name here. On an error neither is left behind.
    [[nodiscard]] std::expected<QByteArray, std::error_code> take(const Origin &origin, Renames renames);
    /// Drops the record of an item that has just been removed for good, and its line among the sizes.
    void forget(const QByteArray &name);

    /// Brings the sizes of trashed folders up to date and sends what was written to the disk: once, at the end.
    void finish();

    [[nodiscard]] const FileURL &place() const { return m_place; }
    [[nodiscard]] FileURL itemNamed(const QByteArray &name) const { return m_place.child("files").child(name); }
    [[nodiscard]] const MountPoints::Identity &identity() const { return m_status.identity; }
    [[nodiscard]] int root() const { return m_root.get(); }
    [[nodiscard]] int files() const { return m_files.get(); }

private:
    TrashFolder() = default;
    [[nodiscard]] static std::expected<TrashFolder, std::error_code> from(Descriptor root, uid_t user, Missing missing);
    void noteTaken(const Origin &origin, const QByteArray &name);
    [[nodiscard]] std::error_code moveIn(const Origin &origin, const QByteArray &name, Renames renames) const;
    [[nodiscard]] std::error_code moveOntoPlaceholder(const Origin &origin, const QByteArray &name) const;
    void updateSizes();

    Descriptor m_root;
    Descriptor m_files;
    Descriptor m_info;
    FileURL m_place; // free of links
    ItemStatus m_status;
    QList<DirectorySizes::Line> m_added; // folders taken in this run, without their sizes
    bool m_hasTaken = false;
    bool m_hasForgotten = false;
    std::unique_ptr<TrashRecords> m_records; // of the open folders
    std::unique_ptr<RecordsAhead> m_ahead;   // last: it writes records
};
