// SPDX-License-Identifier: MIT
#include "Support/OwnFiles.h"

#include <QScopeGuard>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::unexpected<std::error_code> failure(int error)
{
    return std::unexpected(std::error_code(error, std::generic_category()));
}

/// 0, or the error that ended it.
int writeAll(int descriptor, QByteArrayView content)
{
    while (!content.isEmpty()) {
        const ssize_t written = ::write(descriptor, content.data(), static_cast<size_t>(content.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        content = content.sliced(written);
    }
    return 0;
}

} // namespace

std::expected<QByteArray, std::error_code> OwnFiles::read(const FileURL &file, qint64 limit)
{
    // Opening a pipe would wait for its other end.
    const int descriptor = ::open(file.path().constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return failure(errno);
    const auto closed = qScopeGuard([descriptor] { ::close(descriptor); });
    struct stat status {
    };
    if (::fstat(descriptor, &status) != 0)
        return failure(errno);
    if (!S_ISREG(status.st_mode))
        return failure(EINVAL);
    if (status.st_size > limit)
        return failure(EFBIG);
    QByteArray content;
    QByteArray block(65'536, Qt::Uninitialized);
    while (true) {
        const ssize_t got = ::read(descriptor, block.data(), static_cast<size_t>(block.size()));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return failure(errno);
        if (got == 0)
            return content;
        content.append(block.constData(), got);
        if (content.size() > limit)
            return failure(EFBIG);
    }
}

std::expected<void, std::error_code> OwnFiles::write(const FileURL &file, const QByteArray &content)
{
    QByteArray temporary = file.path() + ".XXXXXX";
    const int descriptor = ::mkostemp(temporary.data(), O_CLOEXEC); // made with mode 0600
    if (descriptor < 0)
        return failure(errno);
    int error = writeAll(descriptor, content);
    // Without it, a crash soon after could leave an empty file under the name.
    if (error == 0 && ::fsync(descriptor) != 0)
        error = errno;
    if (::close(descriptor) != 0 && error == 0)
        error = errno;
    if (error == 0 && std::rename(temporary.constData(), file.path().constData()) != 0)
        error = errno;
    if (error == 0)
        return {};
    ::unlink(temporary.constData());
    return failure(error);
}

std::expected<void, std::error_code> OwnFiles::makeFolder(const FileURL &folder)
{
    if (::mkdir(folder.path().constData(), 0700) == 0)
        return {};
    const int error = errno;
    struct stat status {
    };
    if (error == EEXIST) {
        if (::stat(folder.path().constData(), &status) == 0 && S_ISDIR(status.st_mode))
            return {};
        return failure(ENOTDIR);
    }
    if (error != ENOENT || folder.parent() == folder)
        return failure(error);
    if (const auto made = makeFolder(folder.parent()); !made)
        return made;
    return ::mkdir(folder.path().constData(), 0700) == 0 || errno == EEXIST ? std::expected<void, std::error_code>{}
                                                                            : failure(errno);
}

std::expected<FileURL, std::error_code> OwnFiles::keepAside(const FileURL &file)
{
    for (int number = 1;; ++number) {
        FileURL target = file.parent().child(file.name() + ".broken-" + QByteArray::number(number));
        // An empty file made exclusively holds the name, so that two of us never choose the same.
        const int claim = ::open(target.path().constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (claim < 0 && errno == EEXIST)
            continue;
        if (claim < 0)
            return failure(errno);
        ::close(claim);
        if (std::rename(file.path().constData(), target.path().constData()) == 0)
            return target;
        const int error = errno;
        ::unlink(target.path().constData());
        return failure(error);
    }
}
