// SPDX-License-Identifier: MIT
#include "Fakes/Closed.h"
#include "Fakes/FakePlatform.h"
#include "Platform/FileSystem.h"
#include "Services/AppScanService.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AppScanServiceTest : public ::testing::Test
{
protected:
    AppScanServiceTest()
        : fake(tree.folder("home"), tree.folder("trash"))
        , first(tree.at("home/System/Applications"))
        , second(tree.at("home/Applications"))
        , library(tree.at("home/Library"))
    {
    }

    [[nodiscard]] QStringList listedNames() const
    {
        QStringList names;
        for (const InstalledApp &app : AppScanService::listApps(*fake.platform))
            names.append(app.name);
        return names;
    }
    [[nodiscard]] InstalledApp app(const QString &name, std::optional<QString> identifier) const
    {
        return {.url = second.child(name.toUtf8() + ".app"),
                .name = name,
                .bundleID = std::move(identifier),
                .version = {},
                .icon = {},
                .lastUsed = {},
                .bundleSize = {},
                .relatedFiles = {}};
    }
    [[nodiscard]] QList<RelatedFile> related(const InstalledApp &of) const
    {
        return AppScanService::computeDetails(*fake.platform, of, {}).related;
    }
    [[nodiscard]] QStringList relatedPaths(const InstalledApp &of) const
    {
        QStringList paths;
        for (const RelatedFile &file : related(of))
            paths.append(QString::fromUtf8(file.url.path().sliced(library.path().size() + 1)));
        return paths;
    }
    FileURL inLibrary(const QByteArray &path, const QByteArray &content = QByteArray(5000, 'x')) const
    {
        return tree.file("home/Library/" + path, content);
    }

    ScratchTree tree;
    FakePlatform fake;
    FileURL first;
    FileURL second;
    FileURL library;
};

// ---- Listing

TEST_F(AppScanServiceTest, aMissingRootContributesNothing)
{
    EXPECT_THAT(AppScanService::listApps(*fake.platform), IsEmpty());
    tree.folder("home/Applications/Demo.app");
    EXPECT_THAT(listedNames(), ElementsAre(u"Demo"_s));
}

TEST_F(AppScanServiceTest, listsByExtensionAloneAndExactly)
{
    for (const char *name : {"Good.app", "Foo.APP", "Foo", ".app", "Foo.app.old", ".Hidden.app"})
        tree.folder(QByteArray("home/Applications/") + name);
    tree.file("home/Applications/NoBundle.app");
    tree.folder("home/Applications/Sub/Inner.app");
    EXPECT_THAT(listedNames(), ElementsAre(u".Hidden"_s, u"Good"_s, u"NoBundle"_s));
}

TEST_F(AppScanServiceTest, whatIsNoBundleIsListedWithoutIdentifierAndVersion)
{
    tree.file("home/Applications/NoBundle.app");
    const InstalledApp found = AppScanService::listApps(*fake.platform).value(0);
    EXPECT_EQ(found.url, second.child("NoBundle.app"));
    EXPECT_EQ(found.bundleID, std::nullopt);
    EXPECT_EQ(found.version, std::nullopt);
    EXPECT_EQ(found.icon, std::nullopt);
    EXPECT_EQ(found.bundleSize, std::nullopt);
    EXPECT_THAT(found.relatedFiles, IsEmpty());
    EXPECT_FALSE(found.detailed);
}

TEST_F(AppScanServiceTest, takesOverWhatTheBundleDeclares)
{
    const FileURL bundle = tree.folder("home/Applications/Demo.app");
    const BundleInfo info{.identifier = u"org.demo"_s, .version = u"1.2"_s, .icon = bundle.child("icon")};
    fake.workspace->bundles.insert(bundle, info);
    const InstalledApp found = AppScanService::listApps(*fake.platform).value(0);
    EXPECT_EQ(found.bundleID, info.identifier);
    EXPECT_EQ(found.version, info.version);
    EXPECT_EQ(found.icon, info.icon);
}

