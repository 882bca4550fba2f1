// SPDX-License-Identifier: MIT
#include "Fakes/Closed.h"
#include "Fakes/ScratchTree.h"
#include "Platform/Linux/LinuxFolderGrants.h"

#include <gtest/gtest.h>

namespace {

class FolderGrantsTest : public ::testing::Test
{
protected:
    ScratchTree tree;
    LinuxFolderGrants grants;
};

TEST_F(FolderGrantsTest, aGrantLeadsBackToItsFolder)
{
    const FileURL folder = tree.folder("a b/\xFF\n%41");
    const auto grant = grants.makeGrant(folder);
    ASSERT_TRUE(grant);
    const auto resolved = grants.resolve(*grant);
    ASSERT_TRUE(resolved);
    EXPECT_EQ(resolved->folder, folder);
    EXPECT_FALSE(resolved->isStale);
    EXPECT_TRUE(grants.startAccessing(resolved->folder));
}

TEST_F(FolderGrantsTest, aFolderThatTookAnothersPlaceIsStale)
{
    const FileURL folder = tree.folder("folder");
    const QByteArray grant = grants.makeGrant(folder).value();
    ASSERT_EQ(::rename(folder.path().constData(), tree.at("moved").path().constData()), 0);
    tree.folder("folder");
    const auto resolved = grants.resolve(grant);
    ASSERT_TRUE(resolved);
    EXPECT_TRUE(resolved->isStale);
    EXPECT_FALSE(grants.resolve(grants.makeGrant(folder).value())->isStale);
}

TEST_F(FolderGrantsTest, aFolderThatIsGoneIsNotResolved)
{
    const FileURL folder = tree.folder("folder");
    const QByteArray grant = grants.makeGrant(folder).value();
    ASSERT_EQ(::rename(folder.path().constData(), tree.at("moved").path().constData()), 0);
    EXPECT_FALSE(grants.resolve(grant));
    tree.file("folder");
    EXPECT_FALSE(grants.resolve(grant));
}

TEST_F(FolderGrantsTest, noGrantIsMadeForWhatIsNoFolder)
{
    EXPECT_EQ(grants.makeGrant(tree.at("missing")).error(), std::errc::no_such_file_or_directory);
    EXPECT_EQ(grants.makeGrant(tree.file("file")).error(), std::errc::not_a_directory);
}

TEST_F(FolderGrantsTest, foreignRecordsAreNotResolved)
{
    const QByteArray good = grants.makeGrant(tree.folder("folder")).value();
    for (const QByteArray &bad :
         {QByteArray(), QByteArray("x"), good + '\n', good.first(good.lastIndexOf('\n')),
          QByteArray(good).replace("1\n", "2\n"), QByteArray("brisko-folder-grant 1\n1 1\n/etc"),
          QByteArray("brisko-folder-grant 1\n1 1\nfile://host/etc")})
        EXPECT_FALSE(grants.resolve(bad)) << bad.toStdString();
}

TEST_F(FolderGrantsTest, accessIsWhatCanBeListedAndEnteredNow)
{
    const FileURL folder = tree.folder("folder");
    OrdinaryUser::own(folder);
    const auto withMode = [&](mode_t mode) {
        const Closed closing(tree, folder, mode);
        const OrdinaryUser user;
        return grants.startAccessing(folder);
    };
    EXPECT_TRUE(withMode(0700));
    EXPECT_FALSE(withMode(0300));
    EXPECT_FALSE(withMode(0400));
    EXPECT_FALSE(withMode(0000));
    EXPECT_TRUE(withMode(0500));
}

TEST_F(FolderGrantsTest, accessFollowsALinkToAFolderAndToNothingElse)
{
    tree.folder("folder");
    EXPECT_TRUE(grants.startAccessing(tree.link("link", "folder")));
    EXPECT_FALSE(grants.startAccessing(tree.link("dangling", "missing")));
    EXPECT_FALSE(grants.startAccessing(tree.file("file")));
    ASSERT_EQ(::mkfifo(tree.at("pipe").path().constData(), 0600), 0);
    EXPECT_FALSE(grants.startAccessing(tree.at("pipe")));
}

TEST_F(FolderGrantsTest, thisDesktopAsksForNoConsent)
{
    EXPECT_FALSE(grants.needsConsent());
}

} // namespace
