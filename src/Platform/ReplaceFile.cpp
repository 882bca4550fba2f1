// SPDX-License-Identifier: MIT
#include "Platform/ReplaceFile.h"

#include "Platform/Descriptor.h"

#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace {

using Outcome = std::expected<void, std::error_code>;

std::unexpected<std::error_code> lastError()
{
    return std::unexpected(std::error_code(errno, std::generic_category()));
}

Outcome writeAll(int file, QByteArrayView content)
{
    while (!content.isEmpty()) {
        const ssize_t written = ::write(file, content.data(), static_cast<size_t>(content.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return lastError();
        content = content.sliced(written);
    }
    return {};
}

/// Gives the new file what the old one had. Only the administrator may give files away: an owner that cannot be kept
/// is no error, but then neither are the bits that lend the owner's rights.
Outcome takeOver(int file, const struct stat &old)
{
    struct stat fresh {
    };
    if (::fstat(file, &fresh) != 0)
        return lastError();
    bool isKept = fresh.st_uid == old.st_uid && fresh.st_gid == old.st_gid;
    if (!isKept)
        isKept = ::fchown(file, old.st_uid, old.st_gid) == 0 ||
                 (fresh.st_uid == old.st_uid && ::fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0);
    const mode_t mask = isKept ? 07777 : 0777;
    return ::fchmod(file, old.st_mode & mask) == 0 ? Outcome() : Outcome(lastError());
}

bool isUnchanged(const FileURL &file, const FileSystem::Attributes &read)
{
    const auto now = FileSystem::attributes(file);
    return now && now->kind == FileSystem::Kind::regular && now->device == read.device && now->inode == read.inode &&
           now->size == read.size && now->modified == read.modified;
}

Outcome fill(int file, QByteArrayView content, const struct stat &old)
{
    if (const Outcome written = writeAll(file, content); !written)
        return written;
    if (const Outcome taken = takeOver(file, old); !taken)
        return taken;
    // Without this a power cut after the rename may leave an empty file.
    return ::fsync(file) == 0 ? Outcome() : Outcome(lastError());
}

} // namespace

Outcome replaceFile(const FileURL &file, QByteArrayView content, const FileSystem::Attributes &read)
{
    const auto opened = FileSystem::openItem(FileSystem::resolved(file.parent()), O_RDONLY | O_DIRECTORY);
    if (!opened)
        return std::unexpected(opened.error());
    const Descriptor folder(*opened);
    const QByteArray name = file.name();
    struct stat old {
    };
    if (::fstatat(folder.get(), name.constData(), &old, AT_SYMLINK_NOFOLLOW) != 0)
        return lastError();
    // A name of its own and not the file's with an addition, which may be as long as names get.
    const QByteArray temporary = ".brisko-" + QByteArray::number(QRandomGenerator::system()->generate64(), 16) + ".tmp";
    const Descriptor fresh(
        ::openat(folder.get(), temporary.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!fresh.isOpen())
        return lastError();
    Outcome outcome = fill(fresh.get(), content, old);
    if (outcome && !isUnchanged(file, read))
        outcome = std::unexpected(std::make_error_code(std::errc::resource_unavailable_try_again));
    if (outcome && ::renameat(folder.get(), temporary.constData(), folder.get(), name.constData()) != 0)
        outcome = lastError();
    if (!outcome)
        ::unlinkat(folder.get(), temporary.constData(), 0);
    else
        ::fsync(folder.get()); // best effort: some file systems cannot sync a folder, and the file is in place
    return outcome;
}
