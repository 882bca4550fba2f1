// SPDX-License-Identifier: MIT
#include "Services/RemovalGuard.h"

#include "Fakes/FakePlatform.h"
#include "Fakes/ScratchTree.h"

#include <gtest/gtest.h>

namespace {

/// The fake's places with the list of guarded ones that a real system gives.
class GuardedPlaces : public FakePlaces
{
public:
    explicit GuardedPlaces(const FileURL &homeFolder)
        : FakePlaces(homeFolder)
        , m_base(homeFolder)
    {
    }
    [[nodiscard]] QList<FileURL> guarded() const override
    {
        return {FileURL::root(),
                m_base,
                m_base.child(".Trash"),
                m_base.appending(".local/share/Trash"),
                m_base.appending(".local/share/Trash/files"),
                m_base.appending(".local/share/Trash/info"),
                m_base.child("Library"),
                m_base.appending("Library/Caches"),
                m_base.appending("Library/Logs")};
    }

private:
    FileURL m_base;
};

class RemovalGuardTest : public testing::Test
{
protected:
    RemovalGuardTest()
    {
        for (const char *name :
             {".Trash", ".local/share/Trash/files", ".local/share/Trash/info", "Library/Caches", "Library/Logs"})
            m_tree.folder("base/home/" + QByteArray(name));
    }
    [[nodiscard]] bool refuses(const FileURL &item)
    {
        RemovalGuard guard(m_places);
        const std::error_code objection = guard.objection(item);
        EXPECT_TRUE(!objection || objection == std::errc::operation_not_permitted) << objection.message();
        // Asked again, with all that it remembers by now, it says the same.
        EXPECT_EQ(guard.objection(item), objection);
        return static_cast<bool>(objection);
    }

