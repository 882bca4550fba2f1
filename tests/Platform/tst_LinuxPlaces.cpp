// SPDX-License-Identifier: MIT
#include "Fakes/FakeHost.h"
#include "Fakes/ScratchTree.h"
#include "Platform/Linux/LinuxPlaces.h"
#include "Platform/Linux/UserDirs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class LinuxPlacesTest : public ::testing::Test
{
protected:
    LinuxPlacesTest()
        : home(tree.folder("home"))
    {
        host.variables.insert("HOME", home.path());
        host.account = tree.folder("account").path();
    }
    [[nodiscard]] LinuxPlaces places() const { return LinuxPlaces(host.facts()); }
    [[nodiscard]] QList<FileURL> folders(Place place) const { return places().folders(place); }

    ScratchTree tree;
    FileURL home;
    FakeHost host;
};

FileURL url(const char *path)
{
    return FileURL::fromPath(path).value();
}

// ---- Home

TEST_F(LinuxPlacesTest, homeIsTheVariableWhenSet)
{
    EXPECT_EQ(places().home(), home);
}

TEST_F(LinuxPlacesTest, homeIsTheAccountsWhenTheVariableIsMissingOrEmpty)
{
    host.variables.remove("HOME");
    EXPECT_EQ(places().home(), tree.at("account"));
    host.variables.insert("HOME", "");
    EXPECT_EQ(places().home(), tree.at("account"));
}

TEST_F(LinuxPlacesTest, accountHomeIgnoresTheVariable)
{
    EXPECT_EQ(places().accountHome(), tree.at("account"));
    host.account = std::nullopt;
    EXPECT_EQ(places().accountHome(), std::nullopt);
}

struct BadHome {
    const char *name;
    QByteArray (*path)(const ScratchTree &);
};

class BadHomeTest : public LinuxPlacesTest, public ::testing::WithParamInterface<BadHome>
{
};

