// SPDX-License-Identifier: MIT
#include "Fakes/Closed.h"
#include "Fakes/FakePlatform.h"
#include "Platform/FileSystem.h"
#include "Platform/Linux/LinuxPropertyList.h"
#include "Services/StartupScanService.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

QByteArray plist(const QByteArray &entries)
{
    return "<?xml version=\"1.0\"?>\n<plist version=\"1.0\"><dict>" + entries + "</dict></plist>\n";
}

/// The fake platform with real property lists.
class StartupScanServiceTest : public ::testing::Test
{
protected:
    StartupScanServiceTest()
    {
        auto places = std::make_unique<FakePlaces>(tree.folder("home"));
        auto trash = std::make_unique<FakeTrashCan>(tree.folder("trash"));
        fakePlaces = places.get();
        fakeTrash = trash.get();
        platform.places = std::move(places);
        platform.trashCan = std::move(trash);
        platform.propertyList = std::make_unique<LinuxPropertyList>();
    }

    FileURL agent(const QByteArray &name, const QByteArray &content = plist("<key>Label</key><string>x</string>")) const
    {
        return tree.file("home/Library/LaunchAgents/" + name, content);
    }
    FileURL systemDaemon(const QByteArray &name, const QByteArray &content = plist("")) const
    {
        return tree.file("system/LaunchDaemons/" + name, content);
    }
    [[nodiscard]] QList<StartupItem> scan() const { return StartupScanService::scanSync(platform); }
    [[nodiscard]] QStringList names() const
    {
        QStringList result;
        for (const StartupItem &item : scan())
            result.append(item.name);
        return result;
    }
    [[nodiscard]] StartupItem only() const
    {
        const QList<StartupItem> items = scan();
        EXPECT_EQ(items.size(), 1);
        return items.value(0);
    }

    ScratchTree tree;
    Platform platform;
    FakePlaces *fakePlaces = nullptr;
    FakeTrashCan *fakeTrash = nullptr;
};

// ---- Scanning

TEST_F(StartupScanServiceTest, missingAndUnreadableFoldersGiveNothing)
{
    EXPECT_THAT(scan(), IsEmpty());
    tree.file("home/Library/LaunchAgents", "no folder");
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(StartupScanServiceTest, listsVisibleFilesByTheirExactExtension)
{
    for (const char *name : {"good.plist", "upper.PLIST", ".hidden.plist", "other.txt", "plist", "good.plist.bak"})
        agent(name);
    EXPECT_THAT(names(), ElementsAre(u"good.plist"_s));
}

TEST_F(StartupScanServiceTest, interleavesAllFoldersByFileName)
{
    agent("b.plist");
    agent("Z.plist");
    tree.file("system/LaunchAgents/a.plist", plist(""));
    tree.file("system/LaunchAgents/b.plist", plist(""));
    systemDaemon("c.plist");
    systemDaemon("B.plist");
    const QList<StartupItem> items = scan();
    EXPECT_THAT(names(),
                ElementsAre(u"B.plist"_s, u"Z.plist"_s, u"a.plist"_s, u"b.plist"_s, u"b.plist"_s, u"c.plist"_s));
    EXPECT_EQ(items.at(0).type, StartupType::launchDaemon);
    EXPECT_EQ(items.at(2).type, StartupType::launchAgent);
    EXPECT_EQ(items.at(3).path, tree.at("home/Library/LaunchAgents/b.plist")) << "equal names keep the folders' order";
    EXPECT_EQ(items.at(4).path, tree.at("system/LaunchAgents/b.plist"));
    EXPECT_TRUE(items.at(3).isUserLevel);
    EXPECT_FALSE(items.at(4).isUserLevel);
}

TEST_F(StartupScanServiceTest, sortsNamesThatAreNotAsciiAsPlainText)
{
    agent("z.plist");
    agent("\xC3\xA9.plist");
    agent("\xFF.plist");
    const QList<StartupItem> items = scan();
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items.at(0).name, u"z.plist"_s);
    EXPECT_EQ(items.at(1).name, u"é.plist"_s);
    EXPECT_EQ(items.at(2).path.name(), "\xFF.plist");
}

