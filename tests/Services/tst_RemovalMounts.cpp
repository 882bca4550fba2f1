// SPDX-License-Identifier: MIT
// Removals over real mounts, in a mount namespace of the test's own. Needs root; registered where that can be had.
#include "Fakes/FakePlatform.h"
#include "Fakes/RunTool.h"
#include "Fakes/ScratchTree.h"
#include "Platform/FileSystem.h"
#include "Platform/Linux/LinuxTrashCan.h"
#include "Services/RemovalGuard.h"
#include "Services/TrashService.h"

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>

#include <cstdio>

namespace {

class RemovalMounts : public testing::Test
{
public:
    ~RemovalMounts() override
    {
        for (; !m_mounted.isEmpty(); m_mounted.removeLast())
            EXPECT_EQ(::umount2(m_mounted.last().path().constData(), MNT_DETACH), 0);
    }

protected:
    RemovalMounts()
    {
        m_fake.places->setHome(m_home);
        auto made = std::make_shared<Platform>();
        made->places = std::make_unique<FakePlaces>(m_home);
        made->trashCan = std::make_unique<LinuxTrashCan>(
            TrashEnvironment{.homeTrash = m_trash, .user = ::geteuid(), .mounts = &MountPoints::all});
        m_platform = std::move(made);
    }

    FileURL mount(const char *type, QByteArrayView relative, const char *options)
    {
        const FileURL folder = m_tree.folder(relative);
        if (::mount(type, folder.path().constData(), type, 0, options) != 0)
            throw std::runtime_error("a file system could not be mounted");
        m_mounted.append(folder);
        return folder;
    }
    FileURL bind(const FileURL &source, const FileURL &target)
    {
        if (::mount(source.path().constData(), target.path().constData(), nullptr, MS_BIND, nullptr) != 0)
            throw std::runtime_error("a folder could not be mounted a second time");
        m_mounted.append(target);
        return target;
    }
    /// A small file system on a disk image.
    FileURL disk(QByteArrayView relative)
    {
        const FileURL folder = m_tree.folder(relative);
        const FileURL image = m_tree.sparseFile(QByteArray(relative.toByteArray() + ".img"), 16 << 20);
        runTool("mkfs.ext4", {"-q", "-F", "-m", "0", image.path()});
        runTool("mount", {"-o", "loop", image.path(), folder.path()});
        m_mounted.append(folder);
        return folder;
    }
    TrashResult trash(const FileURL &item) { return TrashService::trash(*m_platform, QList<FileURL>{item}, {}); }
    TrashResult erase(const FileURL &item) { return TrashService::deletePermanently(*m_platform, {item}, {}); }
    static std::error_code errorOf(const TrashResult &result)
    {
        return result.failed.isEmpty() ? std::error_code() : result.failed.first().error;
    }

    ScratchTree m_tree;
    FileURL m_home = m_tree.folder("home");
    FileURL m_trash = m_tree.at("home/.local/share/Trash");
    FakePlatform m_fake{m_home, m_home};
    std::shared_ptr<const Platform> m_platform;
    QList<FileURL> m_mounted;
};

TEST_F(RemovalMounts, movesWithinAnotherDiskWhereToolsFindAndRestoreIt)
{
    const FileURL top = disk("usb");
    const FileURL file = m_tree.file("usb/photos/a b.txt", "bytes");
    EXPECT_EQ(trash(file).removed, QList<FileURL>{file});
    EXPECT_EQ(ScratchTree::content(top.appending(".Trash-0/files/a b.txt")), "bytes");
    EXPECT_EQ(ScratchTree::content(top.appending(".Trash-0/info/a b.txt.trashinfo")).split('\n').value(1),
              "Path=photos/a%20b.txt");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), QFile::decodeName(m_home.path()));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), QFile::decodeName(m_home.path() + "/.local/share"));
    EXPECT_TRUE(runTool("trash-list", {}, environment).trimmed().endsWith(file.path()));
    runTool("trash-restore", {file.path()}, environment, "0\n");
    EXPECT_EQ(ScratchTree::content(file), "bytes");
}

TEST_F(RemovalMounts, copiesFromMemoryIntoTheHomeTrash)
{
    const FileURL top = mount("tmpfs", "memory", "size=1m");
    m_tree.file("memory/folder/file", "bytes");
    const FileURL folder = m_tree.at("memory/folder");
    EXPECT_EQ(trash(folder).removed, QList<FileURL>{folder});
    EXPECT_EQ(ScratchTree::content(m_trash.appending("files/folder/file")), "bytes");
    EXPECT_TRUE(FileSystem::list(top, FileSystem::Hidden::include, FileSystem::Want::kinds)->isEmpty());
}

TEST_F(RemovalMounts, leavesFilesOfOthersInStickyFoldersOfMemory)
{
    OrdinaryUser::own(m_tree.root());
    OrdinaryUser::own(m_home);
    const FileURL top = mount("tmpfs", "memory", "size=1m,mode=1777");
    const FileURL file = m_tree.file("memory/file", "bytes");
    const OrdinaryUser user;
    const LinuxTrashCan can({.homeTrash = m_trash, .user = ::geteuid(), .mounts = &MountPoints::all});
    const auto moved = can.begin()->moveToTrash(file);
    ASSERT_FALSE(moved.has_value());
    EXPECT_EQ(moved.error(), std::errc::operation_not_permitted);
    EXPECT_EQ(ScratchTree::content(file), "bytes");
    EXPECT_FALSE(ScratchTree::exists(m_trash.appending("files/file")));
    EXPECT_TRUE(ScratchTree::exists(top));
}