TEST_P(BadHomeTest, isNotUsableAndNeverFallsBack)
{
    const QByteArray bad = GetParam().path(tree);
    host.variables.insert("HOME", bad);
    EXPECT_EQ(places().home(), std::nullopt) << bad.toStdString();
    EXPECT_EQ(places().library(), std::nullopt);
    EXPECT_EQ(places().dataFolder(), std::nullopt);
    EXPECT_EQ(places().settingsFile(), std::nullopt);
    for (const Place place : {Place::downloads, Place::temporary, Place::trash, Place::applications})
        EXPECT_THAT(folders(place), IsEmpty());
    EXPECT_THAT(places().guarded(), Contains(FileURL::root()));

    host.account = bad;
    EXPECT_EQ(places().accountHome(), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Homes, BadHomeTest,
    ::testing::Values(BadHome{"relative", [](const ScratchTree &) { return QByteArray("home"); }},
                      BadHome{"root", [](const ScratchTree &) { return QByteArray("/"); }},
                      BadHome{"rootInDisguise", [](const ScratchTree &) { return QByteArray("//usr/.."); }},
                      BadHome{"linkToTheRoot", [](const ScratchTree &tree) { return tree.link("slash", "/").path(); }},
                      BadHome{"missing", [](const ScratchTree &tree) { return tree.at("missing").path(); }},
                      BadHome{"file", [](const ScratchTree &tree) { return tree.file("plain").path(); }},
                      BadHome{"anotherUsers",
                              [](const ScratchTree &tree) {
                                  // Root's tests hand a folder over; an ordinary user's look at root's.
                                  if (::geteuid() != 0)
                                      return QByteArray("/usr");
                                  const FileURL folder = tree.folder("theirs");
                                  OrdinaryUser::own(folder);
                                  return folder.path();
                              }}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(LinuxPlacesTest, aLinkToOnesHomeIsAHome)
{
    const FileURL link = tree.link("linked", home.path());
    host.variables.insert("HOME", link.path());
    EXPECT_EQ(places().home(), link);
}

// ---- Folders

TEST_F(LinuxPlacesTest, listsTheDocumentedFolders)
{
    const FileURL library = home.child("Library");
    EXPECT_THAT(folders(Place::downloads), ElementsAre(home.child("Downloads")));
    EXPECT_THAT(folders(Place::caches), ElementsAre(library.child("Caches")));
    EXPECT_THAT(folders(Place::logs), ElementsAre(library.child("Logs")));
    EXPECT_THAT(folders(Place::crashReports), ElementsAre(library.appending("Logs/DiagnosticReports")));
    EXPECT_THAT(folders(Place::browserCaches),
                ElementsAre(library.appending("Caches/Google/Chrome"), library.appending("Caches/Microsoft Edge"),
                            library.appending("Caches/Firefox"), library.appending("Caches/Opera Software"),
                            library.appending("Caches/BraveSoftware")));
    EXPECT_THAT(folders(Place::chatCaches),
                ElementsAre(library.appending("Containers/com.tencent.xinWeChat/Data/Library/Caches"),
                            library.appending("Containers/com.tencent.qq/Data/Library/Caches"),
                            library.appending("Containers/com.alibaba.DingTalk/Data/Library/Caches")));
    EXPECT_THAT(folders(Place::applications), ElementsAre(url("/Applications"), tree.at("account/Applications")));
    EXPECT_THAT(folders(Place::userLaunchAgents), ElementsAre(library.child("LaunchAgents")));
    EXPECT_THAT(folders(Place::systemLaunchAgents), ElementsAre(url("/Library/LaunchAgents")));
    EXPECT_THAT(folders(Place::systemLaunchDaemons), ElementsAre(url("/Library/LaunchDaemons")));
}

TEST_F(LinuxPlacesTest, applicationsOfTheAccountAreLeftOutWithoutOne)
{
    host.account = std::nullopt;
    EXPECT_THAT(folders(Place::applications), ElementsAre(url("/Applications")));
}

TEST_F(LinuxPlacesTest, trashIsTheDocumentedOneThenTheDesktops)
{
    EXPECT_THAT(folders(Place::trash), ElementsAre(home.child(".Trash"), home.appending(".local/share/Trash/files")));
    host.variables.insert("XDG_DATA_HOME", tree.at("data").path());
    EXPECT_THAT(folders(Place::trash), ElementsAre(home.child(".Trash"), tree.at("data/Trash/files")));
}

TEST_F(LinuxPlacesTest, aFolderThatIsTheSameAsAnEarlierOneCountsOnce)
{
    const FileURL files = tree.folder("home/.local/share/Trash/files");
    tree.link("home/.Trash", files.path());
    EXPECT_THAT(folders(Place::trash), ElementsAre(home.child(".Trash")));
}

TEST_F(LinuxPlacesTest, relativeAndEmptyDesktopVariablesDoNotCount)
{
    host.variables.insert("XDG_DATA_HOME", "data");
    host.variables.insert("XDG_CONFIG_HOME", "");
    EXPECT_EQ(places().dataFolder(), home.appending(".local/share/Brisko"));
    EXPECT_EQ(places().settingsFile(), home.appending(".config/Brisko/Brisko.conf"));
}

TEST_F(LinuxPlacesTest, ownFilesFollowTheDesktopVariables)
{
    host.variables.insert("XDG_DATA_HOME", "/data/me");
    host.variables.insert("XDG_CONFIG_HOME", "/config/me/");
    EXPECT_EQ(places().dataFolder(), url("/data/me/Brisko"));
    EXPECT_EQ(places().settingsFile(), url("/config/me/Brisko/Brisko.conf"));
}

// ---- The temporary folder

TEST_F(LinuxPlacesTest, temporaryFolderIsTheVariableElseTmp)
{
    EXPECT_EQ(places().temporaryFolder(), url("/tmp"));
    host.variables.insert("TMPDIR", tree.folder("temporary").path());
    EXPECT_EQ(places().temporaryFolder(), tree.at("temporary"));
    EXPECT_THAT(folders(Place::temporary), ElementsAre(tree.at("temporary")));
    host.variables.insert("TMPDIR", "relative");
    EXPECT_EQ(places().temporaryFolder(), url("/tmp"));
}

TEST_F(LinuxPlacesTest, whatHoldsTheHomeFolderIsNeverTemporary)
{
    const FileURL link = tree.link("disguise", home.path());
    for (const FileURL &bad : {FileURL::root(), home, tree.root(), tree.root().parent(), link}) {
        host.variables.insert("TMPDIR", bad.path());
        EXPECT_EQ(places().temporaryFolder(), url("/tmp")) << bad.path().toStdString();
    }
}

// ---- The download folder that the user chose

TEST_F(LinuxPlacesTest, theChosenDownloadFolderFollowsTheDocumentedOne)
{
    tree.file("home/.config/user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"$HOME/Herunter geladen\"\n");
    EXPECT_THAT(folders(Place::downloads), ElementsAre(home.child("Downloads"), home.child("Herunter geladen")));
}

TEST_F(LinuxPlacesTest, theChosenDownloadFolderIsReadFromTheConfigFolderInUse)
{
    tree.file("home/.config/user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"$HOME/old\"\n");
    tree.file("config/user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"/mnt/new\"\n");
    host.variables.insert("XDG_CONFIG_HOME", tree.at("config").path());
    EXPECT_THAT(folders(Place::downloads), ElementsAre(home.child("Downloads"), url("/mnt/new")));
}

TEST_F(LinuxPlacesTest, aDownloadFolderThatIsTheDocumentedOneCountsOnce)
{
    tree.file("home/.config/user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"$HOME/Downloads/\"\n");
    EXPECT_THAT(folders(Place::downloads), ElementsAre(home.child("Downloads")));
}

TEST_F(LinuxPlacesTest, aPipeInPlaceOfTheListOfFoldersHoldsNothingUp)
{
    tree.folder("home/.config");
    ASSERT_EQ(::mkfifo(home.appending(".config/user-dirs.dirs").path().constData(), 0600), 0);
    EXPECT_THAT(folders(Place::downloads), ElementsAre(home.child("Downloads")));
}

struct UserDirsRow {
    const char *name;
    const char *content;
    const char *expected; // null: none
};

class UserDirsTest : public ::testing::TestWithParam<UserDirsRow>
{
};

TEST_P(UserDirsTest, namesTheFolder)
{
    const auto found = UserDirs::folder(GetParam().content, "XDG_DOWNLOAD_DIR", url("/home/me"));
    if (GetParam().expected == nullptr)
        EXPECT_EQ(found, std::nullopt);
    else
        EXPECT_EQ(found, url(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, UserDirsTest,
    ::testing::Values(
        UserDirsRow{"belowHome", "XDG_DOWNLOAD_DIR=\"$HOME/Down loads\"", "/home/me/Down loads"},
        UserDirsRow{"absolute", "XDG_DOWNLOAD_DIR=\"/srv/d\"\n", "/srv/d"},
        UserDirsRow{"blanks", "  XDG_DOWNLOAD_DIR = \"/srv/d\"  \r\n", "/srv/d"},
        UserDirsRow{"escapes", R"(XDG_DOWNLOAD_DIR="$HOME/a\"b\\c\$d")", "/home/me/a\"b\\c$d"},
        UserDirsRow{"bytesAsTheyAre", "XDG_DOWNLOAD_DIR=\"$HOME/\xFF\"", "/home/me/\xFF"},
        UserDirsRow{"lastCounts", "XDG_DOWNLOAD_DIR=\"/a\"\nXDG_DOWNLOAD_DIR=\"/b\"\nXDG_DOWNLOAD_DIR=bad\n", "/b"},
        UserDirsRow{"comment", "# XDG_DOWNLOAD_DIR=\"/a\"\n", nullptr},
        UserDirsRow{"otherKey", "XDG_DESKTOP_DIR=\"/a\"\nMY_XDG_DOWNLOAD_DIR=\"/b\"", nullptr},
        UserDirsRow{"homeMeansNone", "XDG_DOWNLOAD_DIR=\"$HOME\"", nullptr},
        UserDirsRow{"homeWithSlashMeansNone", "XDG_DOWNLOAD_DIR=\"$HOME/\"", nullptr},
        UserDirsRow{"homeSpelledOutMeansNone", "XDG_DOWNLOAD_DIR=\"/home/./me\"", nullptr},
        UserDirsRow{"aboveHomeMeansNone", "XDG_DOWNLOAD_DIR=\"$HOME/..\"", nullptr},
        UserDirsRow{"rootMeansNone", "XDG_DOWNLOAD_DIR=\"/\"", nullptr},
        UserDirsRow{"noneOverridesEarlier", "XDG_DOWNLOAD_DIR=\"/a\"\nXDG_DOWNLOAD_DIR=\"$HOME/\"", nullptr},
        UserDirsRow{"escapedDollar", R"(XDG_DOWNLOAD_DIR="\$HOME/x")", nullptr},
        UserDirsRow{"otherVariable", "XDG_DOWNLOAD_DIR=\"$HOMER/x\"", nullptr},
        UserDirsRow{"relative", "XDG_DOWNLOAD_DIR=\"Downloads\"", nullptr},
        UserDirsRow{"unquoted", "XDG_DOWNLOAD_DIR=/srv/d", nullptr},
        UserDirsRow{"cutShort", "XDG_DOWNLOAD_DIR=\"/srv/d", nullptr},
        UserDirsRow{"cutShortInEscape", "XDG_DOWNLOAD_DIR=\"/srv/d\\", nullptr}, UserDirsRow{"empty", "", nullptr}),
    [](const auto &row) { return std::string(row.param.name); });

// ---- Installers and guards

TEST_F(LinuxPlacesTest, installersAreTheDocumentedOnesAndThoseOfThisDesktop)
{
    const QSet<QByteArray> expected{"dmg",        "pkg",         "mpkg", "deb", "rpm",     "flatpak",
                                    "flatpakref", "flatpakrepo", "snap", "run", "appimage"};
    EXPECT_EQ(places().installerExtensions(), expected);
}

TEST_F(LinuxPlacesTest, guardsWhatNoRemovalMayTake)
{
    tree.folder("home/Library/Caches");
    tree.file("home/Library/.hidden");
    const QList<FileURL> guarded = places().guarded();
    const FileURL data = home.appending(".local/share");
    for (const FileURL &each :
         {FileURL::root(), home, tree.root(), tree.root().parent(), tree.at("account"), home.child(".Trash"),
          data.child("Trash"), data.appending("Trash/files"), data.appending("Trash/info"), home.child("Library"),
          home.appending("Library/Caches"), home.appending("Library/.hidden"), data.child("Brisko"),
          home.appending(".config/Brisko"), home.appending(".config/Brisko/Brisko.conf")})
        EXPECT_THAT(guarded, Contains(each)) << each.path().toStdString();
    EXPECT_THAT(guarded, Not(Contains(home.child("Downloads"))));
}

TEST_F(LinuxPlacesTest, guardsTheRealHomeBehindALinkToo)
{
    host.variables.insert("HOME", tree.link("linked", home.path()).path());
    tree.folder("deep/real");
    EXPECT_THAT(places().guarded(), Contains(home));
    EXPECT_THAT(places().guarded(), Contains(tree.at("linked")));
}

TEST(HostFacts, readsThisProcess)
{
    const HostFacts facts = HostFacts::ofThisProcess();
    EXPECT_EQ(facts.user, ::geteuid());
    EXPECT_EQ(facts.variable("HOME"), qgetenv("HOME"));
    EXPECT_EQ(facts.variable("BRISKO_NO_SUCH_VARIABLE"), std::nullopt);
    // Root's account is the one that every machine has.
    EXPECT_EQ(facts.accountFolder(0), QByteArray("/root"));
    EXPECT_EQ(facts.accountFolder(4'000'000'000U), std::nullopt);
}

} // namespace
