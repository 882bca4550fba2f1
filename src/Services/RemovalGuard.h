// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Platform/MountPoints.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSet>

#include <system_error>

class Places;

/// What no removal may take, whatever list it was given: the guarded places and whatever holds one, mount points and
/// whatever holds one, Trash folders, and all of the program's own data. Items are told apart by what they are on the
/// disk, so that another spelling, a link on the way or a second mount of the same folder changes nothing. A link that
/// leads to a guarded place is no guarded place. Made once for each removal; used on one thread.
class RemovalGuard
{
public:
    explicit RemovalGuard(const Places &places);

    /// Why the item must stay: `operation_not_permitted` for what is guarded, and for everything without a usable
    /// home; the system's error for what cannot be looked at; no error when it may go. Looks at the item once.
    [[nodiscard]] std::error_code objection(const FileURL &item);

private:
    struct Folder {
        FileURL place; // free of links
        bool isOurs = false;
    };

    void guard(const FileURL &place);
    void guardContent(const FileURL &folder);
    void add(const FileURL &item, MountPoints::Link link);
    [[nodiscard]] bool holdsMount(const FileURL &place) const;
    [[nodiscard]] bool isOurs(const FileURL &place);
    [[nodiscard]] const Folder &folder(const FileURL &folder);

    bool m_hasHome = false;
    QSet<MountPoints::Identity> m_guarded;
    QSet<FileURL> m_holders;            // what is guarded because of what it holds
    QSet<MountPoints::Identity> m_ours; // folders in which everything belongs to the program
    QList<QByteArray> m_mounts;         // sorted
    QHash<FileURL, Folder> m_folders;
    QHash<FileURL, bool> m_isOurs;
};

/// Whether a path, free of links, is that of a Trash folder on a mount of its own, or of one of its two parts.
[[nodiscard]] bool isTrashFolder(const FileURL &place);
