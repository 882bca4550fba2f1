// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <stdexcept>

/// A folder of a test's own, gone with the object. Everything in it is made by bytes, so that odd names work.
class ScratchTree
{
public:
    ScratchTree()
    {
        if (!m_folder.isValid())
            throw std::runtime_error("no scratch folder could be made");
        // Links on the way to the temporary folder are resolved, so that paths compare equal to what scans answer.
        char *real = ::realpath(QFile::encodeName(m_folder.path()).constData(), nullptr);
        m_root = FileURL::fromPath(real).value();
        m_folder.setAutoRemove(false);
        std::free(real); // NOLINT: realpath allocates with malloc
    }

    ~ScratchTree()
    {
        // By bytes: QTemporaryDir leaves behind what it cannot name.
        const auto removeOne = [](const char *path, const struct stat *, int, FTW *) { return ::remove(path), 0; };
        ::nftw(m_root.path().constData(), removeOne, 16, FTW_DEPTH | FTW_PHYS | FTW_MOUNT);
    }
    Q_DISABLE_COPY_MOVE(ScratchTree)

    [[nodiscard]] const FileURL &root() const { return m_root; }
    [[nodiscard]] FileURL at(QByteArrayView relative) const { return m_root.appending(relative); }

    FileURL folder(QByteArrayView relative) const
    {
        const FileURL wanted = at(relative);
        for (qsizetype slash = m_root.path().size(); slash > 0;) {
            slash = wanted.path().indexOf('/', slash + 1);
            const QByteArray part = slash < 0 ? wanted.path() : wanted.path().first(slash);
            if (::mkdir(part.constData(), 0755) != 0 && errno != EEXIST)
                throw std::runtime_error("a scratch folder could not be made");
        }
        return wanted;
    }

    FileURL file(QByteArrayView relative, const QByteArray &content = "content") const
    {
        const FileURL wanted = at(relative);
        if (wanted.parent() != m_root)
            folder(wanted.parent().path().sliced(m_root.path().size() + 1));
        const int fd = ::open(wanted.path().constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        if (fd < 0 || ::write(fd, content.constData(), static_cast<size_t>(content.size())) != content.size())
            throw std::runtime_error("a scratch file could not be written");
        ::close(fd);
        return wanted;
    }

    /// A file of `size` bytes that takes no space.
    FileURL sparseFile(QByteArrayView relative, qint64 size) const
    {
        const FileURL made = file(relative, {});
        if (::truncate(made.path().constData(), size) != 0)
            throw std::runtime_error("a scratch file could not be lengthened");
        return made;
    }

    FileURL link(QByteArrayView relative, const QByteArray &target) const
    {
        const FileURL wanted = at(relative);
        if (::symlink(target.constData(), wanted.path().constData()) != 0)
            throw std::runtime_error("a scratch link could not be made");
        return wanted;
    }

    static void setModified(const FileURL &item, const QDateTime &when)
    {
        const qint64 ms = when.toMSecsSinceEpoch();
        const timespec time{.tv_sec = ms / 1000, .tv_nsec = (ms % 1000) * 1'000'000};
        const timespec times[2] = {time, time};
        if (::utimensat(AT_FDCWD, item.path().constData(), times, AT_SYMLINK_NOFOLLOW) != 0)
            throw std::runtime_error("a scratch file's date could not be set");
    }

    static bool exists(const FileURL &item)
    {
        struct stat status {
        };
        return ::lstat(item.path().constData(), &status) == 0;
    }

    static QByteArray content(const FileURL &item)
    {
        QFile file(QFile::decodeName(item.path()));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
    FileURL m_root;
};

/// While it lives, this process may do no more than an ordinary user, even when the tests run as root: permissions
/// then count. What the test made before belongs to root unless handed over.
class OrdinaryUser
{
public:
    static constexpr uid_t kNobody = 65534;
    OrdinaryUser()
    {
        if (::geteuid() == 0 && ::seteuid(kNobody) != 0)
            throw std::runtime_error("the test could not drop its privileges");
    }
    ~OrdinaryUser()
    {
        if (::getuid() == 0 && ::seteuid(0) != 0)
            std::abort();
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;
    /// Gives an item to that user.
    static void own(const FileURL &item)
    {
        if (::geteuid() == 0 && ::lchown(item.path().constData(), kNobody, kNobody) != 0)
            throw std::runtime_error("a scratch item could not be handed over");
    }
};
