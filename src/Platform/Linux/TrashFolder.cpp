// SPDX-License-Identifier: MIT
#include "Platform/Linux/TrashFolder.h"

#include "Models/CheckedSum.h"
#include "Platform/FileSystem.h"
#include "Platform/Linux/TrashNames.h"
#include "Platform/Linux/WholeWrite.h"

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

namespace {

constexpr mode_t kPrivate = 0700;
constexpr qint64 kMostSizesText = 16 * 1024 * 1024; // bytes; a longer cache is started anew
constexpr int kMostTries = 1000;                    // names taken under our hands by somebody else

std::unexpected<std::error_code> refusal(std::errc why)
{
    return std::unexpected(std::make_error_code(why));
}

/// Opens a folder by its own name, made when missing and wanted; never through a link.
std::expected<Descriptor, std::error_code> openPrivate(int parent, const char *name, TrashFolder::Missing missing)
{
    if (missing == TrashFolder::Missing::isCreated && ::mkdirat(parent, name, kPrivate) != 0 && errno != EEXIST)
        return std::unexpected(lastError());
    Descriptor opened(::openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!opened.isOpen())
        return std::unexpected(lastError());
    return opened;
}

std::error_code makeWithParents(const FileURL &folder)
{
    if (::mkdir(folder.path().constData(), kPrivate) == 0 || errno == EEXIST)
        return {};
    if (errno != ENOENT || folder == FileURL::root())
        return lastError();
    if (const std::error_code failure = makeWithParents(folder.parent()))
        return failure;
    return ::mkdir(folder.path().constData(), kPrivate) == 0 || errno == EEXIST ? std::error_code() : lastError();
}

/// Whether a folder at the top of a mount can be trusted with what the user throws away.
bool isClosedToOthers(const Descriptor &folder, uid_t user)
{
    const auto status = statusAt(folder.get(), "");
    return status && status->isFolder() && status->owner == user && (status->mode & 0777) == kPrivate;
}

/// What a folder and all below it take on the disk, each inode once.
class DiskUse : public FileSystem::Visitor
{
public:
    void entry(const FileURL &, const FileSystem::EntryView &entry) override
    {
        if (entry.attributes)
            add(*entry.attributes);
    }
    void add(const FileSystem::Attributes &attributes)
    {
        const MountPoints::Identity identity{.device = static_cast<quint64>(attributes.device),
                                             .inode = attributes.inode};
        if (attributes.links > 1 && attributes.kind != FileSystem::Kind::folder) {
            if (m_seen.contains(identity))
                return;
            m_seen.insert(identity);
        }
        m_bytes = checkedSum(m_bytes, attributes.allocated);
    }
    [[nodiscard]] qint64 bytes() const { return m_bytes; }

private:
    QSet<MountPoints::Identity> m_seen;
    qint64 m_bytes = 0;
};

qint64 diskUse(const FileURL &folder)
{
    DiskUse use;
    if (const auto own = FileSystem::attributes(folder))
        use.add(*own);
    FileSystem::walk(folder,
                     {.hidden = FileSystem::Hidden::include,
                      .want = FileSystem::Want::everything,
                      .root = FileSystem::Root::doNotFollow},
                     use, CancelToken());
    return use.bytes();
}

} // namespace

