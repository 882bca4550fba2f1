// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QByteArray>
#include <QHashFunctions>
#include <QList>

#include <expected>
#include <system_error>

/// What a removal must know of an item and of where file systems are mounted. Any thread.
namespace MountPoints {

/// Which item it is, under whatever name it was reached.
struct Identity {
    quint64 device = 0;
    quint64 inode = 0;
    friend bool operator==(const Identity &, const Identity &) = default;
    friend size_t qHash(const Identity &identity, size_t seed = 0)
    {
        return qHashMulti(seed, identity.device, identity.inode);
    }
};

struct Item {
    Identity identity;
    bool isFolder = false;
    bool isMountPoint = false; // another file system, or part of one, is mounted here
};

enum class Link : bool { itself, target };

/// Looks at an item once. Errors are the system's own.
[[nodiscard]] std::expected<Item, std::error_code> look(const FileURL &item, Link link = Link::itself);

struct Mount {
    FileURL folder;
    QByteArray type; // the file system's name, such as "ext4"
    friend bool operator==(const Mount &, const Mount &) = default;
};

/// All that is mounted at the moment, in the order in which it was mounted; empty when the system does not tell.
[[nodiscard]] QList<Mount> all();

} // namespace MountPoints
