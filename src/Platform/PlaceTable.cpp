// SPDX-License-Identifier: MIT
#include "Platform/PlaceTable.h"

#include "Platform/FileSystem.h"

#include <QSet>

#include <array>
#include <utility>

namespace {

constexpr std::array kDocumented = {
    PlaceRow{Place::downloads, PlaceBase::home, "Downloads"},
    PlaceRow{Place::caches, PlaceBase::library, "Caches"},
    PlaceRow{Place::logs, PlaceBase::library, "Logs"},
    PlaceRow{Place::temporary, PlaceBase::temporary, ""},
    PlaceRow{Place::trash, PlaceBase::home, ".Trash"},
    PlaceRow{Place::crashReports, PlaceBase::library, "Logs/DiagnosticReports"},
    PlaceRow{Place::browserCaches, PlaceBase::library, "Caches/Google/Chrome"},
    PlaceRow{Place::browserCaches, PlaceBase::library, "Caches/Microsoft Edge"},
    PlaceRow{Place::browserCaches, PlaceBase::library, "Caches/Firefox"},
    PlaceRow{Place::browserCaches, PlaceBase::library, "Caches/Opera Software"},
    PlaceRow{Place::browserCaches, PlaceBase::library, "Caches/BraveSoftware"},
    PlaceRow{Place::chatCaches, PlaceBase::library, "Containers/com.tencent.xinWeChat/Data/Library/Caches"},
    PlaceRow{Place::chatCaches, PlaceBase::library, "Containers/com.tencent.qq/Data/Library/Caches"},
    PlaceRow{Place::chatCaches, PlaceBase::library, "Containers/com.alibaba.DingTalk/Data/Library/Caches"},
    PlaceRow{Place::applications, PlaceBase::root, "Applications"},
    PlaceRow{Place::applications, PlaceBase::accountHome, "Applications"},
    PlaceRow{Place::userLaunchAgents, PlaceBase::library, "LaunchAgents"},
    PlaceRow{Place::systemLaunchAgents, PlaceBase::root, "Library/LaunchAgents"},
    PlaceRow{Place::systemLaunchDaemons, PlaceBase::root, "Library/LaunchDaemons"},
};

void addAncestors(const FileURL &folder, QList<FileURL> &list)
{
    for (FileURL each = folder;; each = each.parent()) {
        if (!list.contains(each))
            list.append(each);
        if (each == FileURL::root())
            return;
    }
}

} // namespace

std::span<const PlaceRow> PlaceTable::documented()
{
    return kDocumented;
}

QList<FileURL> PlaceTable::folders(std::span<const PlaceRow> rows, Place place, const Bases &bases)
{
    QList<FileURL> result;
    for (const PlaceRow &row : rows) {
        const auto base = bases.constFind(row.base);
        if (row.place == place && base != bases.cend())
            result.append(base->appending(row.below));
    }
    return result;
}

QList<FileURL> PlaceTable::eachOnce(const QList<FileURL> &folders)
{
    QList<FileURL> result;
    QSet<std::pair<quint64, quint64>> seen;
    for (const FileURL &folder : folders) {
        if (result.contains(folder))
            continue;
        if (const auto found = FileSystem::attributes(folder, FileSystem::Root::follow)) {
            const std::pair identity{found->device, found->inode};
            if (seen.contains(identity))
                continue;
            seen.insert(identity);
        }
        result.append(folder);
    }
    return result;
}

QList<FileURL> PlaceTable::withAncestors(const FileURL &folder)
{
    QList<FileURL> result;
    addAncestors(folder, result);
    addAncestors(FileSystem::resolved(folder), result);
    return result;
}

QList<FileURL> PlaceTable::documentedGuards(const Places &places)
{
    QList<FileURL> result{FileURL::root()};
    const std::optional<FileURL> home = places.home();
    for (const std::optional<FileURL> &each : {home, places.accountHome()})
        if (each)
            result += withAncestors(*each);
    if (!home)
        return result;
    const FileURL library = home->child("Library");
    result += {home->child(".Trash"), library};
    if (const auto children = FileSystem::list(library, FileSystem::Hidden::include, FileSystem::Want::kinds))
        for (const FileSystem::Entry &child : *children)
            result.append(library.child(child.name));
    return result;
}
