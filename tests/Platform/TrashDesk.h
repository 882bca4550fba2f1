// SPDX-License-Identifier: MIT
#pragma once

#include "Fakes/ScratchTree.h"
#include "Platform/FileSystem.h"
#include "Platform/Linux/LinuxTrashCan.h"

#include <QList>

#include <sys/stat.h>

#include <limits>
#include <memory>
#include <optional>
#include <tuple>

/// A home with its Trash, and whatever else a test pretends to be mounted.
class TrashDesk
{
public:
    TrashDesk()
    {
        // Nothing outside of the scratch tree is ever taken for the top of a mount.
        mounts = {{.folder = tree.root(), .type = "ext4"}};
        environment.homeTrash = tree.at("home/.local/share/Trash");
        environment.user = ::geteuid();
        environment.mounts = [this] { return mounts; };
        tree.folder("home");
    }

    ~TrashDesk()
    {
        // QTemporaryDir leaves behind what has no name in UTF-8.
        for (const QByteArray &name : names(tree.root()))
            std::ignore = LinuxTrashCan(environmentForCleaning()).begin()->removeForGood(tree.root().child(name), {});
    }
    TrashDesk(const TrashDesk &) = delete;
    TrashDesk &operator=(const TrashDesk &) = delete;

    FileURL mount(QByteArrayView relative, const QByteArray &type = "ext4")
    {
        const FileURL folder = tree.folder(relative);
        mounts.append({.folder = folder, .type = type});
        return folder;
    }

    [[nodiscard]] LinuxTrashCan can() const { return LinuxTrashCan(environment); }
    [[nodiscard]] std::expected<FileURL, std::error_code> trash(const FileURL &item) const
    {
        return can().begin()->moveToTrash(item);
    }
    [[nodiscard]] std::expected<void, std::error_code> remove(const FileURL &item) const
    {
        return can().begin()->removeForGood(item, CancelToken());
    }

    /// Why an item was not moved; no error when it was.
    [[nodiscard]] std::error_code trashError(const FileURL &item) const { return errorOf(trash(item)); }
    [[nodiscard]] std::error_code removalError(const FileURL &item) const { return errorOf(remove(item)); }
    template <typename T>
    [[nodiscard]] static std::error_code errorOf(const std::expected<T, std::error_code> &answer)
    {
        return answer ? std::error_code() : answer.error();
    }

    [[nodiscard]] FileURL homeTrash() const { return *environment.homeTrash; }
    [[nodiscard]] static FileURL recordOf(const FileURL &trashed)
    {
        return trashed.parent().parent().child("info").child(trashed.name() + ".trashinfo");
    }
    /// What a record says of where its item was, decoded; absent for what is no record.
    [[nodiscard]] static std::optional<QByteArray> originOf(const FileURL &trashed)
    {
        const QList<QByteArray> lines = content(recordOf(trashed)).split('\n');
        if (lines.size() != 4 || lines[0] != "[Trash Info]" || !lines[1].startsWith("Path=") ||
            !lines[2].startsWith("DeletionDate=") || !lines[3].isEmpty())
            return std::nullopt;
        return QByteArray::fromPercentEncoding(lines[1].sliced(5));
    }
    [[nodiscard]] static QByteArrayList names(const FileURL &folder)
    {
        QByteArrayList result;
        const auto entries = FileSystem::list(folder, FileSystem::Hidden::include, FileSystem::Want::kinds);
        for (const FileSystem::Entry &entry : entries.value_or(QList<FileSystem::Entry>{}))
            result.append(entry.name);
        return result;
    }
    [[nodiscard]] static QByteArray content(const FileURL &file)
    {
        return FileSystem::read(file, std::numeric_limits<qint64>::max()).value_or(QByteArray());
    }
    [[nodiscard]] static mode_t modeOf(const FileURL &item)
    {
        struct stat status {
        };
        return ::lstat(item.path().constData(), &status) == 0 ? status.st_mode & 07777 : 0;
    }

private:
    [[nodiscard]] TrashEnvironment environmentForCleaning() const
    {
        return {.homeTrash = tree.at("no Trash"), .user = ::geteuid(), .mounts = {}};
    }

public:
    ScratchTree tree;
    QList<MountPoints::Mount> mounts;
    TrashEnvironment environment;
};
