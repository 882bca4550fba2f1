// SPDX-License-Identifier: MIT
#include "Fakes/ScratchTree.h"
#include "Support/OwnFiles.h"

#include <QDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>

namespace {

class OwnFilesTest : public testing::Test
{
protected:
    [[nodiscard]] QStringList names() const
    {
        return QDir(QFile::decodeName(tree.root().path()))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    static mode_t permissions(const FileURL &item)
    {
        struct stat status {
        };
        return ::lstat(item.path().constData(), &status) == 0 ? status.st_mode & 07777 : 0;
    }
    ScratchTree tree;
};

TEST_F(OwnFilesTest, readsAFileUpToTheLimit)
{
    tree.file("a", "12345");
    EXPECT_EQ(OwnFiles::read(tree.at("a"), 5), QByteArray("12345"));
    EXPECT_EQ(OwnFiles::read(tree.at("a"), 4).error(), std::errc::file_too_large);
    EXPECT_EQ(OwnFiles::read(tree.file("empty", ""), 0), QByteArray());
    const QByteArray large(200'000, 'x');
    EXPECT_EQ(OwnFiles::read(tree.file("large", large), 1 << 20), large);
}

TEST_F(OwnFilesTest, limitsWhatHasNoLengthOfItsOwn)
{
    // Files of the kernel say that they hold nothing.
    EXPECT_EQ(OwnFiles::read(FileURL::fromPath("/proc/self/maps").value(), 10).error(), std::errc::file_too_large);
}

TEST_F(OwnFilesTest, saysWhyItCannotRead)
{
    EXPECT_EQ(OwnFiles::read(tree.at("absent"), 10).error(), std::errc::no_such_file_or_directory);
    EXPECT_EQ(OwnFiles::read(tree.folder("folder"), 10).error(), std::errc::invalid_argument);
    ASSERT_EQ(::mkfifo(tree.at("pipe").path().constData(), 0600), 0);
    EXPECT_EQ(OwnFiles::read(tree.at("pipe"), 10).error(), std::errc::invalid_argument);
    EXPECT_EQ(OwnFiles::read(FileURL::fromPath("/dev/zero").value(), 10).error(), std::errc::invalid_argument);
}

TEST_F(OwnFilesTest, replacesAFileAndLeavesNothingElse)
{
    const FileURL file = tree.file("a", "old and longer");
    ASSERT_TRUE(OwnFiles::write(file, "new"));
    EXPECT_EQ(ScratchTree::content(file), "new");
    EXPECT_EQ(permissions(file), 0600U);
    EXPECT_EQ(names(), QStringList{QStringLiteral("a")});
}

TEST_F(OwnFilesTest, leavesTheOldFileWhenItCannotWriteTheNewOne)
{
    const FileURL file = tree.file("a", "old");
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // No file of this process may grow beyond a few bytes: writing ends as on a full disk.
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit few{.rlim_cur = 16, .rlim_max = 16};
        ::setrlimit(RLIMIT_FSIZE, &few);
        ::_exit(OwnFiles::write(file, QByteArray(1000, 'x')) ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(ScratchTree::content(file), "old");
    EXPECT_EQ(names(), QStringList{QStringLiteral("a")});
}

TEST_F(OwnFilesTest, saysWhyItCannotWrite)
{
    EXPECT_EQ(OwnFiles::write(tree.at("absent/a"), "x").error(), std::errc::no_such_file_or_directory);
    tree.file("folder/inside");
    EXPECT_EQ(OwnFiles::write(tree.at("folder"), "x").error(), std::errc::is_a_directory);
    EXPECT_TRUE(ScratchTree::exists(tree.at("folder/inside")));
    EXPECT_EQ(names(), QStringList{QStringLiteral("folder")});
}

TEST_F(OwnFilesTest, makesFoldersForTheUserAlone)
{
    const mode_t before = ::umask(0);
    EXPECT_TRUE(OwnFiles::makeFolder(tree.at("a/b/c")));
    ::umask(before);
    for (const char *folder : {"a", "a/b", "a/b/c"})
        EXPECT_EQ(permissions(tree.at(folder)), 0700U);
    EXPECT_TRUE(OwnFiles::makeFolder(tree.at("a/b/c")));
    tree.link("link", "a");
    EXPECT_TRUE(OwnFiles::makeFolder(tree.at("link")));
    tree.file("file");
    EXPECT_EQ(OwnFiles::makeFolder(tree.at("file")).error(), std::errc::not_a_directory);
    EXPECT_EQ(OwnFiles::makeFolder(tree.at("file/below")).error(), std::errc::not_a_directory);
}

TEST_F(OwnFilesTest, keepsAFileAsideUnderTheFirstFreeNumber)
{
    tree.file("a.broken-1", "earlier");
    const FileURL file = tree.file("a", "spoilt");
    EXPECT_EQ(OwnFiles::keepAside(file), tree.at("a.broken-2"));
    EXPECT_FALSE(ScratchTree::exists(file));
    EXPECT_EQ(ScratchTree::content(tree.at("a.broken-2")), "spoilt");
    EXPECT_EQ(ScratchTree::content(tree.at("a.broken-1")), "earlier");
}

TEST_F(OwnFilesTest, leavesNothingWhenThereIsNothingToKeepAside)
{
    EXPECT_EQ(OwnFiles::keepAside(tree.at("absent")).error(), std::errc::no_such_file_or_directory);
    tree.folder("folder");
    EXPECT_FALSE(OwnFiles::keepAside(tree.at("folder")));
    EXPECT_EQ(names(), QStringList{QStringLiteral("folder")});
}

} // namespace
