// SPDX-License-Identifier: MIT
#include "Platform/MountPoints.h"

#include "Platform/Linux/ItemStatus.h"
#include "Platform/Linux/MountTable.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <climits>

std::expected<MountPoints::Item, std::error_code> MountPoints::look(const FileURL &item, Link link)
{
    QByteArray path = item.path();
    Descriptor parent;
    if (path.size() >= PATH_MAX) {
        auto opened = openForPassing(item.parent());
        if (!opened)
            return std::unexpected(opened.error());
        parent = *std::move(opened);
        path = item.name();
    }
    const int folder = parent.isOpen() ? parent.get() : AT_FDCWD;
    const auto found =
        link == Link::itself ? statusAt(folder, path.constData()) : targetStatusAt(folder, path.constData());
    if (!found)
        return std::unexpected(found.error());
    Item result{.identity = found->identity, .isFolder = found->isFolder()};
    if (found->isMountPoint) {
        result.isMountPoint = *found->isMountPoint;
    } else if (const auto above = targetStatusAt(AT_FDCWD, item.parent().path().constData())) {
        // Kernels before 5.8 do not tell; a bind mount within one file system then looks like any folder.
        result.isMountPoint = above->identity.device != found->identity.device;
    }
    return result;
}

QList<MountPoints::Mount> MountPoints::all()
{
    const Descriptor table(::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC));
    QByteArray text;
    std::array<char, 16 * 1024> block;
    for (;;) {
        const ssize_t bytes = table.isOpen() ? ::read(table.get(), block.data(), block.size()) : 0;
        if (bytes <= 0)
            return MountTable::parse(text);
        text.append(block.data(), bytes);
    }
}