TEST_F(StartupScanServiceTest, onlyTheBooleanTrueDisables)
{
    const QList<std::pair<QByteArray, bool>> cases{
        {plist("<key>Disabled</key><true/>"), false},
        {plist("<key>Disabled</key><false/>"), true},
        {plist("<key>Disabled</key><string>true</string>"), true},
        {plist("<key>Disabled</key><integer>1</integer>"), true},
        {plist("<key>disabled</key><true/>"), true},
        {plist("<key>A</key><dict><key>Disabled</key><true/></dict>"), true},
        {plist(""), true},
        {"not a property list", true},
        {"", true},
    };
    for (const auto &[content, isEnabled] : cases) {
        agent("item.plist", content);
        EXPECT_EQ(only().isEnabled, isEnabled) << content.toStdString();
    }
}

TEST_F(StartupScanServiceTest, aPipeOrAFolderHoldsNothingUp)
{
    tree.folder("home/Library/LaunchAgents/folder.plist");
    ASSERT_EQ(::mkfifo(tree.at("home/Library/LaunchAgents/pipe.plist").path().constData(), 0600), 0);
    for (const StartupItem &item : scan()) {
        EXPECT_TRUE(item.isEnabled);
        EXPECT_TRUE(StartupScanService::toggleItem(platform, item)) << "cannot be switched";
    }
    EXPECT_EQ(scan().size(), 2);
}

TEST_F(StartupScanServiceTest, anUnreadableFileCountsAsEnabledAndStaysSo)
{
    const FileURL file = agent("item.plist", plist("<key>Disabled</key><true/>"));
    const Closed closing(tree, file);
    const OrdinaryUser user;
    const StartupItem item = only();
    EXPECT_TRUE(item.isEnabled);
    EXPECT_TRUE(StartupScanService::toggleItem(platform, item));
}

TEST_F(StartupScanServiceTest, withoutAHomeNothingIsFound)
{
    agent("item.plist");
    fakePlaces->setHome(std::nullopt);
    EXPECT_THAT(scan(), IsEmpty());
}

// ---- User level

TEST_F(StartupScanServiceTest, userLevelIsThePlainBeginningOfThePath)
{
    fakePlaces->setFolders(Place::systemLaunchAgents, {tree.folder("homestead/LaunchAgents")});
    tree.file("homestead/LaunchAgents/item.plist", plist(""));
    EXPECT_TRUE(only().isUserLevel) << "a text test, not one of components";
}

TEST_F(StartupScanServiceTest, aHomeOfTheRootMakesNothingTheUsers)
{
    const FileURL file = agent("item.plist");
    fakePlaces->setFolders(Place::userLaunchAgents, {file.parent()});
    fakePlaces->setHome(FileURL::root());
    const StartupItem item = only();
    EXPECT_FALSE(item.isUserLevel);
    EXPECT_TRUE(StartupScanService::toggleItem(platform, item));
    EXPECT_FALSE(StartupScanService::removeItem(platform, item));
    EXPECT_TRUE(ScratchTree::exists(file));
}

// ---- Switching

TEST_F(StartupScanServiceTest, switchesAUsersItemOffAndOn)
{
    agent("item.plist");
    EXPECT_FALSE(StartupScanService::toggleItem(platform, only()));
    EXPECT_FALSE(only().isEnabled);
    EXPECT_TRUE(StartupScanService::toggleItem(platform, only()));
    EXPECT_TRUE(only().isEnabled);
}

TEST_F(StartupScanServiceTest, switchingKeepsTheRestOfTheFile)
{
    const FileURL file =
        agent("item.plist", plist("<!-- mine --><key>Label</key><string>x</string><key>Disabled</key><false/>"));
    EXPECT_FALSE(StartupScanService::toggleItem(platform, only()));
    EXPECT_EQ(ScratchTree::content(file),
              plist("<!-- mine --><key>Label</key><string>x</string><key>Disabled</key><true/>"));
}

TEST_F(StartupScanServiceTest, aSystemItemStaysAsItIs)
{
    const QByteArray content = plist("<key>Disabled</key><true/>");
    const FileURL file = systemDaemon("item.plist", content);
    const StartupItem item = only();
    EXPECT_FALSE(item.isEnabled);
    EXPECT_FALSE(StartupScanService::toggleItem(platform, item));
    EXPECT_EQ(ScratchTree::content(file), content);
}

TEST_F(StartupScanServiceTest, aRecordThatClaimsToBeTheUsersIsNotTrusted)
{
    const FileURL file = systemDaemon("item.plist");
    StartupItem item = only();
    item.isUserLevel = true;
    EXPECT_TRUE(StartupScanService::toggleItem(platform, item));
    EXPECT_EQ(ScratchTree::content(file), plist(""));
    EXPECT_FALSE(StartupScanService::removeItem(platform, item));
    EXPECT_TRUE(ScratchTree::exists(file));
}