TEST_F(AppScanServiceTest, lastUseIsTheDateOfTheLastAccess)
{
    const FileURL bundle = tree.folder("home/Applications/Demo.app");
    const QDateTime used = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123, Qt::UTC);
    const timespec times[2] = {{.tv_sec = 1'700'000'000, .tv_nsec = 123'456'789}, {.tv_sec = 1, .tv_nsec = 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, bundle.path().constData(), times, 0), 0);
    EXPECT_EQ(AppScanService::listApps(*fake.platform).value(0).lastUsed, used);
    // Our own look must not count as a use.
    EXPECT_EQ(AppScanService::listApps(*fake.platform).value(0).lastUsed, used);
}

TEST_F(AppScanServiceTest, ourOwnMeasuringIsNoUse)
{
    tree.file("home/Applications/Demo.app/Contents/file");
    const FileURL bundle = second.child("Demo.app");
    const timespec times[2] = {{.tv_sec = 1000, .tv_nsec = 0}, {.tv_sec = 2000, .tv_nsec = 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, bundle.path().constData(), times, 0), 0);
    EXPECT_TRUE(AppScanService::directorySize(bundle, {}).size);
    EXPECT_EQ(AppScanService::listApps(*fake.platform).value(0).lastUsed, QDateTime::fromSecsSinceEpoch(1000, Qt::UTC));
}

TEST_F(AppScanServiceTest, sortsBothRootsTogetherByNameWithoutCase)
{
    for (const char *name : {"zebra.app", "Apple.app", "banana.app"})
        tree.folder(QByteArray("home/System/Applications/") + name);
    for (const char *name : {"Cherry.app", "apricot.app", "Apple.app"})
        tree.folder(QByteArray("home/Applications/") + name);
    EXPECT_THAT(listedNames(), ElementsAre(u"Apple"_s, u"Apple"_s, u"apricot"_s, u"banana"_s, u"Cherry"_s, u"zebra"_s));
    const QList<InstalledApp> apps = AppScanService::listApps(*fake.platform);
    EXPECT_EQ(apps.at(0).url, first.child("Apple.app")) << "equal names keep the order of the roots";
    EXPECT_EQ(apps.at(1).url, second.child("Apple.app"));
}

TEST_F(AppScanServiceTest, anUnreadableRootIsSkipped)
{
    tree.folder("home/System/Applications/Closed.app");
    tree.folder("home/Applications/Open.app");
    const Closed closing(tree, first);
    const OrdinaryUser user;
    EXPECT_THAT(listedNames(), ElementsAre(u"Open"_s));
}

// ---- Measuring

TEST_F(AppScanServiceTest, sizeOfWhatDoesNotExist)
{
    const auto found = AppScanService::directorySize(tree.at("missing"), {});
    EXPECT_FALSE(found.exists);
    EXPECT_EQ(found.size, std::nullopt);
    EXPECT_FALSE(AppScanService::directorySize(tree.link("dangling", "missing"), {}).exists);
}

TEST_F(AppScanServiceTest, sizeOfAFileIsItsLength)
{
    EXPECT_EQ(AppScanService::directorySize(tree.file("file", "12345"), {}).size, 5);
    EXPECT_EQ(AppScanService::directorySize(tree.file("empty", ""), {}).size, 0);
    EXPECT_EQ(AppScanService::directorySize(tree.sparseFile("sparse", 1'000'000), {}).size, 1'000'000);
}

TEST_F(AppScanServiceTest, sizeOfALinkIsItsOwn)
{
    tree.file("folder/big", QByteArray(100'000, 'x'));
    const auto found = AppScanService::directorySize(tree.link("link", "folder"), {});
    EXPECT_TRUE(found.exists);
    EXPECT_EQ(found.size, 6);
}

TEST_F(AppScanServiceTest, sizeOfAFolderIsTheSpaceOfItsVisibleContent)
{
    const auto blocks = [](const FileURL &file) {
        struct stat status {
        };
        EXPECT_EQ(::lstat(file.path().constData(), &status), 0);
        return static_cast<qint64>(status.st_blocks) * 512;
    };
    const FileURL a = tree.file("folder/a", QByteArray(10'000, 'x'));
    const FileURL b = tree.file("folder/sub/deep/b", QByteArray(1, 'x'));
    tree.file("folder/.hidden", QByteArray(50'000, 'x'));
    tree.file("folder/sub/.hidden/c", QByteArray(50'000, 'x'));
    ::sync(); // blocks are given out when written
    EXPECT_EQ(AppScanService::directorySize(tree.at("folder"), {}).size, blocks(a) + blocks(b));
}

TEST_F(AppScanServiceTest, anEmptyFolderHasNoSizeAndOneThatMeasuresNothingAnUnknownOne)
{
    EXPECT_EQ(AppScanService::directorySize(tree.folder("empty"), {}).size, 0);
    tree.file("onlyHidden/.file");
    EXPECT_EQ(AppScanService::directorySize(tree.at("onlyHidden"), {}).size, 0);
    tree.file("zeros/file", "");
    const auto found = AppScanService::directorySize(tree.at("zeros"), {});
    EXPECT_TRUE(found.exists);
    EXPECT_EQ(found.size, std::nullopt);
}

TEST_F(AppScanServiceTest, aFolderThatCannotBeListedHasAnUnknownSize)
{
    const FileURL folder = tree.folder("closed");
    tree.file("closed/file", QByteArray(5000, 'x'));
    const Closed closing(tree, folder);
    const OrdinaryUser user;
    const auto found = AppScanService::directorySize(folder, {});
    EXPECT_TRUE(found.exists);
    EXPECT_EQ(found.size, std::nullopt);
}

TEST_F(AppScanServiceTest, unreadableFoldersInsideArePassedOver)
{
    tree.file("folder/open/file", QByteArray(5000, 'x'));
    const FileURL closed = tree.folder("folder/closed");
    tree.file("folder/closed/file", QByteArray(500'000, 'x'));
    const auto whole = AppScanService::directorySize(tree.at("folder"), {}).size;
    const Closed closing(tree, closed);
    const OrdinaryUser user;
    const auto part = AppScanService::directorySize(tree.at("folder"), {}).size;
    ASSERT_TRUE(whole && part);
    EXPECT_GT(*part, 0);
    EXPECT_LT(*part, *whole - 400'000);
}

// ---- Candidates

QStringList rows(const FileURL &library, const InstalledApp &app, const QList<QByteArray> &containers = {})
{
    QStringList result;
    for (const AppScanService::Candidate &each : AppScanService::candidates(library, app, containers))
        result.append(each.label + ": "_L1 + QString::fromUtf8(each.url.path().sliced(library.path().size() + 1)));
    return result;
}

TEST_F(AppScanServiceTest, candidatesAreTheDocumentedOnesInOrder)
{
    EXPECT_EQ(rows(library, app(u"Demo App"_s, u"org.demo"_s), {"A.org.demo", "org.demo", "xorg.demo", "B.org.demo"}),
              (QStringList{u"Preferences: Preferences/org.demo.plist"_s, u"Caches: Caches/org.demo"_s,
                           u"Containers: Containers/org.demo"_s, u"HTTP Storages: HTTPStorages/org.demo"_s,
                           u"WebKit: WebKit/org.demo"_s, u"Group Containers: Group Containers/org.demo"_s,
                           u"LaunchAgents: LaunchAgents/org.demo.plist"_s,
                           u"Application Support: Application Support/Demo App"_s,
                           u"Application Support: Application Support/org.demo"_s, u"Logs: Logs/Demo App"_s,
                           u"Saved Application State: Saved Application State/org.demo.savedState"_s,
                           u"Containers: Containers/A.org.demo"_s, u"Containers: Containers/B.org.demo"_s}));
}

TEST_F(AppScanServiceTest, candidatesWithoutAnIdentifierGoByTheName)
{
    EXPECT_EQ(rows(library, app(u"Demo"_s, std::nullopt), {"A.", "A.-", "x"}),
              (QStringList{u"Application Support: Application Support/Demo"_s,
                           u"Application Support: Application Support/-"_s, u"Logs: Logs/Demo"_s,
                           u"Saved Application State: Saved Application State/-.savedState"_s}));
}

TEST_F(AppScanServiceTest, namesFromInsideABundleAreNotTrusted)
{
    for (const QString &bad : {u""_s, u"."_s, u".."_s, u"a/b"_s, u"/"_s, u"../Documents"_s, u"x/../../.."_s,
                               QString(QChar(0)), u"a"_s + QChar(0), QChar(0) + u"a"_s}) {
        EXPECT_EQ(rows(library, app(u"Demo"_s, bad), {"a." + bad.toUtf8(), "a."}),
                  (QStringList{u"Application Support: Application Support/Demo"_s, u"Logs: Logs/Demo"_s}))
            << bad.toStdString();
        EXPECT_THAT(rows(library, app(bad, bad)), IsEmpty()) << bad.toStdString();
    }
}

TEST_F(AppScanServiceTest, everyCandidateLiesBelowLibraryWhateverTheNames)
{
    constexpr unsigned kSeed = 20260301;
    std::mt19937 random(kSeed); // NOLINT: a failure must be repeatable
    const QStringList pieces{u"."_s, u".."_s, u"/"_s, u"a"_s, u"Caches"_s, u"é"_s, QString(QChar(0)), u" "_s, u"-"_s};
    for (int round = 0; round < 2000; ++round) {
        QString identifier;
        QString name;
        for (auto n = random() % 5; n > 0; --n) {
            identifier += pieces.at(static_cast<qsizetype>(random() % 9));
            name += pieces.at(static_cast<qsizetype>(random() % 9));
        }
        for (const auto &each :
             AppScanService::candidates(library, app(name, identifier), {"a." + identifier.toUtf8()})) {
            // Two levels down, never Library's own folders, and clean already: no byte of it moves it elsewhere.
            EXPECT_TRUE(each.url.parent().parent() == library && FileURL::fromPath(each.url.path()) == each.url)
                << each.url.path().toStdString() << ", seed " << kSeed << ", round " << round;
        }
    }
}

// ---- Details

TEST_F(AppScanServiceTest, findsWhatAnApplicationHasLeft)
{
    tree.file("home/Applications/Demo.app/Contents/file", QByteArray(20'000, 'x'));
    inLibrary("Preferences/org.demo.plist", "12345");
    inLibrary("Caches/org.demo/a");
    inLibrary("Containers/TEAM.org.demo/a", QByteArray(50'000, 'x'));
    inLibrary("Caches/org.other/a");
    const auto details = AppScanService::computeDetails(*fake.platform, app(u"Demo"_s, u"org.demo"_s), {});
    EXPECT_GE(details.size.value_or(0), 20'000);
    ASSERT_EQ(details.related.size(), 3);
    EXPECT_EQ(details.related.at(0).name, u"Containers"_s);
    EXPECT_EQ(details.related.at(0).url, library.appending("Containers/TEAM.org.demo"));
    EXPECT_EQ(details.related.at(1).name, u"Caches"_s);
    EXPECT_EQ(
        details.related.at(2),
        (RelatedFile{.name = u"Preferences"_s, .url = library.appending("Preferences/org.demo.plist"), .size = 5}));
}

TEST_F(AppScanServiceTest, aNameThatEqualsTheIdentifierGivesOneApplicationSupportEntry)
{
    inLibrary("Application Support/demo/file");
    EXPECT_EQ(relatedPaths(app(u"demo"_s, u"demo"_s)), QStringList{u"Application Support/demo"_s});
}

TEST_F(AppScanServiceTest, anApplicationWithoutIdentifierIsFoundByItsName)
{
    inLibrary("Application Support/Demo/file");
    inLibrary("Logs/Demo/file");
    inLibrary("Caches/Demo/file");
    EXPECT_EQ(relatedPaths(app(u"Demo"_s, std::nullopt)), (QStringList{u"Application Support/Demo"_s, u"Logs/Demo"_s}));
}

TEST_F(AppScanServiceTest, emptyFoldersAndEmptyFilesAreNotReported)
{
    tree.folder("home/Library/Caches/org.demo");
    inLibrary("Preferences/org.demo.plist", "");
    EXPECT_THAT(related(app(u"Demo"_s, u"org.demo"_s)), IsEmpty());
}

TEST_F(AppScanServiceTest, anUnreadableFolderIsReportedWithoutASize)
{
    inLibrary("Caches/org.demo/file");
    inLibrary("Logs/Demo/file", "x");
    const Closed closing(tree, library.appending("Caches/org.demo"));
    const OrdinaryUser user;
    const QList<RelatedFile> found = related(app(u"Demo"_s, u"org.demo"_s));
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found.at(0).name, u"Logs"_s) << "an unknown size counts as nothing in the order";
    EXPECT_EQ(found.at(1).name, u"Caches"_s);
    EXPECT_EQ(found.at(1).size, std::nullopt);
}

TEST_F(AppScanServiceTest, equalSizesAreOrderedByLabel)
{
    inLibrary("Logs/Demo", "same");
    inLibrary("WebKit/org.demo", "same");
    inLibrary("Caches/org.demo", "same");
    QStringList labels;
    for (const RelatedFile &file : related(app(u"Demo"_s, u"org.demo"_s)))
        labels.append(file.name);
    EXPECT_EQ(labels, (QStringList{u"Caches"_s, u"Logs"_s, u"WebKit"_s}));
}

TEST_F(AppScanServiceTest, aContainersFolderThatCannotBeListedAddsNothing)
{
    inLibrary("Containers", "a file");
    inLibrary("Logs/Demo", "x");
    EXPECT_EQ(relatedPaths(app(u"Demo"_s, u"org.demo"_s)), QStringList{u"Logs/Demo"_s});
}

TEST_F(AppScanServiceTest, withoutAHomeNothingIsRelated)
{
    inLibrary("Logs/Demo", "x");
    fake.places->setHome(std::nullopt);
    EXPECT_THAT(related(app(u"Demo"_s, u"org.demo"_s)), IsEmpty());
}

TEST_F(AppScanServiceTest, stopsLookingOnceCancelled)
{
    inLibrary("Logs/Demo", "x");
    const CancelToken cancel;
    cancel.cancel();
    EXPECT_THAT(AppScanService::computeDetails(*fake.platform, app(u"Demo"_s, {}), cancel).related, IsEmpty());
}

} // namespace
