// SPDX-License-Identifier: MIT
#include "Platform/FileReading.h"

#include "Fakes/ScratchTree.h"
#include "Platform/Descriptor.h"

#include <gtest/gtest.h>

#include <array>

namespace {

Descriptor opened(const FileURL &file)
{
    return Descriptor(::open(file.path().constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
}

TEST(FileReading, ReadsWhatThereIsAndNoMore)
{
    const ScratchTree tree;
    const Descriptor file = opened(tree.file("a", "0123456789"));
    std::array<char, 16> into{};
    EXPECT_EQ(FileReading::readAt(file.get(), into.data(), 4, 2), 4);
    EXPECT_EQ(QByteArray(into.data(), 4), "2345");
    EXPECT_EQ(FileReading::readAt(file.get(), into.data(), 16, 7), 3);
    EXPECT_EQ(FileReading::readAt(file.get(), into.data(), 16, 10), 0);
    EXPECT_LT(FileReading::readAt(-1, into.data(), 16, 0), 0);
}

TEST(FileReading, AnswersOfTheCacheAreNeverWrong)
{
    const ScratchTree tree;
    const Descriptor file = opened(tree.file("a", "0123456789"));
    FileReading::prefetch(file.get(), 0, 10);
    std::array<char, 16> into{};
    const qint64 got = FileReading::readCached(file.get(), into.data(), 16, 3);
    ASSERT_GE(got, 0);
    ASSERT_LE(got, 7);
    EXPECT_EQ(QByteArray(into.data(), got), QByteArray("3456789").first(got));
    EXPECT_EQ(FileReading::readCached(-1, into.data(), 16, 0), 0);
}

TEST(FileReading, StampsOfAnUntouchedFileAreEqual)
{
    const ScratchTree tree;
    const Descriptor file = opened(tree.file("a", "0123456789"));
    const auto stamp = FileReading::stampOf(file.get());
    ASSERT_TRUE(stamp);
    EXPECT_EQ(stamp->size, 10);
    EXPECT_EQ(FileReading::stampOf(file.get()), stamp);
}

TEST(FileReading, AStampShowsAChangeWhoseTimeWasSetBack)
{
    const ScratchTree tree;
    const FileURL path = tree.file("a", "0123456789");
    const QDateTime then = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    ScratchTree::setModified(path, then);
    const Descriptor file = opened(path);
    const auto stamp = FileReading::stampOf(file.get());
    ASSERT_TRUE(stamp);
    // The system's clock of file times may stand still for some milliseconds.
    std::optional<FileReading::Stamp> later = stamp;
    for (int attempt = 0; attempt < 10'000 && later && later->changed == stamp->changed; ++attempt) {
        tree.file("a", "012345678X");
        ScratchTree::setModified(path, then);
        later = FileReading::stampOf(file.get());
    }
    ASSERT_TRUE(later);
    EXPECT_EQ(later->modified, stamp->modified);
    EXPECT_NE(later, stamp);
}

TEST(FileReading, StampsOnlyRegularFiles)
{
    const ScratchTree tree;
    ASSERT_EQ(::mkfifo(tree.at("pipe").path().constData(), 0600), 0);
    EXPECT_FALSE(FileReading::stampOf(opened(tree.at("pipe")).get()));
    EXPECT_FALSE(FileReading::stampOf(opened(tree.root()).get()));
    EXPECT_FALSE(FileReading::stampOf(-1));
}

TEST(FileReading, KnowsHowManyFilesMayBeOpen)
{
    EXPECT_GE(FileReading::descriptorLimit(), 20);
}

} // namespace
