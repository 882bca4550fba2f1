// SPDX-License-Identifier: MIT
#include "Fakes/FakePlatform.h"
#include "Platform/FileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

// What every platform promises alike, held against each that this machine has: its own, and the one that other tests
// put in its place. A fake that promises something else would make those tests worthless.
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::IsEmpty;

/// An environment variable that has another value while this lives.
class Variable
{
public:
    Variable(const char *name, const QByteArray &value)
        : m_name(name)
        , m_wasSet(qEnvironmentVariableIsSet(name))
        , m_old(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~Variable()
    {
        if (m_wasSet)
            qputenv(m_name, m_old);
        else
            qunsetenv(m_name);
    }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;

private:
    const char *m_name;
    bool m_wasSet;
    QByteArray m_old;
};

struct Subject {
    std::shared_ptr<const Platform> platform;
    /// Makes a property list with one text and one boolean.
    std::function<void(const FileURL &file, const QString &text, bool boolean)> putList;
};

struct Kind {
    const char *name;
    /// A platform whose home is `home`, usable or not.
    Subject (*make)(const ScratchTree &tree, const std::optional<FileURL> &home);
};

Subject system(const ScratchTree &tree, const std::optional<FileURL> &home)
{
    const Variable homeVariable("HOME", home ? home->path() : "not/absolute");
    const Variable data("XDG_DATA_HOME", tree.at("data").path());
    const Variable config("XDG_CONFIG_HOME", tree.at("config").path());
    const Variable temporary("TMPDIR", tree.at("temporary").path());
    return {.platform = makePlatform(), .putList = [](const FileURL &file, const QString &text, bool boolean) {
                QFile list(QFile::decodeName(file.path()));
                ASSERT_TRUE(list.open(QIODevice::WriteOnly));
                list.write("<plist version=\"1.0\"><dict><key>Text</key><string>" + text.toUtf8() +
                           "</string><key>Flag</key>" + (boolean ? "<true/>" : "<false/>") + "</dict></plist>");
            }};
}

Subject fake(const ScratchTree &tree, const std::optional<FileURL> &home)
{
    const FakePlatform made(home.value_or(tree.at("home")), tree.folder("trash"));
    made.places->setHome(home);
    FakePropertyList *lists = made.propertyList;
    return {.platform = made.platform, .putList = [lists](const FileURL &file, const QString &text, bool boolean) {
                lists->tables.insert(file, {.values = {{u"Text"_s, text}, {u"Flag"_s, boolean}}});
            }};
}

class PlatformContract : public ::testing::TestWithParam<Kind>
{
protected:
    PlatformContract()
        : home(tree.folder("home"))
        , subject(GetParam().make(tree, home))
        , platform(*subject.platform)
    {
    }

