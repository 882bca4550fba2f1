// SPDX-License-Identifier: MIT
#include "Platform/Linux/CopyStage.h"

#include "Platform/Linux/ItemStatus.h"
#include "Platform/Linux/TreeRemoval.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <tuple>

namespace {

constexpr auto kName = "brisko-copying";
constexpr int kMostTries = 16;

/// Whoever copies shares the lock, so who gets it alone knows that nobody copies and that all in here is left over.
void removeLeftovers(const Descriptor &folder)
{
    if (::flock(folder.get(), LOCK_EX | LOCK_NB) != 0)
        return;
    for (const QByteArray &name : namesIn(folder).value_or(QList<QByteArray>{}))
        std::ignore = TreeRemoval::remove(folder.get(), name, CancelToken());
}

} // namespace

CopyStage::CopyStage(Descriptor root, Descriptor folder)
    : m_root(std::move(root))
    , m_folder(std::move(folder))
{
}

std::expected<CopyStage, std::error_code> CopyStage::in(int trashRoot)
{
    for (int tries = 0; tries < kMostTries; ++tries) {
        if (::mkdirat(trashRoot, kName, 0700) != 0 && errno != EEXIST)
            return std::unexpected(lastError());
        Descriptor folder(::openat(trashRoot, kName, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!folder.isOpen() && errno == ENOENT)
            continue;
        if (!folder.isOpen())
            return std::unexpected(lastError());
        removeLeftovers(folder);
        if (::flock(folder.get(), LOCK_SH) != 0)
            return std::unexpected(lastError());
        // Another run may have removed the folder just before it was locked.
        const auto named = statusAt(trashRoot, kName);
        const auto opened = statusAt(folder.get(), "");
        if (!named || !opened || named->identity != opened->identity)
            continue;
        Descriptor root(::fcntl(trashRoot, F_DUPFD_CLOEXEC, 0));
        if (!root.isOpen())
            return std::unexpected(lastError());
        return CopyStage(std::move(root), std::move(folder));
    }
    return std::unexpected(std::make_error_code(std::errc::resource_unavailable_try_again));
}

CopyStage::~CopyStage()
{
    if (m_folder.isOpen() && ::flock(m_folder.get(), LOCK_EX | LOCK_NB) == 0)
        ::unlinkat(m_root.get(), kName, AT_REMOVEDIR);
}

QByteArray CopyStage::newName()
{
    return QByteArray::number(::getpid()) + '-' + QByteArray::number(reinterpret_cast<quintptr>(this), 16) + '-' +
           QByteArray::number(++m_number);
}
