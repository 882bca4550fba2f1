// SPDX-License-Identifier: MIT
#include "Platform/Linux/TreeRemoval.h"

#include "Platform/Descriptor.h"
#include "Platform/FolderPrimitives.h"
#include "Platform/Linux/ItemStatus.h"

#include <QList>

#include <fcntl.h>
#include <unistd.h>

#include <vector>

namespace {

constexpr size_t kMostOpen = 64; // levels whose descriptor stays open; the others are found again through ".."
constexpr int kMostReadings = 8; // how often a folder into which somebody goes on writing is emptied

constexpr size_t kBlock = 32 * 1024; // bytes of a folder that are read at a time

struct Level {
    QByteArray name; // within the level above
    Descriptor folder;
    ItemStatus status;
    QList<QByteArray> folders; // what is still to be gone into
    int readings = 0;
};

bool isNoFolder(const std::error_code &error)
{
    return error == std::errc::not_a_directory || error == std::errc::too_many_symbolic_link_levels;
}

class Remover
{
public:
    Remover(int top, const CancelToken &cancel)
        : m_top(top)
        , m_cancel(cancel)
    {
    }

    std::error_code run(const QByteArray &name)
    {
        if (const std::error_code failure = enter(name))
            return failure;
        while (!m_levels.empty()) {
            if (const std::error_code failure = step())
                return failure;
        }
        return {};
    }

private:
    [[nodiscard]] int current() const { return m_levels.empty() ? m_top : m_levels.back().folder.get(); }

    /// Goes on with the deepest level: empties it of what is no folder, goes into one of its folders, or deletes it.
    std::error_code step()
    {
        Level &level = m_levels.back();
        if (level.readings == 0) {
            level.readings = 1;
            return clear(level);
        }
        if (level.folders.isEmpty())
            return leave();
        return removeEntry(level.folders.takeLast());
    }

    /// Deletes an entry that is no folder, and goes into one that is.
    std::error_code removeEntry(const QByteArray &name)
    {
        const std::error_code failure = enter(name);
        // Whatever took the folder's place since it was read is deleted as what it is.
        if (isNoFolder(failure))
            return ::unlinkat(current(), name.constData(), 0) == 0 || errno == ENOENT ? std::error_code() : lastError();
        return failure == std::errc::no_such_file_or_directory ? std::error_code() : failure;
    }

    std::error_code enter(const QByteArray &name)
    {
        Level level{.name = name, .folder = {}, .status = {}, .folders = {}};
        level.folder = Descriptor(
            ::openat(current(), name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (!level.folder.isOpen()) {
            const std::error_code failure = lastError();
            // A folder that may not be read but is empty goes all the same.
            if (failure == std::errc::permission_denied && ::unlinkat(current(), name.constData(), AT_REMOVEDIR) == 0)
                return {};
            return failure;
        }
        const auto status = statusAt(level.folder.get(), "");
        if (!status)
            return status.error();
        level.status = *status;
        const bool isOtherMount = !m_levels.empty() && !status->isOnMountOf(m_levels.front().status);
        if (isOtherMount || status->isMountPoint.value_or(false))
            return std::make_error_code(std::errc::device_or_resource_busy);
        m_levels.push_back(std::move(level));
        if (m_levels.size() > kMostOpen)
            m_levels[m_levels.size() - kMostOpen - 1].folder.close();
        return {};
    }

    /// Reads a folder to its end, deletes what is no folder and notes the rest.
    std::error_code clear(Level &level)
    {
        if (::lseek(level.folder.get(), 0, SEEK_SET) != 0)
            return lastError();
        FolderPrimitives::FolderStream stream(level.folder.get(), m_buffer);
        FolderPrimitives::RawEntry entry;
        while (stream.next(entry)) {
            if (m_cancel.isCancelled())
                return std::make_error_code(std::errc::operation_canceled);
            const QByteArray name(entry.name, static_cast<qsizetype>(entry.length));
            if (entry.kind == FileSystem::Kind::folder)
                level.folders.append(name);
            else if (const std::error_code failure = unlinkOrNote(level, name))
                return failure;
        }
        return {stream.error(), std::generic_category()};
    }

    std::error_code unlinkOrNote(Level &level, const QByteArray &name)
    {
        if (::unlinkat(level.folder.get(), name.constData(), 0) == 0 || errno == ENOENT)
            return {};
        if (errno != EISDIR)
            return lastError();
        level.folders.append(name);
        return {};
    }

    /// Deletes the deepest level, which is empty by now, and goes back to the one above.
    std::error_code leave()
    {
        if (const std::error_code failure = reopenAbove())
            return failure;
        Level &level = m_levels.back();
        const int above = m_levels.size() > 1 ? m_levels[m_levels.size() - 2].folder.get() : m_top;
        if (::unlinkat(above, level.name.constData(), AT_REMOVEDIR) != 0 && errno != ENOENT) {
            const std::error_code failure = lastError();
            if (failure != std::errc::directory_not_empty || level.readings >= kMostReadings)
                return failure;
            ++level.readings;
            return clear(level);
        }
        m_levels.pop_back();
        return {};
    }

    /// Opens the level above the deepest one again when its descriptor was given up, and only if it still is that one.
    std::error_code reopenAbove()
    {
        if (m_levels.size() < 2 || m_levels[m_levels.size() - 2].folder.isOpen())
            return {};
        Level &above = m_levels[m_levels.size() - 2];
        Descriptor opened(::openat(current(), "..", O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!opened.isOpen())
            return lastError();
        const auto status = statusAt(opened.get(), "");
        if (!status)
            return status.error();
        if (status->identity != above.status.identity)
            return std::make_error_code(std::errc::no_such_file_or_directory);
        above.folder = std::move(opened);
        return {};
    }

    int m_top;
    const CancelToken &m_cancel;
    std::vector<Level> m_levels;
    std::vector<char> m_buffer = std::vector<char>(kBlock);
};

} // namespace

std::error_code TreeRemoval::remove(int folder, const QByteArray &name, const CancelToken &cancel)
{
    if (cancel.isCancelled())
        return std::make_error_code(std::errc::operation_canceled);
    if (::unlinkat(folder, name.constData(), 0) == 0)
        return {};
    return errno == EISDIR ? Remover(folder, cancel).run(name) : lastError();
}
