// SPDX-License-Identifier: MIT
#include "Platform/Linux/TreeRemoval.h"

#include "Fakes/ScratchTree.h"
#include "Platform/Descriptor.h"
#include "Platform/FileSystem.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <atomic>
#include <random>
#include <thread>

namespace {

Descriptor opened(const FileURL &folder)
{
    return Descriptor(::open(folder.path().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

std::error_code removed(const FileURL &item, const CancelToken &cancel = CancelToken())
{
    return TreeRemoval::remove(opened(item.parent()).get(), item.name(), cancel);
}

TEST(TreeRemoval, takesAFileALinkAndAWholeTree)
{
    ScratchTree tree;
    const FileURL file = tree.file("file");
    const FileURL link = tree.link("link", "file");
    tree.file("tree/a/b/c/.hidden");
    tree.file("tree/\xFF\n");
    tree.folder("tree/empty");
    ASSERT_EQ(::mkfifo(tree.at("tree/pipe").path().constData(), 0600), 0);
    EXPECT_FALSE(removed(link));
    EXPECT_TRUE(ScratchTree::exists(file));
    EXPECT_FALSE(removed(tree.at("tree")));
    EXPECT_FALSE(removed(file));
    EXPECT_TRUE(FileSystem::list(tree.root(), FileSystem::Hidden::include, FileSystem::Want::kinds)->isEmpty());
}

TEST(TreeRemoval, doesNotFollowLinksOutOfTheTree)
{
    ScratchTree tree;
    const FileURL kept = tree.file("outside/kept");
    tree.folder("tree");
    tree.link("tree/folder-link", tree.at("outside").path());
    tree.link("tree/file-link", kept.path());
    tree.link("tree/up", "..");
    tree.link("tree/loop", ".");
    EXPECT_FALSE(removed(tree.at("tree")));
    EXPECT_FALSE(ScratchTree::exists(tree.at("tree")));
    EXPECT_EQ(ScratchTree::content(kept), "content");
}

TEST(TreeRemoval, tellsTheSystemsErrorForWhatIsNotThere)
{
    ScratchTree tree;
    EXPECT_EQ(removed(tree.at("nothing")), std::errc::no_such_file_or_directory);
}

/// A chain of folders whose path no system call takes, made step by step.
void makeChain(const FileURL &top, int depth)
{
    Descriptor at = opened(top);
    for (int level = 0; level < depth; ++level) {
        ASSERT_EQ(::mkdirat(at.get(), "a-folder-with-a-long-name", 0755), 0);
        const Descriptor file(::openat(at.get(), "file", O_CREAT | O_WRONLY | O_CLOEXEC, 0644));
        ASSERT_TRUE(file.isOpen());
        at = Descriptor(::openat(at.get(), "a-folder-with-a-long-name", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        ASSERT_TRUE(at.isOpen());
    }
}

TEST(TreeRemoval, goesDeeperThanAnyPathWithFewDescriptors)
{
    ScratchTree tree;
    makeChain(tree.folder("deep"), 1500);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    rlimit few = before;
    few.rlim_cur = 128;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    const std::error_code failure = removed(tree.at("deep"));
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_FALSE(failure) << failure.message();
    EXPECT_FALSE(ScratchTree::exists(tree.at("deep")));
}

TEST(TreeRemoval, removesWideAndBranchingTrees)
{
    constexpr unsigned seed = 77012;
    SCOPED_TRACE(seed);
    std::mt19937 random(seed); // NOLINT: fixed so that a failure can be repeated
    ScratchTree tree;
    QList<QByteArray> folders{"top"};
    for (int i = 0; i < 600; ++i) {
        const QByteArray parent = folders[static_cast<qsizetype>(random() % static_cast<unsigned>(folders.size()))];
        const QByteArray name = parent + '/' + QByteArray::number(i);
        if (random() % 3 == 0)
            folders.append(name);
        random() % 3 == 0 ? tree.folder(name) : tree.file(folders.contains(name) ? name + "/f" : name);
    }
    for (int i = 0; i < 1000; ++i)
        tree.file("top/wide/" + QByteArray::number(i), {});
    EXPECT_FALSE(removed(tree.at("top")));
    EXPECT_FALSE(ScratchTree::exists(tree.at("top")));
}

TEST(TreeRemoval, stopsBetweenTwoEntries)
{
    ScratchTree tree;
    const FileURL file = tree.file("top/file");
    const CancelToken cancel;
    cancel.cancel();
    EXPECT_EQ(removed(tree.at("top"), cancel), std::errc::operation_canceled);
    EXPECT_TRUE(ScratchTree::exists(file));
}

TEST(TreeRemoval, stopsInTheMiddleOfATree)
{
    ScratchTree tree;
    for (int i = 0; i < 6000; ++i)
        tree.file("top/" + QByteArray::number(i), {});
    const CancelToken cancel;
    std::error_code failure;
    std::thread worker([&] { failure = removed(tree.at("top"), cancel); });
    const auto left = [&] {
        return FileSystem::list(tree.at("top"), FileSystem::Hidden::include, FileSystem::Want::kinds)->size();
    };
    while (ScratchTree::exists(tree.at("top")) && left() == 6000)
        std::this_thread::yield();
    cancel.cancel();
    worker.join();
    EXPECT_EQ(failure, std::errc::operation_canceled);
    EXPECT_GT(left(), 0);
    EXPECT_LT(left(), 6000);
}

TEST(TreeRemoval, forcesNothingThatPermissionsForbid)
{
    ScratchTree tree;
    OrdinaryUser::own(tree.root());
    tree.file("top/closed/file");
    OrdinaryUser::own(tree.at("top"));
    OrdinaryUser::own(tree.at("top/closed"));
    OrdinaryUser::own(tree.at("top/closed/file"));
    ASSERT_EQ(::chmod(tree.at("top/closed").path().constData(), 0500), 0);
    {
        const OrdinaryUser user;
        EXPECT_EQ(removed(tree.at("top")), std::errc::permission_denied);
    }
    EXPECT_TRUE(ScratchTree::exists(tree.at("top/closed/file")));
    ASSERT_EQ(::chmod(tree.at("top/closed").path().constData(), 0700), 0);
}

TEST(TreeRemoval, removesAnEmptyFolderThatMayNotBeRead)
{
    ScratchTree tree;
    OrdinaryUser::own(tree.root());
    OrdinaryUser::own(tree.folder("top"));
    OrdinaryUser::own(tree.folder("top/closed"));
    ASSERT_EQ(::chmod(tree.at("top/closed").path().constData(), 0), 0);
    const OrdinaryUser user;
    EXPECT_FALSE(removed(tree.at("top")));
    EXPECT_FALSE(ScratchTree::exists(tree.at("top")));
}

/// Swaps a folder of the tree for a link to a precious one, over and over, while the tree is removed.
TEST(TreeRemoval, isNotLedOutByAFolderThatTurnsIntoALink)
{
    ScratchTree tree;
    for (int i = 0; i < 50; ++i)
        tree.file("precious/" + QByteArray::number(i));
    tree.link("decoy", tree.at("precious").path());
    for (int round = 0; round < 8; ++round) {
        for (int i = 0; i < 40; ++i)
            tree.file("top/" + QByteArray::number(i) + "/inner/file");
        std::atomic<bool> done = false;
        std::thread swapper([&] {
            for (int i = 0; !done; i = (i + 1) % 40) {
                const QByteArray inner = tree.at("top/" + QByteArray::number(i) + "/inner").path();
                // Fails more often than not, once the folder is gone.
                std::ignore = ::renameat2(AT_FDCWD, inner.constData(), AT_FDCWD, tree.at("decoy").path().constData(),
                                          RENAME_EXCHANGE);
                std::ignore = ::renameat2(AT_FDCWD, inner.constData(), AT_FDCWD, tree.at("decoy").path().constData(),
                                          RENAME_EXCHANGE);
            }
        });
        std::ignore = removed(tree.at("top"));
        done = true;
        swapper.join();
        std::ignore = removed(tree.at("top"));
        std::ignore = removed(tree.at("decoy"));
        tree.link("decoy", tree.at("precious").path());
    }
    EXPECT_EQ(FileSystem::list(tree.at("precious"), FileSystem::Hidden::include, FileSystem::Want::kinds)->size(), 50);
}

} // namespace