TEST_F(StartupScanServiceTest, aFileThatCannotBeUnderstoodStaysAsItIs)
{
    const FileURL file = agent("item.plist", "garbage");
    EXPECT_TRUE(StartupScanService::toggleItem(platform, only()));
    EXPECT_EQ(ScratchTree::content(file), "garbage");
}

TEST_F(StartupScanServiceTest, aLinkedFileSaysWhatItIsAndIsNotSwitched)
{
    const QByteArray content = plist("<key>Disabled</key><true/>");
    const FileURL target = tree.file("elsewhere/item.plist", content);
    tree.folder("home/Library/LaunchAgents");
    tree.link("home/Library/LaunchAgents/item.plist", target.path());
    const StartupItem item = only();
    EXPECT_FALSE(item.isEnabled);
    EXPECT_FALSE(StartupScanService::toggleItem(platform, item));
    EXPECT_EQ(ScratchTree::content(target), content);
    EXPECT_TRUE(FileSystem::attributes(item.path)->kind == FileSystem::Kind::link);
}

TEST_F(StartupScanServiceTest, aFileThatCannotBeWrittenIsReportedAsItIs)
{
    const FileURL file = agent("item.plist");
    OrdinaryUser::own(file);
    OrdinaryUser::own(file.parent());
    const StartupItem item = only();
    const QByteArray before = ScratchTree::content(file);
    const Closed closing(tree, file.parent(), 0500);
    {
        const OrdinaryUser user;
        EXPECT_TRUE(StartupScanService::toggleItem(platform, item));
    }
    EXPECT_EQ(ScratchTree::content(file), before);
}

TEST_F(StartupScanServiceTest, aVanishedFileCannotBeSwitched)
{
    const FileURL file = agent("item.plist");
    const StartupItem item = only();
    ASSERT_EQ(::unlink(file.path().constData()), 0);
    EXPECT_TRUE(StartupScanService::toggleItem(platform, item));
    EXPECT_FALSE(ScratchTree::exists(file));
}

// ---- Removing

TEST_F(StartupScanServiceTest, removesAUsersItemThroughTheTrash)
{
    const FileURL file = agent("item.plist");
    EXPECT_TRUE(StartupScanService::removeItem(platform, only()));
    EXPECT_FALSE(ScratchTree::exists(file));
    EXPECT_THAT(fakeTrash->asked(), ElementsAre(file));
}

TEST_F(StartupScanServiceTest, refusesToRemoveASystemItem)
{
    const FileURL file = systemDaemon("item.plist");
    const auto outcome = StartupScanService::removeItem(platform, only());
    ASSERT_FALSE(outcome);
    EXPECT_STREQ(outcome.error().category().name(), "StartupScanService");
    EXPECT_EQ(outcome.error().value(), 1);
    EXPECT_EQ(outcome.error().message(), "Cannot remove system-level startup items");
    EXPECT_TRUE(ScratchTree::exists(file));
    EXPECT_THAT(fakeTrash->asked(), IsEmpty());
}

TEST_F(StartupScanServiceTest, passesOnTheErrorOfTheTrash)
{
    const FileURL file = agent("item.plist");
    fakeTrash->refuse(file, std::errc::read_only_file_system);
    const auto outcome = StartupScanService::removeItem(platform, only());
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error(), std::errc::read_only_file_system);
    EXPECT_TRUE(ScratchTree::exists(file));
}

TEST_F(StartupScanServiceTest, removesALinkAndLeavesWhatItLeadsTo)
{
    const FileURL target = tree.file("elsewhere/item.plist", plist(""));
    tree.folder("home/Library/LaunchAgents");
    const FileURL link = tree.link("home/Library/LaunchAgents/item.plist", target.path());
    EXPECT_TRUE(StartupScanService::removeItem(platform, only()));
    EXPECT_FALSE(ScratchTree::exists(link));
    EXPECT_TRUE(ScratchTree::exists(target));
}

TEST_F(StartupScanServiceTest, aVanishedItemIsAnError)
{
    const FileURL file = agent("item.plist");
    const StartupItem item = only();
    ASSERT_EQ(::unlink(file.path().constData()), 0);
    EXPECT_FALSE(StartupScanService::removeItem(platform, item));
}

} // namespace
