// SPDX-License-Identifier: MIT
#include "Services/FileDigest.h"

#include "Fakes/Bytes.h"
#include "Fakes/ScratchTree.h"
#include "Platform/Descriptor.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

#include <vector>

namespace {

Descriptor opened(const FileURL &file)
{
    return Descriptor(::open(file.path().constData(), O_RDONLY | O_CLOEXEC));
}

TEST(Sha256, EqualsTheKnownDigests)
{
    const Sha256 algorithm;
    Sha256::Run empty(algorithm);
    EXPECT_EQ(Sha256::text(empty.finish()), u"e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    Sha256::Run abc(algorithm);
    abc.add("a");
    abc.add("bc");
    EXPECT_EQ(Sha256::text(abc.finish()), u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

TEST(FileDigest, HashesFilesOfAnyLengthInChunksOfOneMebibyte)
{
    const ScratchTree tree;
    constexpr qint64 chunk = 1'048'576;
    for (const qint64 size : {qint64{0}, qint64{1}, chunk - 1, chunk, chunk + 1, 2 * chunk + 77}) {
        const QByteArray content = someBytes(size, 7);
        const Descriptor file = opened(tree.file("a", content));
        const auto stamp = FileReading::stampOf(file.get());
        ASSERT_TRUE(stamp);
        std::vector<qint64> chunks;
        const auto digest =
            FileDigest::ofOpenFile(Sha256(), file.get(), *stamp, {}, [&](qint64 hashed) { chunks.push_back(hashed); });
        EXPECT_EQ(digest, QCryptographicHash::hash(content, QCryptographicHash::Sha256)) << size;
        ASSERT_EQ(static_cast<qint64>(chunks.size()), (size + chunk - 1) / chunk);
        for (size_t at = 0; at + 1 < chunks.size(); ++at)
            EXPECT_EQ(chunks[at], chunk);
    }
}

TEST(FileDigest, StopsWhenCancelled)
{
    const ScratchTree tree;
    const Descriptor file = opened(tree.sparseFile("a", qint64{1} << 40));
    const auto stamp = FileReading::stampOf(file.get());
    ASSERT_TRUE(stamp);
    const CancelToken cancel;
    int chunks = 0;
    EXPECT_FALSE(FileDigest::ofOpenFile(Sha256(), file.get(), *stamp, cancel, [&](qint64) {
        if (++chunks == 3)
            cancel.cancel();
    }));
    EXPECT_EQ(chunks, 3);
}

TEST(FileDigest, IsNoneForAFileCutShortMeanwhile)
{
    const ScratchTree tree;
    const FileURL path = tree.file("a", someBytes(3'000'000, 1));
    const Descriptor file = opened(path);
    const auto stamp = FileReading::stampOf(file.get());
    ASSERT_TRUE(stamp);
    EXPECT_FALSE(FileDigest::ofOpenFile(Sha256(), file.get(), *stamp, {},
                                        [&](qint64) { EXPECT_EQ(::truncate(path.path().constData(), 2'000'000), 0); }));
}

TEST(FileDigest, IsNoneForAFileThatGrewMeanwhile)
{
    const ScratchTree tree;
    const FileURL path = tree.file("a", someBytes(3'000'000, 1));
    const Descriptor file = opened(path);
    const auto stamp = FileReading::stampOf(file.get());
    ASSERT_TRUE(stamp);
    EXPECT_FALSE(FileDigest::ofOpenFile(Sha256(), file.get(), *stamp, {},
                                        [&](qint64) { EXPECT_EQ(::truncate(path.path().constData(), 4'000'000), 0); }));
}

} // namespace
