// SPDX-License-Identifier: MIT
#include "Platform/FolderPrimitives.h"

#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstring>

namespace {

using FileSystem::Attributes;
using FileSystem::Kind;

Kind kindOf(mode_t mode)
{
    if (S_ISREG(mode))
        return Kind::regular;
    if (S_ISDIR(mode))
        return Kind::folder;
    return S_ISLNK(mode) ? Kind::link : Kind::other;
}

/// Times beyond the year 2262 do not fit; they stay at the end of what does.
qint64 nanoseconds(const timespec &time)
{
    qint64 result = 0;
    if (__builtin_mul_overflow(qint64{time.tv_sec}, qint64{1'000'000'000}, &result) ||
        __builtin_add_overflow(result, qint64{time.tv_nsec}, &result))
        return time.tv_sec < 0 ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
    return result;
}

Attributes attributesFrom(const struct stat &status)
{
    constexpr qint64 largest = qint64{1} << 60;
    const bool plausible = status.st_size >= 0 && status.st_size <= largest;
    return {.kind = kindOf(status.st_mode),
            .size = plausible ? std::optional<qint64>{status.st_size} : std::nullopt,
            .allocated = status.st_blocks >= 0 && status.st_blocks <= largest / 512 ? status.st_blocks * 512 : 0,
            .modified = nanoseconds(status.st_mtim),
            .accessed = nanoseconds(status.st_atim),
            .device = status.st_dev,
            .inode = status.st_ino,
            .links = status.st_nlink,
            .owner = status.st_uid,
            .permissions = status.st_mode & 07777U};
}

/// The layout of one entry as the kernel writes it.
struct KernelEntry {
    quint64 inode;
    qint64 offset;
    quint16 length;
    unsigned char type;
    char name[1];
};

std::optional<Kind> kindOfType(unsigned char type)
{
    switch (type) {
    case DT_REG:
        return Kind::regular;
    case DT_DIR:
        return Kind::folder;
    case DT_LNK:
        return Kind::link;
    case DT_UNKNOWN:
        return std::nullopt;
    default:
        return Kind::other;
    }
}

bool isSelfOrParent(const char *name)
{
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

} // namespace

int FolderPrimitives::openQuietly(int folder, const char *path, int flags)
{
    // Only the owner (or root) may ask for O_NOATIME; everybody else is told EPERM.
    const int fd = ::openat(folder, path, flags | O_NOATIME | O_CLOEXEC);
    return fd < 0 && errno == EPERM ? ::openat(folder, path, flags | O_CLOEXEC) : fd;
}

int FolderPrimitives::openWithoutLinks(int folder, const char *path, int flags)
{
    open_how how{};
    how.resolve = RESOLVE_NO_SYMLINKS;
    for (const int quiet : {O_NOATIME, 0}) {
        if ((flags & O_PATH) != 0 && quiet != 0)
            continue; // the call is strict, and refuses the two together
        how.flags = static_cast<quint64>(flags | O_NOFOLLOW | O_CLOEXEC | quiet);
        const long fd = ::syscall(SYS_openat2, folder, path, &how, sizeof how);
        if (fd >= 0)
            return static_cast<int>(fd);
        if (errno == ENOSYS) // sandboxes that do not know the call yet
            return openQuietly(folder, path, flags | O_NOFOLLOW);
        if (errno != EPERM)
            break;
    }
    return -1;
}

int FolderPrimitives::passThroughFlags()
{
    return O_PATH | O_DIRECTORY;
}

std::optional<Attributes> FolderPrimitives::attributesAt(int folder, const char *name, bool followLink)
{
    struct stat status;
    const int flags = (followLink ? 0 : AT_SYMLINK_NOFOLLOW) | AT_NO_AUTOMOUNT;
    if (::fstatat(folder, name, &status, flags) != 0)
        return std::nullopt;
    return attributesFrom(status);
}

std::optional<Attributes> FolderPrimitives::attributesOf(int descriptor)
{
    struct stat status;
    if (::fstat(descriptor, &status) != 0)
        return std::nullopt;
    return attributesFrom(status);
}

bool FolderPrimitives::FolderStream::next(RawEntry &entry)
{
    for (;;) {
        if (m_from >= m_to) {
            const long bytes = ::syscall(SYS_getdents64, m_descriptor, m_buffer.data(), m_buffer.size());
            if (bytes <= 0) {
                m_error = bytes < 0 ? errno : 0;
                return false;
            }
            m_from = 0;
            m_to = static_cast<size_t>(bytes);
        }
        const char *record = m_buffer.data() + m_from;
        quint16 length = 0;
        std::memcpy(&length, record + offsetof(KernelEntry, length), sizeof length);
        m_from += length;
        entry.name = record + offsetof(KernelEntry, name);
        if (isSelfOrParent(entry.name))
            continue;
        entry.length = std::strlen(entry.name);
        entry.kind = kindOfType(static_cast<unsigned char>(record[offsetof(KernelEntry, type)]));
        return true;
    }
}
