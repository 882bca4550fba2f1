// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Platform/Descriptor.h"
#include "Platform/MountPoints.h"

#include <QByteArray>
#include <QList>

#include <sys/stat.h>

#include <cerrno>
#include <expected>
#include <optional>
#include <system_error>

/// The error of the call just made.
[[nodiscard]] inline std::error_code lastError()
{
    return {errno, std::generic_category()};
}

/// What the removal code asks of an item, in one call.
struct ItemStatus {
    MountPoints::Identity identity;
    quint64 mount = 0;                // which mount it was reached through; 0 when the kernel does not tell
    std::optional<bool> isMountPoint; // absent when the kernel does not tell
    mode_t mode = 0;
    uid_t owner = 0;
    gid_t group = 0;
    qint64 size = 0;      // bytes
    qint64 allocated = 0; // bytes on disk
    timespec accessed{};
    timespec modified{};
    timespec changed{};

    [[nodiscard]] bool isFolder() const { return S_ISDIR(mode); }
    [[nodiscard]] bool isOnMountOf(const ItemStatus &other) const
    {
        return identity.device == other.identity.device && mount == other.mount;
    }
};

/// The status of an entry of an open folder, a link as itself. With an empty name: of what is open.
[[nodiscard]] std::expected<ItemStatus, std::error_code> statusAt(int folder, const char *name);
/// As `statusAt`, with a link followed.
[[nodiscard]] std::expected<ItemStatus, std::error_code> targetStatusAt(int folder, const char *name);

/// Opens a folder only to reach what lies in it; links on the way are followed, and a path of any length is reached.
[[nodiscard]] std::expected<Descriptor, std::error_code> openForPassing(const FileURL &folder);

/// Where an open folder lies, free of links; absent when the system cannot tell.
[[nodiscard]] std::optional<FileURL> placeOf(const Descriptor &folder);

/// The names of all entries of a folder that is open for reading.
[[nodiscard]] std::expected<QList<QByteArray>, std::error_code> namesIn(const Descriptor &folder);
