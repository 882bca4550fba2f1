// SPDX-License-Identifier: MIT
#include "Services/RemovalGuard.h"

#include "Platform/FileSystem.h"
#include "Platform/Places.h"

#include <algorithm>
#include <optional>

namespace {

using MountPoints::Link;

bool isNumber(const QByteArray &text)
{
    return !text.isEmpty() && std::ranges::all_of(text, [](char digit) { return digit >= '0' && digit <= '9'; });
}

bool isUsersTrash(const FileURL &place)
{
    constexpr QByteArrayView prefix = ".Trash-";
    const QByteArray name = place.name();
    if (name.startsWith(prefix))
        return isNumber(name.sliced(prefix.size()));
    const QByteArray above = place.parent().name();
    return isNumber(name) && (above == ".Trash" || above == ".Trashes");
}

} // namespace

bool isTrashFolder(const FileURL &place)
{
    const QByteArray name = place.name();
    if (name == ".Trash" || name == ".Trashes" || isUsersTrash(place))
        return true;
    return (name == "files" || name == "info") && isUsersTrash(place.parent());
}

RemovalGuard::RemovalGuard(const Places &places)
    : m_hasHome(places.home().has_value())
{
    if (!m_hasHome)
        return;
    for (const FileURL &place : places.guarded())
        guard(place);
    if (const auto data = places.dataFolder())
        guardContent(*data);
    if (const auto settings = places.settingsFile()) {
        guard(*settings);
        guardContent(settings->parent());
    }
    for (const MountPoints::Mount &mount : MountPoints::all())
        m_mounts.append(mount.folder.path());
    std::ranges::sort(m_mounts);
}

void RemovalGuard::add(const FileURL &item, Link link)
{
    if (const auto found = MountPoints::look(item, link))
        m_guarded.insert(found->identity);
}

/// Guards a place, as it is named and as what that name leads to, and every folder on the way to either.
void RemovalGuard::guard(const FileURL &place)
{
    add(place, Link::itself);
    add(place, Link::target);
    for (const FileURL &spelling : {place, FileSystem::resolved(place)}) {
        for (FileURL above = spelling; above != FileURL::root() && !m_holders.contains(above.parent());) {
            above = above.parent();
            m_holders.insert(above);
            // A link on the way is as good as the folder: without it the place is no longer found.
            add(above, Link::itself);
            add(above, Link::target);
        }
    }
}

void RemovalGuard::guardContent(const FileURL &folder)
{
    guard(folder);
    if (const auto found = MountPoints::look(folder, Link::target))
        m_ours.insert(found->identity);
    // A second name or mount of one of our files or folders is recognised by what it is.
    const auto entries = FileSystem::list(folder, FileSystem::Hidden::include, FileSystem::Want::kinds);
    for (const FileSystem::Entry &entry : entries.value_or(QList<FileSystem::Entry>{}))
        add(folder.child(entry.name), Link::itself);
}

std::error_code RemovalGuard::objection(const FileURL &item)
{
    const std::error_code refusal = std::make_error_code(std::errc::operation_not_permitted);
    if (!m_hasHome || item.isEmpty() || item == FileURL::root())
        return refusal;
    const auto found = MountPoints::look(item);
    if (!found)
        return found.error();
    if (found->isMountPoint || m_guarded.contains(found->identity))
        return refusal;
    const Folder &holder = folder(item.parent());
    if (holder.isOurs)
        return refusal;
    if (!found->isFolder)
        return {};
    const FileURL place = holder.place.child(item.name());
    return holdsMount(place) || isTrashFolder(place) ? refusal : std::error_code();
}

/// Moving a folder would take along what is mounted in it.
bool RemovalGuard::holdsMount(const FileURL &place) const
{
    const QByteArray prefix = place.path() + '/';
    const auto next = std::ranges::lower_bound(m_mounts, prefix);
    return next != m_mounts.cend() && next->startsWith(prefix);
}

const RemovalGuard::Folder &RemovalGuard::folder(const FileURL &folder)
{
    const auto known = m_folders.constFind(folder);
    if (known != m_folders.cend())
        return *known;
    const FileURL place = FileSystem::resolved(folder);
    return *m_folders.insert(folder, {.place = place, .isOurs = isOurs(place)});
}

/// Whether a folder is one of ours or lies in one, found out once for each folder on the way.
bool RemovalGuard::isOurs(const FileURL &place)
{
    if (place == FileURL::root() || m_ours.isEmpty())
        return false;
    if (const auto known = m_isOurs.constFind(place); known != m_isOurs.cend())
        return *known;
    const auto found = MountPoints::look(place, Link::target);
    const bool answer = (found && m_ours.contains(found->identity)) || isOurs(place.parent());
    m_isOurs.insert(place, answer);
    return answer;
}
