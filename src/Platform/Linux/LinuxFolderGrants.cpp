// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxFolderGrants.h"

#include "Platform/Descriptor.h"
#include "Platform/FileSystem.h"

#include <QList>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr QByteArrayView kVersionLine = "brisko-folder-grant 1";
constexpr qsizetype kLines = 3; // the version, device and inode, the folder's URL

std::expected<FileSystem::Attributes, std::error_code> folderAttributes(const FileURL &folder)
{
    auto found = FileSystem::attributes(folder, FileSystem::Root::follow);
    if (found && found->kind != FileSystem::Kind::folder)
        return std::unexpected(std::make_error_code(std::errc::not_a_directory));
    return found;
}

QByteArray identityLine(const FileSystem::Attributes &folder)
{
    return QByteArray::number(folder.device) + ' ' + QByteArray::number(folder.inode);
}

} // namespace

std::expected<QByteArray, std::error_code> LinuxFolderGrants::makeGrant(const FileURL &folder) const
{
    const auto found = folderAttributes(folder);
    if (!found)
        return std::unexpected(found.error());
    return kVersionLine.toByteArray() + '\n' + identityLine(*found) + '\n' + folder.encoded();
}

std::optional<FolderGrants::Resolved> LinuxFolderGrants::resolve(const QByteArray &grant) const
{
    const QList<QByteArray> lines = grant.split('\n');
    if (lines.size() != kLines || lines.at(0) != kVersionLine)
        return std::nullopt;
    const std::optional<FileURL> folder = FileURL::fromEncoded(lines.at(2));
    const auto found = folder ? folderAttributes(*folder) : std::unexpected(std::error_code());
    if (!found)
        return std::nullopt;
    return Resolved{.folder = *folder, .isStale = identityLine(*found) != lines.at(1)};
}

bool LinuxFolderGrants::startAccessing(const FileURL &folder) const
{
    const auto opened = FileSystem::openItem(FileSystem::resolved(folder), O_RDONLY | O_DIRECTORY | O_NONBLOCK);
    if (!opened)
        return false;
    const Descriptor descriptor(*opened);
    // Opening takes the right to list; the right to enter is asked for as whoever runs the program in effect.
    return ::faccessat(descriptor.get(), ".", X_OK, AT_EACCESS) == 0;
}
