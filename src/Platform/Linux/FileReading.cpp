// SPDX-License-Identifier: MIT
#include "Platform/FileReading.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>

namespace {

qint64 nanoseconds(const timespec &time)
{
    // Stamps are only compared, so that times too far away to fit may wrap.
    return static_cast<qint64>(static_cast<quint64>(time.tv_sec) * 1'000'000'000U + static_cast<quint64>(time.tv_nsec));
}

} // namespace

std::optional<FileReading::Stamp> FileReading::stampOf(int descriptor)
{
    struct stat status;
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return Stamp{.size = status.st_size,
                 .modified = nanoseconds(status.st_mtim),
                 .changed = nanoseconds(status.st_ctim),
                 .device = status.st_dev,
                 .inode = status.st_ino};
}

qint64 FileReading::readCached(int descriptor, char *into, qint64 size, qint64 offset)
{
    const iovec part{.iov_base = into, .iov_len = static_cast<size_t>(size)};
    // File systems that do not know the flag fail, as do those that would have to wait: both mean nothing at hand.
    const ssize_t got = ::preadv2(descriptor, &part, 1, offset, RWF_NOWAIT);
    return got < 0 ? 0 : got;
}

void FileReading::prefetch(int descriptor, qint64 offset, qint64 size)
{
    // A hint alone: what goes wrong shows when the bytes are read.
    (void)::posix_fadvise(descriptor, offset, size, POSIX_FADV_WILLNEED);
}
