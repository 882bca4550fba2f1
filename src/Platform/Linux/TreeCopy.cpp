// SPDX-License-Identifier: MIT
#include "Platform/Linux/TreeCopy.h"

#include "Models/CheckedSum.h"
#include "Platform/Linux/TreeRemoval.h"

#include <fcntl.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <cstring>
#include <memory>
#include <tuple>

namespace {

using TreeCopy::Node;

constexpr int kDeepest = 128;             // levels; two descriptors are held for each while copying
constexpr size_t kBlock = 256 * 1024;     // bytes
constexpr qint64 kLongestName = 4 * 1024; // bytes that an entry itself may take in a folder

std::error_code changed()
{
    return std::make_error_code(std::errc::device_or_resource_busy);
}

std::error_code result(int answer)
{
    return answer == 0 ? std::error_code() : lastError();
}

bool isSame(const timespec &a, const timespec &b)
{
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

/// A folder's own times change as its entries go, so of a folder only the identity counts.
bool isUnchanged(const ItemStatus &before, const ItemStatus &now)
{
    if (before.identity != now.identity || (before.mode & S_IFMT) != (now.mode & S_IFMT))
        return false;
    return before.isFolder() ||
           (before.size == now.size && isSame(before.modified, now.modified) && isSame(before.changed, now.changed));
}

Descriptor openFolder(int folder, const QByteArray &name)
{
    return Descriptor(::openat(folder, name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

/// Reading never changes an access time where the system lets us.
Descriptor openFile(int folder, const QByteArray &name)
{
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int quiet = ::openat(folder, name.constData(), flags | O_NOATIME);
    return Descriptor(quiet < 0 && errno == EPERM ? ::openat(folder, name.constData(), flags) : quiet);
}

/// Whether an entry of a folder may be removed: the right to change the folder, and with a sticky bit the ownership.
std::error_code mayRemoveFrom(int folder, const ItemStatus &entry)
{
    if (::faccessat(folder, ".", W_OK | X_OK, AT_EACCESS) != 0)
        return lastError();
    const auto holder = statusAt(folder, "");
    if (!holder)
        return holder.error();
    const uid_t user = ::geteuid();
    if ((holder->mode & S_ISVTX) != 0 && user != 0 && user != holder->owner && user != entry.owner)
        return std::make_error_code(std::errc::operation_not_permitted);
    return {};
}

class Surveyor
{
public:
    std::error_code visit(int folder, Node &node, int depth)
    {
        const auto status = statusAt(folder, node.name.constData());
        if (!status)
            return status.error();
        node.status = *status;
        if (depth == 0)
            m_top = *status;
        if (status->isMountPoint.value_or(false) || !status->isOnMountOf(m_top))
            return std::make_error_code(std::errc::device_or_resource_busy);
        if (const std::error_code failure = mayRemoveFrom(folder, *status))
            return failure;
        m_bytes = checkedSum(m_bytes, kLongestName);
        if (S_ISREG(status->mode))
            return addFile(*status);
        if (S_ISLNK(status->mode))
            return {};
        if (!status->isFolder()) // copying would turn it into something else, or never end
            return std::make_error_code(std::errc::operation_not_supported);
        return depth < kDeepest ? visitChildren(folder, node, depth)
                                : std::make_error_code(std::errc::filename_too_long);
    }
    [[nodiscard]] qint64 bytes() const { return m_bytes; }

private:
    std::error_code addFile(const ItemStatus &status)
    {
        constexpr qint64 longest = qint64{1} << 60;
        if (status.size < 0 || status.size > longest || m_bytes > longest)
            return std::make_error_code(std::errc::file_too_large);
        m_bytes = checkedSum(m_bytes, status.size);
        return {};
    }

    std::error_code visitChildren(int folder, Node &node, int depth)
    {
        const Descriptor opened = openFolder(folder, node.name);
        if (!opened.isOpen())
            return lastError();
        const auto names = namesIn(opened);
        if (!names)
            return names.error();
        for (const QByteArray &name : *names) {
            node.children.push_back({.name = name, .status = {}, .children = {}});
            if (const std::error_code failure = visit(opened.get(), node.children.back(), depth + 1))
                return failure;
        }
        return {};
    }

    ItemStatus m_top;
    qint64 m_bytes = 0;
};

std::error_code readBlock(int file, std::array<char, kBlock> &block, size_t &length)
{
    length = 0;
    while (length < block.size()) {
        const ssize_t bytes = ::read(file, block.data() + length, block.size() - length);
        if (bytes < 0 && errno == EINTR)
            continue;
        if (bytes < 0)
            return lastError();
        if (bytes == 0)
            break;
        length += static_cast<size_t>(bytes);
    }
    return {};
}

std::error_code writeBlock(int file, const char *from, size_t length)
{
    while (length > 0) {
        const ssize_t bytes = ::write(file, from, length);
        if (bytes < 0 && errno == EINTR)
            continue;
        if (bytes <= 0)
            return bytes < 0 ? lastError() : std::make_error_code(std::errc::no_space_on_device);
        from += bytes;
        length -= static_cast<size_t>(bytes);
    }
    return {};
}

/// Goes through both files from their beginning and calls `step` with each pair of places; ends with the first error.
class FileCopier
{
public:
    FileCopier(int source, int target)
        : m_source(source)
        , m_target(target)
    {
    }

    /// Writes `size` bytes, and an error when the source turns out to have another length.
    std::error_code write(qint64 size)
    {
        for (qint64 done = 0;;) {
            size_t length = 0;
            if (const std::error_code failure = readBlock(m_source, *m_first, length))
                return failure;
            done += static_cast<qint64>(length);
            if (done > size || (length == 0 && done != size))
                return changed();
            if (length == 0)
                return result(::fsync(m_target));
            if (const std::error_code failure = writeBlock(m_target, m_first->data(), length))
                return failure;
        }
    }

    std::error_code compare()
    {
        if (::lseek(m_source, 0, SEEK_SET) != 0 || ::lseek(m_target, 0, SEEK_SET) != 0)
            return lastError();
        // What was written is dropped from memory first, so that the disk is what answers.
        ::posix_fadvise(m_target, 0, 0, POSIX_FADV_DONTNEED);
        for (;;) {
            size_t length = 0;
            size_t copied = 0;
            if (const std::error_code failure = readBlock(m_source, *m_first, length))
                return failure;
            if (const std::error_code failure = readBlock(m_target, *m_second, copied))
                return failure;
            if (length != copied || std::memcmp(m_first->data(), m_second->data(), length) != 0)
                return std::make_error_code(std::errc::io_error);
            if (length == 0)
                return {};
        }
    }

private:
    int m_source;
    int m_target;
    std::unique_ptr<std::array<char, kBlock>> m_first = std::make_unique<std::array<char, kBlock>>();
    std::unique_ptr<std::array<char, kBlock>> m_second = std::make_unique<std::array<char, kBlock>>();
};

/// Extended attributes that belong to the item and not to the system's bookkeeping.
std::error_code copyAttributes(int source, int target)
{
    std::array<char, 64 * 1024> names;
    const ssize_t length = ::flistxattr(source, names.data(), names.size());
    if (length < 0)
        return errno == ENOTSUP ? std::error_code() : lastError();
    const auto value = std::make_unique<std::array<char, 64 * 1024>>();
    for (const char *name = names.data(); name < names.data() + length; name += std::strlen(name) + 1) {
        const QByteArrayView view(name);
        if (!view.startsWith("user.") && !view.startsWith("system.posix_acl_"))
            continue;
        const ssize_t bytes = ::fgetxattr(source, name, value->data(), value->size());
        if (bytes < 0)
            return lastError();
        if (::fsetxattr(target, name, value->data(), static_cast<size_t>(bytes), 0) != 0 && errno != ENOTSUP)
            return lastError();
    }
    return {};
}

/// Owner, mode, extended attributes and times, in the order in which each leaves the earlier ones alone.
std::error_code dress(const ItemStatus &status, int source, int target)
{
    mode_t mode = status.mode & 07777;
    // Only root may give files away; what runs with its owner's rights must not run with ours instead.
    if (::fchown(target, status.owner, status.group) != 0)
        mode &= 01777;
    if (::fchmod(target, mode) != 0)
        return lastError();
    if (const std::error_code failure = copyAttributes(source, target))
        return failure;
    const timespec times[2] = {status.accessed, status.modified};
    return result(::futimens(target, times));
}

std::error_code copyFile(const Node &item, int folder, int target, const QByteArray &name)
{
    const Descriptor source = openFile(folder, item.name);
    if (!source.isOpen())
        return lastError();
    const auto before = statusAt(source.get(), "");
    if (!before || !isUnchanged(item.status, *before))
        return before ? changed() : before.error();
    const Descriptor made(::openat(target, name.constData(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!made.isOpen())
        return lastError();
    FileCopier copier(source.get(), made.get());
    if (const std::error_code failure = copier.write(item.status.size))
        return failure;
    if (const std::error_code failure = copier.compare())
        return failure;
    return dress(item.status, source.get(), made.get());
}

std::error_code copyLink(const Node &item, int folder, int target, const QByteArray &name)
{
    std::array<char, PATH_MAX + 1> goal{};
    const ssize_t length = ::readlinkat(folder, item.name.constData(), goal.data(), goal.size() - 1);
    if (length < 0)
        return lastError();
    if (length != item.status.size)
        return changed();
    if (::symlinkat(goal.data(), target, name.constData()) != 0)
        return lastError();
    const timespec times[2] = {item.status.accessed, item.status.modified};
    return result(::utimensat(target, name.constData(), times, AT_SYMLINK_NOFOLLOW));
}

std::error_code copyNode(const Node &item, int folder, int target, const QByteArray &name)
{
    if (S_ISREG(item.status.mode))
        return copyFile(item, folder, target, name);
    if (S_ISLNK(item.status.mode))
        return copyLink(item, folder, target, name);
    const Descriptor source = openFolder(folder, item.name);
    if (!source.isOpen())
        return lastError();
    const auto before = statusAt(source.get(), "");
    if (!before || !isUnchanged(item.status, *before))
        return before ? changed() : before.error();
    if (::mkdirat(target, name.constData(), 0700) != 0)
        return lastError();
    const Descriptor made = openFolder(target, name);
    if (!made.isOpen())
        return lastError();
    for (const Node &child : item.children) {
        if (const std::error_code failure = copyNode(child, source.get(), made.get(), child.name))
            return failure;
    }
    if (const std::error_code failure = dress(item.status, source.get(), made.get()))
        return failure;
    return result(::fsync(made.get()));
}

std::error_code removeNode(const Node &item, int folder, bool &hasRemoved)
{
    const auto now = statusAt(folder, item.name.constData());
    if (!now)
        return now.error();
    if (!isUnchanged(item.status, *now))
        return changed();
    if (item.status.isFolder()) {
        const Descriptor opened = openFolder(folder, item.name);
        if (!opened.isOpen())
            return lastError();
        const auto inside = statusAt(opened.get(), "");
        if (!inside || inside->identity != item.status.identity)
            return changed();
        for (const Node &child : item.children) {
            if (const std::error_code failure = removeNode(child, opened.get(), hasRemoved))
                return failure;
        }
    }
    // Whatever was put into a folder since it was copied keeps the folder in its place.
    if (::unlinkat(folder, item.name.constData(), item.status.isFolder() ? AT_REMOVEDIR : 0) != 0)
        return lastError();
    hasRemoved = true;
    return {};
}

} // namespace

std::expected<TreeCopy::Survey, std::error_code> TreeCopy::survey(int folder, const QByteArray &name)
{
    Survey found{.top = {.name = name, .status = {}, .children = {}}};
    Surveyor surveyor;
    if (const std::error_code failure = surveyor.visit(folder, found.top, 0))
        return std::unexpected(failure);
    found.bytes = surveyor.bytes();
    return found;
}

std::error_code TreeCopy::copy(const Node &item, int folder, int target, const QByteArray &targetName)
{
    const std::error_code failure = copyNode(item, folder, target, targetName);
    if (failure && failure != std::errc::file_exists)
        std::ignore = TreeRemoval::remove(target, targetName, CancelToken());
    return failure;
}

TreeCopy::Removal TreeCopy::removeOrigin(const Node &item, int folder)
{
    Removal removal;
    removal.failure = removeNode(item, folder, removal.hasRemoved);
    return removal;
}
