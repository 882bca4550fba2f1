// SPDX-License-Identifier: MIT
#include "Services/ScanRules.h"

#include "Fakes/ScratchTree.h"

#include <gtest/gtest.h>

namespace {

using ScanRules::deduplicateFolders;
using ScanRules::isOpaque;

TEST(DeduplicateFolders, DropsAFolderInsideAnEarlierOne)
{
    const ScratchTree tree;
    const FileURL movies = tree.folder("Movies");
    const FileURL clips = tree.folder("Movies/Clips");
    EXPECT_EQ(deduplicateFolders({movies, clips}), QList<FileURL>{movies});
    EXPECT_EQ(deduplicateFolders({movies, movies}), QList<FileURL>{movies});
}

TEST(DeduplicateFolders, LetsAFolderTakeThePlaceOfTheFirstThatItSwallows)
{
    const ScratchTree tree;
    const FileURL a = tree.folder("a");
    const FileURL b = tree.folder("b");
    const FileURL one = tree.folder("b/one");
    const FileURL two = tree.folder("b/two");
    const FileURL c = tree.folder("c");
    EXPECT_EQ(deduplicateFolders({a, one, c, two, b}), (QList<FileURL>{a, b, c}));
    EXPECT_EQ(deduplicateFolders({one, two}), (QList<FileURL>{one, two}));
}

TEST(DeduplicateFolders, TellsAFolderFromOneWhoseNameOnlyBeginsAlike)
{
    const ScratchTree tree;
    const QList<FileURL> folders{tree.folder("Movies"), tree.folder("Movies 2"), tree.folder("Mov")};
    EXPECT_EQ(deduplicateFolders(folders), folders);
}

TEST(DeduplicateFolders, ResolvesLinksFirst)
{
    const ScratchTree tree;
    const FileURL real = tree.folder("real/inner");
    const FileURL link = tree.link("link", "real");
    EXPECT_EQ(deduplicateFolders({link}), QList<FileURL>{tree.at("real")});
    EXPECT_EQ(deduplicateFolders({link.child("inner"), tree.at("real")}), QList<FileURL>{tree.at("real")});
    EXPECT_EQ(deduplicateFolders({real, link.child("inner")}), QList<FileURL>{real});
}

TEST(DeduplicateFolders, KeepsAFolderThatIsNotThere)
{
    const ScratchTree tree;
    EXPECT_EQ(deduplicateFolders({tree.at("none")}), QList<FileURL>{tree.at("none")});
    EXPECT_EQ(deduplicateFolders({}), QList<FileURL>{});
    EXPECT_EQ(deduplicateFolders({tree.folder("a"), FileURL::root()}), QList<FileURL>{FileURL::root()});
}

TEST(IsOpaque, KnowsLibrariesAndBundlesByTheExactEnding)
{
    for (const char *name : {"a.photoslibrary", "a.photolibrary", "a.imovielibrary", "a.theater", "a.musiclibrary",
                             "a.aplibrary", "a.fcpbundle", "a.migratedphotolibrary", "a.coverartlibrary", "a.app",
                             "a.bundle", "a.framework", "a.xpc", ".app", "a.b.app", "\xff.app"})
        EXPECT_TRUE(isOpaque(name)) << name;
    for (const char *name :
         {"", "app", "a.App", "a.APP", "a.apps", "a.app.zip", "aapp", "a.app ", "a.", "photoslibrary"})
        EXPECT_FALSE(isOpaque(name)) << name;
}

} // namespace
