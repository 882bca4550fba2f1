// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxTrashCan.h"

#include "Platform/FileSystem.h"
#include "Platform/Linux/CopyStage.h"
#include "Platform/Linux/MountTable.h"
#include "Platform/Linux/TrashError.h"
#include "Platform/Linux/TreeCopy.h"
#include "Platform/Linux/TreeRemoval.h"
#include "Platform/Places.h"

#include <QHash>

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace {

using MountPoints::Mount;
using Opened = std::expected<TrashFolder *, std::error_code>;

/// What goes with the machine's memory is no place to keep thrown away items in.
bool isInMemory(const Mount &mount)
{
    return mount.type == "tmpfs" || mount.type == "ramfs" || mount.type == "devtmpfs" || mount.type == "hugetlbfs";
}

/// The folder that holds an item, kept open for the items that follow from the same one.
struct Parent {
    FileURL url;
    Descriptor folder;
    FileURL place;                // free of links
    TrashFolder *trash = nullptr; // the Trash whose items lie here
    bool isTrashKnown = false;
};

class Batch : public TrashBatch
{
public:
    explicit Batch(const TrashEnvironment &environment)
        : m_environment(environment)
    {
    }
    ~Batch() override
    {
        for (const std::unique_ptr<TrashFolder> &folder : m_folders)
            folder->finish();
    }
    Batch(const Batch &) = delete;
    Batch &operator=(const Batch &) = delete;

    void expect(const QList<FileURL> &items) override { m_expected.assign(items.begin(), items.end()); }
    std::expected<FileURL, std::error_code> moveToTrash(const FileURL &item) override;
    std::expected<void, std::error_code> removeForGood(const FileURL &item, const CancelToken &cancel) override;

private:
    std::error_code goTo(const FileURL &folder);
    const QList<Mount> &mounts();
    Opened homeTrash();
    Opened topTrash(const Mount &mount);
    Opened keep(std::expected<TrashFolder, std::error_code> opened);
    const Mount *homeMount();
    TrashFolder *trashAround();
    bool isTrashOfOurs(const TrashFolder &trash);
    std::expected<FileURL, std::error_code> rename(TrashFolder &trash, const FileURL &item, const QByteArray &path,
                                                   const ItemStatus &status);
    std::expected<FileURL, std::error_code> copy(const FileURL &item);
    std::error_code admitCopy(TrashFolder &trash, const TreeCopy::Survey &survey, const FileURL &item,
                              QByteArray &keptName);

    const TrashEnvironment m_environment;
    std::optional<QList<Mount>> m_mounts;
    std::vector<std::unique_ptr<TrashFolder>> m_folders;
    std::optional<Opened> m_home;
    QHash<QByteArray, Opened> m_tops; // by the mount's folder
    std::optional<CopyStage> m_stage;
    Parent m_parent;
    std::vector<FileURL> m_expected; // what comes, until the first of it goes to the home folder's Trash
};

const QList<Mount> &Batch::mounts()
{
    if (!m_mounts)
        m_mounts = m_environment.mounts ? m_environment.mounts() : QList<Mount>{};
    return *m_mounts;
}

std::error_code Batch::goTo(const FileURL &folder)
{
    if (m_parent.folder.isOpen() && m_parent.url == folder)
        return {};
    auto opened = openForPassing(folder);
    if (!opened)
        return opened.error();
    m_parent = {.url = folder, .folder = *std::move(opened), .place = {}};
    // A path too long for the kernel to tell is taken at its word.
    m_parent.place = placeOf(m_parent.folder).value_or(folder);
    return {};
}

Opened Batch::keep(std::expected<TrashFolder, std::error_code> opened)
{
    if (!opened)
        return std::unexpected(opened.error());
    const auto known =
        std::ranges::find(m_folders, opened->identity(), [](const auto &folder) { return folder->identity(); });
    if (known != m_folders.end())
        return known->get();
    m_folders.push_back(std::make_unique<TrashFolder>(*std::move(opened)));
    return m_folders.back().get();
}

Opened Batch::homeTrash()
{
    if (!m_environment.homeTrash)
        return std::unexpected(std::make_error_code(std::errc::no_such_file_or_directory));
    if (!m_home)
        m_home =
            keep(TrashFolder::atHome(*m_environment.homeTrash, m_environment.user, TrashFolder::Missing::isCreated));
    return *m_home;
}

Opened Batch::topTrash(const Mount &mount)
{
    const auto known = m_tops.constFind(mount.folder.path());
    if (known != m_tops.cend())
        return *known;
    const Opened opened = keep(TrashFolder::atTop(mount.folder, m_environment.user));
    m_tops.insert(mount.folder.path(), opened);
    return opened;
}

/// The mount that the home folder's Trash lies on, or would lie on where it cannot be made.
const Mount *Batch::homeMount()
{
    if (const Opened home = homeTrash())
        return MountTable::holding(mounts(), (*home)->place());
    FileURL nearest = *m_environment.homeTrash;
    while (nearest != FileURL::root() && !FileSystem::exists(nearest))
        nearest = nearest.parent();
    return MountTable::holding(mounts(), FileSystem::resolved(nearest));
}

std::expected<FileURL, std::error_code> Batch::moveToTrash(const FileURL &item)
{
    if (!m_environment.homeTrash || item == FileURL::root())
        return std::unexpected(std::make_error_code(std::errc::operation_not_permitted));
    if (const std::error_code failure = goTo(item.parent()))
        return std::unexpected(failure);
    const auto status = statusAt(m_parent.folder.get(), item.name().constData());
    if (!status)
        return std::unexpected(status.error());
    if (status->isMountPoint.value_or(false))
        return std::unexpected(std::make_error_code(std::errc::device_or_resource_busy));
    const Mount *mount = MountTable::holding(mounts(), m_parent.place);
    const bool atHome = mount == nullptr || mount == homeMount();
    if (!atHome && isInMemory(*mount))
        return copy(item);
    const Opened trash = atHome ? homeTrash() : topTrash(*mount);
    if (!trash)
        return atHome ? std::unexpected(trash.error()) : copy(item);
    const FileURL place = m_parent.place.child(item.name());
    const QByteArray below = atHome ? QByteArray() : mount->folder.path();
    const QByteArray path = atHome ? item.path() : place.path().sliced(below.size() + (below.endsWith('/') ? 0 : 1));
    auto moved = rename(**trash, item, path, *status);
    // One mount may hold several volumes, and one volume several mounts.
    if (!moved && moved.error() == std::errc::cross_device_link)
        return copy(item);
    return moved;
}

std::expected<FileURL, std::error_code> Batch::rename(TrashFolder &trash, const FileURL &item, const QByteArray &path,
                                                      const ItemStatus &status)
{
    if (!m_expected.empty() && m_home && &trash == m_home->value_or(nullptr))
        trash.expect(std::exchange(m_expected, {}));
    const TrashFolder::Origin origin{.item = item,
                                     .folder = m_parent.folder.get(),
                                     .name = item.name(),
                                     .wishedName = item.name(),
                                     .recordedPath = path,
                                     .isFolder = status.isFolder()};
    const auto name = trash.take(origin, m_environment.renames);
    if (!name)
        return std::unexpected(name.error());
    return trash.itemNamed(*name);
}

/// The copy is whole, compared and recorded before anything of the origin goes, and it goes again when none of the
/// origin could be removed.
std::expected<FileURL, std::error_code> Batch::copy(const FileURL &item)
{
    const Opened home = homeTrash();
    if (!home)
        return std::unexpected(home.error());
    TrashFolder &trash = **home;
    const auto survey = TreeCopy::survey(m_parent.folder.get(), item.name());
    if (!survey)
        return std::unexpected(survey.error());
    struct statvfs room {
    };
    if (::fstatvfs(trash.files(), &room) != 0)
        return std::unexpected(lastError());
    const quint64 free = quint64{room.f_bavail} * room.f_frsize;
    if (survey->bytes > m_environment.copyLimit || static_cast<quint64>(survey->bytes) > free / 10)
        return std::unexpected(make_error_code(TrashError::tooLargeToCopy));

    QByteArray name;
    if (const std::error_code failure = admitCopy(trash, *survey, item, name))
        return std::unexpected(failure);
    const TreeCopy::Removal removal = TreeCopy::removeOrigin(survey->top, m_parent.folder.get());
    if (!removal.failure)
        return trash.itemNamed(name);
    // Once part of a folder is gone the copy is the only place that still has it all, so it stays.
    if (!removal.hasRemoved && !TreeRemoval::remove(trash.files(), name, CancelToken()))
        trash.forget(name);
    return std::unexpected(removal.failure);
}

std::error_code Batch::admitCopy(TrashFolder &trash, const TreeCopy::Survey &survey, const FileURL &item,
                                 QByteArray &keptName)
{
    if (!m_stage) {
        auto stage = CopyStage::in(trash.root());
        if (!stage)
            return stage.error();
        m_stage = *std::move(stage);
    }
    const QByteArray staged = m_stage->newName();
    if (const std::error_code failure = TreeCopy::copy(survey.top, m_parent.folder.get(), m_stage->folder(), staged))
        return failure;
    const auto name = trash.take({.item = item,
                                  .folder = m_stage->folder(),
                                  .name = staged,
                                  .wishedName = item.name(),
                                  .recordedPath = item.path(),
                                  .isFolder = survey.top.status.isFolder()},
                                 m_environment.renames);
    if (!name) {
        std::ignore = TreeRemoval::remove(m_stage->folder(), staged, CancelToken());
        return name.error();
    }
    keptName = *name;
    return {};
}

std::expected<void, std::error_code> Batch::removeForGood(const FileURL &item, const CancelToken &cancel)
{
    if (!m_environment.homeTrash || item == FileURL::root())
        return std::unexpected(std::make_error_code(std::errc::operation_not_permitted));
    if (const std::error_code failure = goTo(item.parent()))
        return std::unexpected(failure);
    if (const std::error_code failure = TreeRemoval::remove(m_parent.folder.get(), item.name(), cancel))
        return std::unexpected(failure);
    // The record goes last: an item without a record could no longer be restored.
    if (TrashFolder *trash = trashAround())
        trash->forget(item.name());
    return {};
}

/// The Trash whose items lie in the parent, if it is one.
TrashFolder *Batch::trashAround()
{
    if (m_parent.isTrashKnown)
        return m_parent.trash;
    m_parent.isTrashKnown = true;
    if (m_parent.place.name() != "files")
        return nullptr;
    auto trash = TrashFolder::around(m_parent.folder, m_environment.user);
    if (!trash || !isTrashOfOurs(*trash))
        return nullptr;
    m_parent.trash = keep(std::move(trash)).value_or(nullptr);
    return m_parent.trash;
}

/// A folder that merely looks like a Trash keeps its records.
bool Batch::isTrashOfOurs(const TrashFolder &trash)
{
    const auto home = targetStatusAt(AT_FDCWD, m_environment.homeTrash->path().constData());
    if (home && home->identity == trash.identity())
        return true;
    const QByteArray number = QByteArray::number(m_environment.user);
    return std::ranges::any_of(mounts(), [&](const Mount &mount) {
        return trash.place() == mount.folder.child(".Trash-" + number) ||
               trash.place() == mount.folder.child(".Trash").child(number);
    });
}

} // namespace

TrashEnvironment TrashEnvironment::ofDesktop(const Places &places)
{
    TrashEnvironment environment{.homeTrash = std::nullopt, .user = ::geteuid(), .mounts = &MountPoints::all};
    if (const auto home = places.home()) {
        const auto data = FileURL::fromPath(qgetenv("XDG_DATA_HOME"));
        environment.homeTrash = data.value_or(home->appending(".local/share")).child("Trash");
    }
    return environment;
}

LinuxTrashCan::LinuxTrashCan(TrashEnvironment environment)
    : m_environment(std::move(environment))
{
}

std::unique_ptr<TrashBatch> LinuxTrashCan::begin() const
{
    return std::make_unique<Batch>(m_environment);
}