TEST_F(RemovalMounts, usesTheFolderOfASecondMountOfTheSameDisk)
{
    m_tree.folder("data/part");
    const FileURL second = bind(m_tree.at("data"), m_tree.folder("second"));
    const FileURL file = m_tree.file("second/part/file", "bytes");
    EXPECT_EQ(trash(file).removed, QList<FileURL>{file});
    EXPECT_EQ(ScratchTree::content(second.appending(".Trash-0/files/file")), "bytes");
}

TEST_F(RemovalMounts, saysThatAPlaceIsReadOnly)
{
    const FileURL top = mount("tmpfs", "memory", "size=1m");
    const FileURL file = m_tree.file("memory/file", "bytes");
    ASSERT_EQ(::mount(nullptr, top.path().constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
    EXPECT_EQ(errorOf(trash(file)), std::errc::read_only_file_system);
    EXPECT_EQ(errorOf(erase(file)), std::errc::read_only_file_system);
    EXPECT_EQ(ScratchTree::content(file), "bytes");
    EXPECT_FALSE(ScratchTree::exists(m_trash.appending("files/file")));

    const FileURL usb = disk("usb");
    const FileURL other = m_tree.file("usb/file", "bytes");
    ASSERT_EQ(::mount(nullptr, usb.path().constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
    EXPECT_EQ(errorOf(trash(other)), std::errc::read_only_file_system);
    EXPECT_EQ(ScratchTree::content(other), "bytes");
}

TEST_F(RemovalMounts, leavesTheItemWholeWhenTheDiskIsFull)
{
    mount("tmpfs", "home", "size=64k");
    const FileURL file = m_tree.file("home/file", "bytes");
    m_tree.folder("home/.local/share/Trash/files");
    m_tree.folder("home/.local/share/Trash/info");
    const Descriptor filler(::open(m_tree.at("home/filler").path().constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    const QByteArray page(4096, 'x');
    while (::write(filler.get(), page.constData(), 4096) > 0) {
    }
    EXPECT_EQ(errorOf(trash(file)), std::errc::no_space_on_device);
    EXPECT_EQ(ScratchTree::content(file), "bytes");
    for (const char *part : {"files", "info"})
        EXPECT_TRUE(
            FileSystem::list(m_trash.child(part), FileSystem::Hidden::include, FileSystem::Want::kinds)->isEmpty());
    ASSERT_EQ(::ftruncate(filler.get(), 0), 0);
    EXPECT_EQ(trash(file).removed, QList<FileURL>{file});
}

TEST_F(RemovalMounts, refusesMountPointsAndWhatHoldsThem)
{
    const FileURL memory = mount("tmpfs", "home/x/holder/memory", "size=1m");
    m_tree.file("home/x/holder/memory/kept");
    const FileURL target = m_tree.file("home/x/bound file");
    bind(m_tree.file("home/precious"), target);
    for (const FileURL &item : {memory, m_tree.at("home/x/holder"), m_tree.at("home/x"), target}) {
        EXPECT_EQ(errorOf(trash(item)), std::errc::operation_not_permitted) << item.path().constData();
        EXPECT_EQ(errorOf(erase(item)), std::errc::operation_not_permitted) << item.path().constData();
    }
    EXPECT_TRUE(ScratchTree::exists(memory.child("kept")));
}

TEST_F(RemovalMounts, isNotPassedByASecondMountOfAGuardedPlace)
{
    m_tree.file("home/BriskoData/activity.json");
    m_tree.file("home/Library/Caches/file");
    m_tree.folder("home/.Trash");
    const FileURL second = bind(m_home, m_tree.folder("second"));
    const FileURL data = bind(m_home.child("BriskoData"), m_tree.folder("data"));
    for (const FileURL &item :
         {second, second.child("Library"), second.child(".Trash"), second.child("BriskoData"),
          second.appending("BriskoData/activity.json"), data, data.child("activity.json"), m_tree.file("data/later")})
        EXPECT_EQ(errorOf(trash(item)), std::errc::operation_not_permitted) << item.path().constData();
    EXPECT_FALSE(errorOf(trash(second.appending("Library/Caches/file"))));
}

TEST_F(RemovalMounts, neverCrossesAMountInsideATree)
{
    // Without the guard, which would refuse such a tree as a whole.
    m_tree.file("other/kept");
    m_tree.file("tree/a/file");
    m_tree.folder("tree/a/second");
    bind(m_tree.at("other"), m_tree.at("tree/a/second"));
    const auto removed = m_platform->trashCan->begin()->removeForGood(m_tree.at("tree"), {});
    ASSERT_FALSE(removed.has_value());
    EXPECT_EQ(removed.error(), std::errc::device_or_resource_busy);
    EXPECT_TRUE(ScratchTree::exists(m_tree.at("other/kept")));
    const auto top = m_platform->trashCan->begin()->removeForGood(m_tree.at("tree/a/second"), {});
    ASSERT_FALSE(top.has_value());
    EXPECT_TRUE(ScratchTree::exists(m_tree.at("other/kept")));
    const auto moved = m_platform->trashCan->begin()->moveToTrash(m_tree.at("tree/a/second"));
    ASSERT_FALSE(moved.has_value());
    EXPECT_EQ(moved.error(), std::errc::device_or_resource_busy);
}

} // namespace

int main(int argc, char **argv)
{
    if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        std::perror("no mount namespace of its own");
        return 1;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
