// SPDX-License-Identifier: MIT
#include "Fakes/ScratchTree.h"
#include "Platform/ReplaceFile.h"

#include <gtest/gtest.h>

namespace {

class ReplaceFileTest : public ::testing::Test
{
protected:
    static FileSystem::Attributes attributes(const FileURL &file) { return FileSystem::attributes(file).value(); }
    [[nodiscard]] qsizetype entries() const
    {
        return FileSystem::list(tree.root(), FileSystem::Hidden::include, FileSystem::Want::kinds)->size();
    }
    ScratchTree tree;
};

TEST_F(ReplaceFileTest, putsTheNewContentInThePlaceOfTheOld)
{
    const FileURL file = tree.file("file", "old");
    const auto before = attributes(file);
    ASSERT_TRUE(replaceFile(file, "new content", before));
    EXPECT_EQ(ScratchTree::content(file), "new content");
    EXPECT_NE(attributes(file).inode, before.inode) << "whoever has the old one open keeps it whole";
    EXPECT_EQ(entries(), 1);
}

TEST_F(ReplaceFileTest, keepsTheMode)
{
    for (const mode_t mode : {0600U, 0644U, 0400U, 0777U, 0640U}) {
        const FileURL file = tree.file("file" + QByteArray::number(mode), "old");
        ASSERT_EQ(::chmod(file.path().constData(), mode), 0);
        ASSERT_TRUE(replaceFile(file, "new", attributes(file)));
        EXPECT_EQ(attributes(file).permissions, mode);
    }
}

TEST_F(ReplaceFileTest, leavesAFileAloneThatHasChangedSince)
{
    const FileURL file = tree.file("file", "old");
    const auto read = attributes(file);
    tree.file("file", "somebody else's");
    EXPECT_EQ(replaceFile(file, "new", read).error(), std::errc::resource_unavailable_try_again);
    EXPECT_EQ(ScratchTree::content(file), "somebody else's");

    tree.file("other", "old");
    ASSERT_EQ(::rename(tree.at("other").path().constData(), file.path().constData()), 0);
    EXPECT_EQ(replaceFile(file, "new", read).error(), std::errc::resource_unavailable_try_again);
    EXPECT_EQ(ScratchTree::content(file), "old");
    EXPECT_EQ(entries(), 1);
}

TEST_F(ReplaceFileTest, leavesALinkAloneThatTookTheFilesPlace)
{
    const FileURL file = tree.file("file", "old");
    const auto read = attributes(file);
    ASSERT_EQ(::rename(file.path().constData(), tree.at("moved").path().constData()), 0);
    tree.link("file", "moved");
    EXPECT_FALSE(replaceFile(file, "new", read));
    EXPECT_EQ(FileSystem::attributes(file)->kind, FileSystem::Kind::link);
    EXPECT_EQ(ScratchTree::content(tree.at("moved")), "old");
    EXPECT_EQ(entries(), 2);
}

TEST_F(ReplaceFileTest, aMissingFileOrFolderIsAnError)
{
    const FileURL file = tree.file("file", "old");
    const auto read = attributes(file);
    ASSERT_EQ(::unlink(file.path().constData()), 0);
    EXPECT_EQ(replaceFile(file, "new", read).error(), std::errc::no_such_file_or_directory);
    EXPECT_EQ(replaceFile(tree.at("missing/file"), "new", read).error(), std::errc::no_such_file_or_directory);
    EXPECT_EQ(entries(), 0);
}

TEST_F(ReplaceFileTest, writesThroughALinkedFolder)
{
    const FileURL file = tree.file("folder/file", "old");
    tree.link("link", "folder");
    ASSERT_TRUE(replaceFile(tree.at("link/file"), "new", attributes(file)));
    EXPECT_EQ(ScratchTree::content(file), "new");
}

} // namespace