    ScratchTree m_tree;
    FileURL m_home = m_tree.folder("base/home");
    GuardedPlaces m_places{m_home};
};

TEST_F(RemovalGuardTest, letsOrdinaryItemsGo)
{
    for (const char *name : {"file", "Documents/letter", "Library/Caches/com.example/data", ".Trash/item",
                             ".local/share/Trash/files/item", ".local/share/other/file", "Libraryx", ".Trash-tools"})
        EXPECT_FALSE(refuses(m_tree.file("base/home/" + QByteArray(name)))) << name;
    EXPECT_FALSE(refuses(m_tree.at("base/home/Library/Caches/com.example")));
    EXPECT_FALSE(refuses(m_tree.file("base/beside/file").parent()));
}

TEST_F(RemovalGuardTest, refusesTheRootAndNoPathAtAll)
{
    EXPECT_TRUE(refuses(FileURL::root()));
    EXPECT_TRUE(refuses(FileURL()));
}

TEST_F(RemovalGuardTest, refusesHomeAndWhatHoldsIt)
{
    for (FileURL folder = m_home; folder != FileURL::root(); folder = folder.parent())
        EXPECT_TRUE(refuses(folder)) << folder.path().constData();
}

TEST_F(RemovalGuardTest, refusesLibraryAndItsChildrenAsWholes)
{
    for (const char *name : {"Library", "Library/Caches", "Library/Logs"})
        EXPECT_TRUE(refuses(m_home.appending(name))) << name;
}

TEST_F(RemovalGuardTest, refusesTrashFoldersAndTheirParts)
{
    for (const char *name : {".Trash", ".local/share/Trash", ".local/share/Trash/files", ".local/share/Trash/info"})
        EXPECT_TRUE(refuses(m_home.appending(name))) << name;
    for (const char *name : {"usb/.Trash", "usb/.Trash-1000", "usb/.Trash-1000/files", "usb/.Trash-1000/info",
                             "usb/.Trash/1000", "usb/.Trash/1000/files", "usb/.Trashes", "usb/.Trashes/501"})
        EXPECT_TRUE(refuses(m_tree.folder(name))) << name;
    for (const char *name : {"usb/.Trash-", "usb/.Trash-me", "usb/files", "usb/.Trash-1000/files/files", "usb/1000"})
        EXPECT_FALSE(refuses(m_tree.folder(name))) << name;
}

TEST_F(RemovalGuardTest, refusesFoldersThatHoldAGuardedPlace)
{
    EXPECT_TRUE(refuses(m_home.child(".local")));
    EXPECT_TRUE(refuses(m_home.appending(".local/share")));
}

TEST_F(RemovalGuardTest, refusesTheProgramsDataAndAllInIt)
{
    for (const char *name : {"BriskoData/activity.json", "BriskoData/deep/inside/file", "BriskoSettings/Brisko.conf",
                             "BriskoSettings/Brisko.conf.broken-1"})
        EXPECT_TRUE(refuses(m_tree.file("base/home/" + QByteArray(name)))) << name;
    for (const char *name : {"BriskoData", "BriskoData/deep", "BriskoSettings"})
        EXPECT_TRUE(refuses(m_home.appending(name))) << name;
    EXPECT_FALSE(refuses(m_tree.file("base/home/BriskoDatabase/file")));
}

TEST_F(RemovalGuardTest, isNotPassedByAnotherSpelling)
{
    EXPECT_TRUE(refuses(FileURL::fromPath(m_home.path() + "/./Documents/../Library//").value()));
    EXPECT_TRUE(refuses(FileURL::fromPath("//" + m_home.path() + "/x/../").value()));
}

TEST_F(RemovalGuardTest, isNotPassedThroughLinksInParentFolders)
{
    m_tree.file("base/home/BriskoData/activity.json");
    m_tree.link("alias", m_home.path());
    m_tree.link("base/home/again", "Library");
    for (const char *name :
         {"alias/Library", "alias/Library/Caches", "alias/.local/share/Trash/files", "base/home/again/Caches",
          "alias/again/Logs", "alias/BriskoData", "alias/BriskoData/activity.json", "alias/.local"})
        EXPECT_TRUE(refuses(m_tree.at(name))) << name;
    EXPECT_FALSE(refuses(m_tree.file("alias/Documents/letter")));
}

TEST_F(RemovalGuardTest, isNotPassedByASecondNameOfOneOfTheProgramsFiles)
{
    const FileURL file = m_tree.file("base/home/BriskoData/activity.json");
    ASSERT_EQ(::link(file.path().constData(), m_tree.at("second").path().constData()), 0);
    EXPECT_TRUE(refuses(m_tree.at("second")));
}

TEST_F(RemovalGuardTest, letsALinkToAGuardedPlaceGo)
{
    EXPECT_FALSE(refuses(m_tree.link("base/home/to-library", "Library")));
    EXPECT_FALSE(refuses(m_tree.link("base/home/to-home", m_home.path())));
    EXPECT_FALSE(refuses(m_tree.link("base/home/to-root", "/")));
    EXPECT_FALSE(refuses(m_tree.link("base/home/broken", "nowhere")));
}

TEST_F(RemovalGuardTest, refusesALinkThatStandsForAGuardedPlaceAndWhereItLeads)
{
    ScratchTree tree;
    const FileURL home = tree.folder("home");
    tree.folder("disk/library/Caches");
    tree.link("home/Library", tree.at("disk/library").path());
    GuardedPlaces places(home);
    RemovalGuard guard(places);
    for (const char *name : {"home/Library", "disk/library", "disk/library/Caches", "disk"})
        EXPECT_EQ(guard.objection(tree.at(name)), std::errc::operation_not_permitted) << name;
    EXPECT_FALSE(guard.objection(tree.file("disk/other")));
    EXPECT_FALSE(guard.objection(tree.file("disk/library/Caches/file")));
}

TEST_F(RemovalGuardTest, refusesMountPointsAndWhatHoldsThem)
{
    for (const char *name : {"/proc", "/dev", "/sys"})
        EXPECT_TRUE(refuses(FileURL::fromPath(name).value())) << name;
    const auto mounts = MountPoints::all();
    ASSERT_FALSE(mounts.isEmpty());
    for (const MountPoints::Mount &mount : mounts) {
        if (!MountPoints::look(mount.folder))
            continue; // hidden from this user
        for (FileURL folder = mount.folder; folder != FileURL::root(); folder = folder.parent())
            EXPECT_TRUE(refuses(folder)) << folder.path().constData();
    }
}

TEST_F(RemovalGuardTest, refusesEverythingWithoutAUsableHome)
{
    const FileURL file = m_tree.file("base/home/file");
    m_places.setHome(std::nullopt);
    EXPECT_TRUE(refuses(file));
    EXPECT_TRUE(refuses(m_tree.at("base/home/nothing")));
}

TEST_F(RemovalGuardTest, tellsTheSystemsErrorForWhatIsNotThere)
{
    RemovalGuard guard(m_places);
    EXPECT_EQ(guard.objection(m_tree.at("base/home/nothing")), std::errc::no_such_file_or_directory);
    EXPECT_EQ(guard.objection(m_tree.file("base/home/file").child("below")), std::errc::not_a_directory);
}

TEST_F(RemovalGuardTest, takesGuardedPlacesThatDoNotExistInItsStride)
{
    ScratchTree tree;
    GuardedPlaces places(tree.folder("home"));
    RemovalGuard guard(places);
    EXPECT_FALSE(guard.objection(tree.file("home/file")));
    EXPECT_EQ(guard.objection(tree.at("home")), std::errc::operation_not_permitted);
}

} // namespace
