// SPDX-License-Identifier: MIT
#include "Platform/Linux/ItemStatus.h"

#include "Platform/FolderPrimitives.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <memory>

namespace {

timespec timeOf(const statx_timestamp &stamp)
{
    return {.tv_sec = stamp.tv_sec, .tv_nsec = stamp.tv_nsec};
}

std::expected<ItemStatus, std::error_code> status(int folder, const char *name, int flags)
{
    struct statx found {
    };
    if (name[0] == '\0')
        flags |= AT_EMPTY_PATH;
    if (::statx(folder, name, flags | AT_NO_AUTOMOUNT, STATX_BASIC_STATS | STATX_MNT_ID, &found) != 0)
        return std::unexpected(lastError());
    const bool tellsMountPoint = (found.stx_attributes_mask & STATX_ATTR_MOUNT_ROOT) != 0;
    return ItemStatus{
        .identity = {.device = (quint64{found.stx_dev_major} << 32) | found.stx_dev_minor, .inode = found.stx_ino},
        .mount = (found.stx_mask & STATX_MNT_ID) != 0 ? found.stx_mnt_id : 0,
        .isMountPoint =
            tellsMountPoint ? std::optional((found.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0) : std::nullopt,
        .mode = found.stx_mode,
        .owner = found.stx_uid,
        .group = found.stx_gid,
        .size = static_cast<qint64>(found.stx_size),
        .allocated = static_cast<qint64>(found.stx_blocks) * 512,
        .accessed = timeOf(found.stx_atime),
        .modified = timeOf(found.stx_mtime),
        .changed = timeOf(found.stx_ctime)};
}

/// Splits a path at a slash so that the first part is short enough for one call.
qsizetype stepOf(QByteArrayView path)
{
    return path.size() < PATH_MAX ? path.size() : path.first(PATH_MAX - 1).lastIndexOf('/');
}

} // namespace

std::expected<ItemStatus, std::error_code> statusAt(int folder, const char *name)
{
    return status(folder, name, AT_SYMLINK_NOFOLLOW);
}

std::expected<ItemStatus, std::error_code> targetStatusAt(int folder, const char *name)
{
    return status(folder, name, 0);
}

std::expected<Descriptor, std::error_code> openForPassing(const FileURL &folder)
{
    QByteArray rest = folder.path();
    Descriptor reached;
    while (!rest.isEmpty()) {
        const qsizetype step = stepOf(rest);
        if (step <= 0)
            return std::unexpected(std::make_error_code(std::errc::filename_too_long));
        const int from = reached.isOpen() ? reached.get() : AT_FDCWD;
        Descriptor next(::openat(from, rest.first(step).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        if (!next.isOpen())
            return std::unexpected(lastError());
        reached = std::move(next);
        rest = rest.sliced(std::min(step + 1, rest.size()));
    }
    return reached;
}

std::optional<FileURL> placeOf(const Descriptor &folder)
{
    const QByteArray name = "/proc/self/fd/" + QByteArray::number(folder.get());
    std::array<char, PATH_MAX> target;
    const ssize_t length = ::readlink(name.constData(), target.data(), target.size());
    if (length <= 0 || static_cast<size_t>(length) == target.size())
        return std::nullopt;
    return FileURL::fromPath(QByteArrayView(target.data(), length));
}

std::expected<QList<QByteArray>, std::error_code> namesIn(const Descriptor &folder)
{
    constexpr size_t block = 32 * 1024;
    if (::lseek(folder.get(), 0, SEEK_SET) != 0)
        return std::unexpected(lastError());
    const auto buffer = std::make_unique_for_overwrite<char[]>(block);
    FolderPrimitives::FolderStream stream(folder.get(), {buffer.get(), block});
    FolderPrimitives::RawEntry entry;
    QList<QByteArray> names;
    while (stream.next(entry))
        names.append(QByteArray(entry.name, static_cast<qsizetype>(entry.length)));
    if (stream.error() != 0)
        return std::unexpected(std::error_code(stream.error(), std::generic_category()));
    return names;
}