    ScratchTree tree;
    FileURL home;
    Subject subject;
    const Platform &platform;
};

INSTANTIATE_TEST_SUITE_P(Platforms, PlatformContract, ::testing::Values(Kind{"system", system}, Kind{"fake", fake}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_P(PlatformContract, hasEveryPart)
{
    EXPECT_TRUE(platform.places && platform.trashCan && platform.systemFigures && platform.propertyList &&
                platform.workspace && platform.folderGrants);
}

// ---- Places

constexpr std::array kPlaces = {Place::downloads,
                                Place::caches,
                                Place::logs,
                                Place::temporary,
                                Place::trash,
                                Place::crashReports,
                                Place::browserCaches,
                                Place::chatCaches,
                                Place::applications,
                                Place::userLaunchAgents,
                                Place::systemLaunchAgents,
                                Place::systemLaunchDaemons};

TEST_P(PlatformContract, everyPlaceHasFoldersWithTheDocumentedOnesFirst)
{
    const Places &places = *platform.places;
    ASSERT_EQ(places.home(), home);
    const FileURL library = home.child("Library");
    EXPECT_EQ(places.library(), library);
    for (const Place place : kPlaces)
        EXPECT_FALSE(places.folders(place).isEmpty()) << static_cast<int>(place);
    EXPECT_EQ(places.folders(Place::downloads).value(0), home.child("Downloads"));
    EXPECT_EQ(places.folders(Place::caches).value(0), library.child("Caches"));
    EXPECT_EQ(places.folders(Place::logs).value(0), library.child("Logs"));
    EXPECT_EQ(places.folders(Place::temporary).value(0), places.temporaryFolder());
    EXPECT_EQ(places.folders(Place::trash).value(0), home.child(".Trash"));
    EXPECT_EQ(places.folders(Place::crashReports).value(0), library.appending("Logs/DiagnosticReports"));
    EXPECT_EQ(places.folders(Place::browserCaches).size(), 5);
    EXPECT_EQ(places.folders(Place::chatCaches).size(), 3);
    EXPECT_EQ(places.folders(Place::userLaunchAgents).value(0), library.child("LaunchAgents"));
}

TEST_P(PlatformContract, installersHoldTheDocumentedOnes)
{
    for (const char *extension : {"dmg", "pkg", "mpkg"})
        EXPECT_TRUE(platform.places->installerExtensions().contains(extension)) << extension;
}

TEST_P(PlatformContract, ownFilesLieInFoldersOfTheirOwnThatAreGuardedOrBelowHome)
{
    const Places &places = *platform.places;
    ASSERT_TRUE(places.dataFolder() && places.settingsFile());
    EXPECT_NE(places.dataFolder(), home);
    EXPECT_NE(places.settingsFile()->parent(), home);
    EXPECT_THAT(places.guarded(), Contains(FileURL::root()));
    EXPECT_THAT(places.guarded(), Contains(home));
    EXPECT_THAT(places.guarded(), Contains(home.child("Library")));
    EXPECT_THAT(places.guarded(), Contains(home.child(".Trash")));
}

TEST_P(PlatformContract, withoutAUsableHomeThereIsNowhereToLook)
{
    const Subject homeless = GetParam().make(tree, std::nullopt);
    const Places &places = *homeless.platform->places;
    EXPECT_EQ(places.home(), std::nullopt);
    EXPECT_EQ(places.library(), std::nullopt);
    EXPECT_EQ(places.dataFolder(), std::nullopt);
    EXPECT_EQ(places.settingsFile(), std::nullopt);
    for (const Place place : kPlaces)
        EXPECT_THAT(places.folders(place), IsEmpty()) << static_cast<int>(place);
}

// ---- Trash

TEST_P(PlatformContract, aTrashedItemLiesSomewhereElseAsItWas)
{
    const FileURL file = tree.file("home/file", "content");
    tree.file("home/folder/sub/file", "inner");
    const FileURL link = tree.link("home/link", "folder");
    const auto batch = platform.trashCan->begin();
    const auto movedFile = batch->moveToTrash(file);
    const auto movedLink = batch->moveToTrash(link);
    const auto movedFolder = batch->moveToTrash(tree.at("home/folder"));
    ASSERT_TRUE(movedFile && movedFolder && movedLink);
    EXPECT_FALSE(ScratchTree::exists(file));
    EXPECT_FALSE(ScratchTree::exists(link));
    EXPECT_FALSE(ScratchTree::exists(tree.at("home/folder")));
    EXPECT_EQ(ScratchTree::content(*movedFile), "content");
    EXPECT_EQ(ScratchTree::content(movedFolder->appending("sub/file")), "inner");
    EXPECT_EQ(FileSystem::attributes(*movedLink)->kind, FileSystem::Kind::link);
}

TEST_P(PlatformContract, twoItemsOfOneNameBothLieInTheTrash)
{
    const auto batch = platform.trashCan->begin();
    const auto first = batch->moveToTrash(tree.file("home/a/same", "one"));
    const auto second = batch->moveToTrash(tree.file("home/b/same", "two"));
    ASSERT_TRUE(first && second);
    EXPECT_EQ(ScratchTree::content(*first), "one");
    EXPECT_EQ(ScratchTree::content(*second), "two");
}

TEST_P(PlatformContract, whatIsRemovedForGoodIsGoneAndNothingBeyondIt)
{
    const FileURL beyond = tree.file("beyond/file");
    tree.file("home/folder/sub/file");
    tree.link("home/folder/sub/out", beyond.parent().path());
    const auto batch = platform.trashCan->begin();
    EXPECT_TRUE(batch->removeForGood(tree.at("home/folder"), {}));
    EXPECT_TRUE(batch->removeForGood(tree.link("home/link", beyond.path()), {}));
    EXPECT_FALSE(ScratchTree::exists(tree.at("home/folder")));
    EXPECT_FALSE(ScratchTree::exists(tree.at("home/link")));
    EXPECT_TRUE(ScratchTree::exists(beyond));
}

TEST_P(PlatformContract, whatIsMissingCannotBeRemoved)
{
    const auto batch = platform.trashCan->begin();
    EXPECT_EQ(batch->moveToTrash(tree.at("home/missing")).error(), std::errc::no_such_file_or_directory);
    EXPECT_EQ(batch->removeForGood(tree.at("home/missing"), {}).error(), std::errc::no_such_file_or_directory);
}

// ---- Property lists

TEST_P(PlatformContract, propertyListsAreReadAndSwitched)
{
    const FileURL file = home.child("item.plist");
    subject.putList(file, u"text"_s, false);
    const PropertyList &lists = *platform.propertyList;
    const auto before = lists.read(file);
    ASSERT_TRUE(before);
    EXPECT_EQ(before->text(u"Text"_s), u"text"_s);
    EXPECT_EQ(before->boolean(u"Flag"_s), false);
    EXPECT_EQ(before->boolean(u"Text"_s), std::nullopt);
    EXPECT_EQ(before->text(u"Missing"_s), std::nullopt);
    EXPECT_TRUE(lists.setBoolean(file, u"Flag"_s, true));
    EXPECT_TRUE(lists.setBoolean(file, u"Added"_s, true));
    const auto after = lists.read(file);
    ASSERT_TRUE(after);
    EXPECT_EQ(after->text(u"Text"_s), u"text"_s);
    EXPECT_EQ(after->boolean(u"Flag"_s), true);
    EXPECT_EQ(after->boolean(u"Added"_s), true);
}

TEST_P(PlatformContract, aMissingPropertyListIsAnErrorAndIsNotMade)
{
    const FileURL file = home.child("missing.plist");
    EXPECT_EQ(platform.propertyList->read(file).error(), std::errc::no_such_file_or_directory);
    EXPECT_EQ(platform.propertyList->setBoolean(file, u"Flag"_s, true).error(), std::errc::no_such_file_or_directory);
    EXPECT_FALSE(ScratchTree::exists(file));
}

// ---- Workspace and grants

TEST_P(PlatformContract, aBundleIsShownByItsNameAndAMissingOneDeclaresNothing)
{
    const FileURL bundle = home.child("Demo App.app");
    EXPECT_EQ(platform.workspace->displayName(bundle), u"Demo App"_s);
    const BundleInfo info = platform.workspace->bundleInfo(bundle);
    EXPECT_FALSE(info.identifier || info.version || info.icon);
}

TEST_P(PlatformContract, aGrantLeadsBackToItsFolder)
{
    const FileURL folder = tree.folder("home/granted \xFF");
    const auto grant = platform.folderGrants->makeGrant(folder);
    ASSERT_TRUE(grant);
    const auto resolved = platform.folderGrants->resolve(*grant);
    ASSERT_TRUE(resolved);
    EXPECT_EQ(resolved->folder, folder);
    EXPECT_FALSE(resolved->isStale);
    EXPECT_TRUE(platform.folderGrants->startAccessing(folder));
    EXPECT_FALSE(platform.folderGrants->startAccessing(home.child("missing")));
    EXPECT_FALSE(platform.folderGrants->resolve("garbage"));
}

// ---- Figures: samples are the machine's own, but what is there makes sense

TEST_P(PlatformContract, figuresThatAreThereMakeSense)
{
    const SystemFigures &figures = *platform.systemFigures;
    if (const auto pages = figures.memoryPages()) {
        EXPECT_GT(pages->pageSize, 0U);
    }
    EXPECT_GE(figures.physicalMemory(), 0);
    EXPECT_GE(figures.availableDisk().value_or(0), 0);
    for (const Sensor &sensor : figures.sensors({.product = u"no such sensor"_s, .usagePage = 0, .usage = 0}))
        ADD_FAILURE() << sensor.product.toStdString();
}

} // namespace
