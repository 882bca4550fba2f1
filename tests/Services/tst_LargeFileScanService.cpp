// SPDX-License-Identifier: MIT
#include "Services/LargeFileScanService.h"

#include "Fakes/RandomTree.h"
#include "Fakes/ScratchTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

namespace {

using LargeFileScanService::scanSync;

constexpr qint64 kMiB = 1024 * 1024;

QList<FileURL> urlsOf(const QList<LargeFile> &files)
{
    QList<FileURL> urls;
    for (const LargeFile &file : files)
        urls.append(file.url);
    return urls;
}

QList<FileURL> found(const QList<FileURL> &folders, qint64 minSize = 100 * kMiB)
{
    return urlsOf(scanSync({.folders = folders, .minSize = minSize}, {}, {}));
}

TEST(LargeFileScan, ReportsAFileOnceWhenAFolderAndOneInsideItAreChosen)
{
    const ScratchTree tree;
    const FileURL film = tree.sparseFile("Movies/film", 200 * kMiB);
    const FileURL clip = tree.sparseFile("Movies/Clips/clip", 300 * kMiB);
    EXPECT_EQ(found({tree.at("Movies"), tree.at("Movies/Clips")}), (QList<FileURL>{clip, film}));
    EXPECT_EQ(found({tree.at("Movies/Clips"), tree.at("Movies")}), (QList<FileURL>{clip, film}));
}

TEST(LargeFileScan, NeverTakesMediaLibrariesAndBundlesApart)
{
    const ScratchTree tree;
    tree.sparseFile("Holiday.photoslibrary/originals/film", 200 * kMiB);
    tree.sparseFile("Tool.app/Contents/data", 200 * kMiB);
    tree.sparseFile("deep/Kit.framework/data", 200 * kMiB);
    tree.sparseFile("history.bundle", 200 * kMiB); // a plain file of such a name does not count either
    const FileURL plain = tree.sparseFile("Holiday.PhotosLibrary/film", 200 * kMiB);
    EXPECT_EQ(found({tree.root()}), QList<FileURL>{plain});
}

TEST(LargeFileScan, ListsNothingBelowAnyFolderNamedLibrary)
{
    const ScratchTree tree;
    tree.sparseFile("Library/file", 200 * kMiB);
    tree.sparseFile("a/b/Library/c/file", 200 * kMiB);
    tree.sparseFile("a/.Trash/file", 200 * kMiB);
    tree.sparseFile("b/Library", 200 * kMiB); // no folder at all
    const FileURL other = tree.sparseFile("a/library/file", 200 * kMiB);
    EXPECT_EQ(found({tree.root()}), QList<FileURL>{other});
}

TEST(LargeFileScan, EntersAChosenFolderWhateverItsName)
{
    const ScratchTree tree;
    const FileURL file = tree.sparseFile(".hidden/Library/file", 200 * kMiB);
    EXPECT_EQ(found({tree.at(".hidden/Library")}), QList<FileURL>{file});
}

TEST(LargeFileScan, ListsAFileOfExactlyTheMinimumAndNoneOfAByteLess)
{
    const ScratchTree tree;
    const FileURL exact = tree.sparseFile("exact", 100 * kMiB);
    tree.sparseFile("less", 100 * kMiB - 1);
    EXPECT_EQ(found({tree.root()}), QList<FileURL>{exact});
    EXPECT_EQ(found({tree.root()}, 0).size(), 2);
    EXPECT_EQ(LargeFileScanService::kDefaultMinSize, 100 * kMiB);
}

TEST(LargeFileScan, SkipsHiddenEntriesLinksAndPipes)
{
    const ScratchTree tree;
    const FileURL file = tree.sparseFile("file", 200 * kMiB);
    tree.sparseFile(".hidden", 200 * kMiB);
    tree.sparseFile(".folder/file", 200 * kMiB);
    tree.link("link", "file");
    tree.link("loop", ".");
    ASSERT_EQ(::mkfifo(tree.at("pipe").path().constData(), 0600), 0);
    EXPECT_EQ(found({tree.root()}, 0), QList<FileURL>{file});
}

TEST(LargeFileScan, PutsTheLargestFirstAndEqualSizesInTheOrderFound)
{
    const ScratchTree tree;
    tree.sparseFile("one/a", 3 * kMiB);
    tree.sparseFile("one/b", 5 * kMiB);
    tree.sparseFile("two/a", 5 * kMiB);
    tree.sparseFile("two/b", 7 * kMiB);
    const QList<FileURL> order = found({tree.at("two"), tree.at("one")}, kMiB);
    EXPECT_EQ(order, (QList<FileURL>{tree.at("two/b"), tree.at("two/a"), tree.at("one/b"), tree.at("one/a")}));
}

TEST(LargeFileScan, CarriesSizesAndDates)
{
    const ScratchTree tree;
    const FileURL file = tree.sparseFile("file", 123 * kMiB + 7);
    const QDateTime when = QDateTime::fromMSecsSinceEpoch(1'234'567'890'123, Qt::UTC);
    ScratchTree::setModified(file, when);
    EXPECT_EQ(scanSync({.folders = {tree.root()}}, {}, {}),
              (QList<LargeFile>{{.url = file, .size = 123 * kMiB + 7, .modified = when}}));
}

TEST(LargeFileScan, AnswersResolvedPathsForALinkedFolder)
{
    const ScratchTree tree;
    const FileURL file = tree.sparseFile("real/file", 200 * kMiB);
    const FileURL link = tree.link("link", "real");
    EXPECT_EQ(found({link, tree.at("real")}), QList<FileURL>{file});
}

TEST(LargeFileScan, SkipsWhatIsMissingOrCannotBeRead)
{
    const ScratchTree tree;
    const FileURL file = tree.sparseFile("open/file", 200 * kMiB);
    tree.sparseFile("closed/file", 200 * kMiB);
    for (const char *item : {"", "open", "closed"})
        OrdinaryUser::own(tree.at(item));
    ASSERT_EQ(::chmod(tree.at("closed").path().constData(), 0), 0);
    {
        const OrdinaryUser user;
        EXPECT_EQ(found({tree.at("none"), tree.root()}), QList<FileURL>{file});
        EXPECT_EQ(found({tree.at("closed")}), QList<FileURL>{});
        EXPECT_EQ(found({file}), QList<FileURL>{}); // no folder
    }
    ::chmod(tree.at("closed").path().constData(), 0700);
    EXPECT_EQ(found({}), QList<FileURL>{});
}

TEST(LargeFileScan, ReportsProgressEveryFiveHundredCheckedFiles)
{
    const ScratchTree tree;
    for (int i = 0; i < 1'010; ++i)
        tree.file("folder" + QByteArray::number(i % 7) + "/file" + QByteArray::number(i), "");
    tree.file("Library/file");
    QStringList texts;
    EXPECT_EQ(scanSync({.folders = {tree.root()}}, [&](const QString &text) { texts.append(text); }, {}).size(), 0);
    EXPECT_EQ(texts,
              (QStringList{QStringLiteral("Scanning for large files…"), QStringLiteral("Scanning… 500 files checked"),
                           QStringLiteral("Scanning… 1,000 files checked")}));
}

TEST(LargeFileScan, StopsWhenCancelled)
{
    const ScratchTree tree;
    for (int i = 0; i < 1'500; ++i)
        tree.file("file" + QByteArray::number(i), "");
    const CancelToken cancel;
    int texts = 0;
    const auto partial = scanSync(
        {.folders = {tree.root()}, .minSize = 0},
        [&](const QString &) {
            if (++texts == 2) // the first five hundred are checked
                cancel.cancel();
        },
        cancel);
    EXPECT_EQ(partial.size(), 500);
    EXPECT_EQ(texts, 2);
}

/// The same question put to find(1), with names apart by NUL bytes.
QList<FileURL> askFind(const FileURL &root, qint64 minSize)
{
    const QByteArray command = "find '" + root.path() + "' -mindepth 1 \\( -name '.*' -o -name Library" +
                               " -o -name '*.app' -o -name '*.photoslibrary' \\) -prune -o -type f -size +" +
                               QByteArray::number(minSize - 1) + "c -print0";
    FILE *shell = ::popen(command.constData(), "re");
    QByteArray all;
    char part[4096];
    for (size_t got; (got = std::fread(part, 1, sizeof part, shell)) > 0;)
        all.append(part, static_cast<qsizetype>(got));
    EXPECT_EQ(::pclose(shell), 0);
    QList<FileURL> urls;
    for (const QByteArray &path : all.split('\0')) {
        if (!path.isEmpty())
            urls.append(FileURL::fromPath(path).value());
    }
    return urls;
}

TEST(LargeFileScan, ListsWhatFindListsInRandomTrees)
{
    for (unsigned seed = 101; seed <= 106; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const RandomTree tree(seed, 400);
        for (const qint64 minSize : {qint64{1}, qint64{5'000}, kMiB}) {
            QList<FileURL> ours = found({tree.root()}, minSize);
            QList<FileURL> theirs = askFind(tree.root(), minSize);
            std::sort(ours.begin(), ours.end());
            std::sort(theirs.begin(), theirs.end());
            EXPECT_EQ(ours, theirs);
        }
    }
}

} // namespace
