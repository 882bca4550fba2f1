// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxPlaces.h"

#include "Platform/FileSystem.h"
#include "Platform/Linux/UserDirs.h"

#include <array>

namespace {

/// This desktop's equivalents of the documented places.
constexpr std::array kDesktop = {
    PlaceRow{Place::downloads, PlaceBase::userDownloads, ""},
    PlaceRow{Place::trash, PlaceBase::dataHome, "Trash/files"},
};

constexpr std::array<const char *, 11> kInstallers = {"dmg",        "pkg",         "mpkg", "deb", "rpm",     "flatpak",
                                                      "flatpakref", "flatpakrepo", "snap", "run", "appimage"};

constexpr qint64 kMaxUserDirsBytes = 64 * 1024;

/// TMPDIR, else /tmp. A TMPDIR that is the root, the home folder or what holds it would make all of the user's old
/// files temporary ones, and so does not count.
FileURL temporaryFolderOf(const HostFacts &facts, const std::optional<FileURL> &home)
{
    FileURL fallback = FileURL::fromCleanPath("/tmp");
    const std::optional<FileURL> stated = facts.folder("TMPDIR");
    if (!stated)
        return fallback;
    QList<FileURL> forbidden{FileURL::root()};
    if (home)
        forbidden = PlaceTable::withAncestors(*home);
    const auto found = FileSystem::attributes(*stated, FileSystem::Root::follow);
    for (const FileURL &each : forbidden) {
        const auto other = FileSystem::attributes(each, FileSystem::Root::follow);
        if (*stated == each || (found && other && found->device == other->device && found->inode == other->inode))
            return fallback;
    }
    return *stated;
}

std::optional<FileURL> userDownloads(const FileURL &configHome, const FileURL &home)
{
    const auto content = FileSystem::read(FileSystem::resolved(configHome.child("user-dirs.dirs")), kMaxUserDirsBytes);
    return content ? UserDirs::folder(*content, "XDG_DOWNLOAD_DIR", home) : std::nullopt;
}

} // namespace

LinuxPlaces::LinuxPlaces(const HostFacts &facts)
    : m_home(HomeRule::home(facts))
    , m_accountHome(HomeRule::accountHome(facts))
    , m_temporary(temporaryFolderOf(facts, m_home))
{
    if (!m_home)
        return;
    const FileURL configHome = facts.folder("XDG_CONFIG_HOME").value_or(m_home->child(".config"));
    m_bases = {{PlaceBase::root, FileURL::root()},
               {PlaceBase::home, *m_home},
               {PlaceBase::library, m_home->child("Library")},
               {PlaceBase::temporary, m_temporary},
               {PlaceBase::configHome, configHome},
               {PlaceBase::dataHome, facts.folder("XDG_DATA_HOME").value_or(m_home->appending(".local/share"))}};
    if (m_accountHome)
        m_bases.insert(PlaceBase::accountHome, *m_accountHome);
    if (const std::optional<FileURL> chosen = userDownloads(configHome, *m_home))
        m_bases.insert(PlaceBase::userDownloads, *chosen);
}

QList<FileURL> LinuxPlaces::folders(Place place) const
{
    return PlaceTable::eachOnce(PlaceTable::folders(PlaceTable::documented(), place, m_bases) +
                                PlaceTable::folders(kDesktop, place, m_bases));
}

QSet<QByteArray> LinuxPlaces::installerExtensions() const
{
    return {kInstallers.begin(), kInstallers.end()};
}

QList<FileURL> LinuxPlaces::guarded() const
{
    QList<FileURL> result = PlaceTable::documentedGuards(*this);
    if (const std::optional<FileURL> trash = below(PlaceBase::dataHome, "Trash"))
        result += {*trash, trash->child("files"), trash->child("info")};
    if (const std::optional<FileURL> data = dataFolder())
        result.append(*data);
    if (const std::optional<FileURL> settings = settingsFile())
        result += {settings->parent(), *settings};
    return result;
}

std::optional<FileURL> LinuxPlaces::below(PlaceBase base, QByteArrayView path) const
{
    const auto found = m_bases.constFind(base);
    return found == m_bases.cend() ? std::nullopt : std::optional(found->appending(path));
}