std::expected<TrashFolder, std::error_code> TrashFolder::atHome(const FileURL &folder, uid_t user, Missing missing)
{
    if (missing == Missing::isCreated) {
        if (const std::error_code failure = makeWithParents(folder))
            return std::unexpected(failure);
    }
    Descriptor root(::open(folder.path().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!root.isOpen())
        return std::unexpected(lastError());
    return from(std::move(root), user, missing);
}

std::expected<TrashFolder, std::error_code> TrashFolder::atTop(const FileURL &top, uid_t user)
{
    const QByteArray number = QByteArray::number(user);
    const Descriptor folder(::open(top.path().constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen())
        return std::unexpected(lastError());
    if (const auto shared = openPrivate(folder.get(), ".Trash", Missing::isError)) {
        // Without the sticky bit others could put a folder of theirs in our place.
        const auto status = statusAt(shared->get(), "");
        if (status && (status->mode & S_ISVTX) != 0) {
            auto own = openPrivate(shared->get(), number.constData(), Missing::isCreated);
            if (own && isClosedToOthers(*own, user))
                return from(*std::move(own), user, Missing::isCreated);
        }
    }
    auto own = openPrivate(folder.get(), (".Trash-" + number).constData(), Missing::isCreated);
    if (!own)
        return std::unexpected(own.error());
    if (!isClosedToOthers(*own, user))
        return refusal(std::errc::permission_denied);
    return from(*std::move(own), user, Missing::isCreated);
}

std::expected<TrashFolder, std::error_code> TrashFolder::around(const Descriptor &files, uid_t user)
{
    Descriptor root(::openat(files.get(), "..", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!root.isOpen())
        return std::unexpected(lastError());
    auto trash = from(std::move(root), user, Missing::isError);
    if (!trash)
        return trash;
    const auto asked = statusAt(files.get(), "");
    const auto own = statusAt(trash->files(), "");
    if (!asked || !own || asked->identity != own->identity)
        return refusal(std::errc::not_a_directory);
    return trash;
}

std::expected<TrashFolder, std::error_code> TrashFolder::from(Descriptor root, uid_t user, Missing missing)
{
    TrashFolder trash;
    trash.m_root = std::move(root);
    const auto status = statusAt(trash.m_root.get(), "");
    if (!status)
        return std::unexpected(status.error());
    if (status->owner != user)
        return refusal(std::errc::permission_denied);
    trash.m_status = *status;
    for (auto [descriptor, name] : {std::pair(&trash.m_files, "files"), std::pair(&trash.m_info, "info")}) {
        auto opened = openPrivate(trash.m_root.get(), name, missing);
        if (!opened)
            return std::unexpected(opened.error());
        const auto own = statusAt(opened->get(), "");
        if (!own || own->owner != user)
            return refusal(std::errc::permission_denied);
        *descriptor = *std::move(opened);
    }
    const auto place = placeOf(trash.m_root);
    if (!place)
        return refusal(std::errc::no_such_file_or_directory);
    trash.m_place = *place;
    // Some file systems take shorter names than most; others claim to take longer ones, counted in other units.
    struct statvfs limits {
    };
    constexpr unsigned long usual = 255;
    const bool known = ::fstatvfs(trash.m_info.get(), &limits) == 0 && limits.f_namemax > 0;
    const auto longest = static_cast<qsizetype>(known ? std::min(limits.f_namemax, usual) : usual);
    trash.m_records =
        std::make_unique<TrashRecords>(trash.m_info.get(), trash.m_files.get(), TrashNames::limitFor(longest));
    return trash;
}

void TrashFolder::expect(std::vector<FileURL> items)
{
    m_ahead = std::make_unique<RecordsAhead>(*m_records, m_status.identity, std::move(items));
}

std::expected<QByteArray, std::error_code> TrashFolder::take(const Origin &origin, Renames renames)
{
    auto ready = m_ahead ? m_ahead->take(origin.item) : std::nullopt;
    for (int tries = 0; tries < kMostTries; ++tries) {
        const auto name = ready ? std::expected<QByteArray, std::error_code>(*std::exchange(ready, std::nullopt))
                                : m_records->claim(origin.wishedName, origin.recordedPath);
        if (!name)
            return name;
        const std::error_code failure = moveIn(origin, *name, renames);
        if (!failure) {
            noteTaken(origin, *name);
            return name;
        }
        if (failure != std::errc::file_exists) {
            m_records->drop(origin.wishedName, *name);
            return std::unexpected(failure);
        }
        m_records->dropTaken(origin.wishedName, *name);
    }
    return refusal(std::errc::file_exists);
}

void TrashFolder::noteTaken(const Origin &origin, const QByteArray &name)
{
    m_hasTaken = true;
    if (!origin.isFolder)
        return;
    const QByteArray recordName = name + TrashNames::kRecordEnding.toByteArray();
    if (const auto record = statusAt(m_info.get(), recordName.constData()))
        m_added.append({.name = name, .size = 0, .recorded = record->modified.tv_sec});
}

std::error_code TrashFolder::moveIn(const Origin &origin, const QByteArray &name, Renames renames) const
{
    if (renames == Renames::exclusive) {
        if (::renameat2(origin.folder, origin.name.constData(), m_files.get(), name.constData(), RENAME_NOREPLACE) == 0)
            return {};
        if (errno != EINVAL && errno != ENOSYS)
            return lastError();
    }
    return moveOntoPlaceholder(origin, name);
}

/// A plain rename replaces what has the name, so the name is first taken by an empty item of our own. A folder only
/// ever replaces an empty folder, and the private Trash keeps others from writing into the empty file.
std::error_code TrashFolder::moveOntoPlaceholder(const Origin &origin, const QByteArray &name) const
{
    if (origin.isFolder) {
        if (::mkdirat(m_files.get(), name.constData(), kPrivate) != 0)
            return lastError();
    } else {
        const Descriptor held(
            ::openat(m_files.get(), name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (!held.isOpen())
            return lastError();
    }
    if (::renameat(origin.folder, origin.name.constData(), m_files.get(), name.constData()) == 0)
        return {};
    const std::error_code failure = lastError();
    ::unlinkat(m_files.get(), name.constData(), origin.isFolder ? AT_REMOVEDIR : 0);
    return failure;
}

void TrashFolder::forget(const QByteArray &name)
{
    ::unlinkat(m_info.get(), (name + TrashNames::kRecordEnding.toByteArray()).constData(), 0);
    m_hasForgotten = true;
}

void TrashFolder::finish()
{
    m_ahead.reset();
    if (!m_added.isEmpty() || m_hasForgotten)
        updateSizes();
    // Records and moves reach the disk together, however many there were.
    if (m_hasTaken)
        ::syncfs(m_info.get());
    m_added.clear();
    m_hasTaken = false;
    m_hasForgotten = false;
}

void TrashFolder::updateSizes()
{
    const FileURL cache = m_place.child("directorysizes");
    const auto old = FileSystem::read(cache, kMostSizesText);
    for (DirectorySizes::Line &line : m_added)
        line.size = diskUse(itemNamed(line.name));
    const QList<DirectorySizes::Line> before = old ? DirectorySizes::parse(*old) : QList<DirectorySizes::Line>{};
    const QList<DirectorySizes::Line> after = DirectorySizes::merged(before, m_added, [this](const QByteArray &name) {
        return ::faccessat(m_files.get(), name.constData(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
    });
    if (before == after)
        return;
    // The sizes are a cache that readers do without: a failure here is no failure of the removal.
    const QByteArray draft = "directorysizes." + QByteArray::number(::getpid()) + '-' +
                             QByteArray::number(reinterpret_cast<quintptr>(this), 16);
    Descriptor file(
        ::openat(m_root.get(), draft.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file.isOpen())
        return;
    const std::error_code failure = writeWholeAndClose(std::move(file), DirectorySizes::text(after));
    if (failure || ::renameat(m_root.get(), draft.constData(), m_root.get(), "directorysizes") != 0)
        ::unlinkat(m_root.get(), draft.constData(), 0);
}
