// SPDX-License-Identifier: MIT
#include "Models/FileURL.h"

#include <gtest/gtest.h>

#include <random>

namespace {

FileURL url(const char *path)
{
    return FileURL::fromPath(path).value();
}

TEST(FileURL, cleansByTextAlone)
{
    EXPECT_EQ(url("/a//b/./c/../d/").path(), "/a/b/d");
    EXPECT_EQ(url("/..").path(), "/");
    EXPECT_EQ(url("//").path(), "/");
    EXPECT_EQ(url("/a/..").path(), "/");
    EXPECT_EQ(url("/...").path(), "/...");
}

TEST(FileURL, refusesWhatIsNoAbsolutePath)
{
    EXPECT_FALSE(FileURL::fromPath("").has_value());
    EXPECT_FALSE(FileURL::fromPath("a/b").has_value());
    EXPECT_FALSE(FileURL::fromPath(QByteArrayView("/a\0b", 4)).has_value());
    EXPECT_FALSE(FileURL::fromEncoded("file://host/a").has_value());
    EXPECT_FALSE(FileURL::fromEncoded("/a").has_value());
    EXPECT_FALSE(FileURL::fromEncoded("file:///a%00b").has_value());
}

TEST(FileURL, takesARelativePathFromItsBase)
{
    EXPECT_EQ(FileURL::fromPath("b/../c", url("/a")).value().path(), "/a/c");
    EXPECT_EQ(FileURL::fromPath("/x", url("/a")).value().path(), "/x");
}

TEST(FileURL, keepsEveryByteThroughItsEncodedForm)
{
    std::mt19937 random(20260114); // NOLINT: a fixed start, so that a failure can be repeated
    std::uniform_int_distribution<int> byte(1, 255);
    std::uniform_int_distribution<int> length(1, 255);
    for (int round = 0; round < 500; ++round) {
        QByteArray name;
        for (int left = length(random); left > 0; --left) {
            const int value = byte(random);
            name.append(value == '/' ? '_' : static_cast<char>(value));
        }
        if (name == "." || name == "..")
            continue;
        const FileURL item = url("/home").child(name);
        EXPECT_EQ(FileURL::fromEncoded(item.encoded()), item);
        EXPECT_EQ(item.name(), name);
        EXPECT_EQ(item.parent(), url("/home"));
    }
}

TEST(FileURL, knowsWhatLiesBelowAFolder)
{
    EXPECT_TRUE(url("/a/b").isBelow(url("/a")));
    EXPECT_TRUE(url("/a").isBelow(FileURL::root()));
    EXPECT_FALSE(url("/a").isBelow(url("/a")));
    EXPECT_FALSE(url("/ab").isBelow(url("/a")));
    EXPECT_FALSE(url("/a").isBelow(FileURL()));
}

TEST(FileURL, readsExtensionsAsFileManagersDo)
{
    EXPECT_EQ(url("/a/Setup.DMG").extension(), "DMG");
    EXPECT_EQ(url("/a/archive.tar.gz").extension(), "gz");
    EXPECT_EQ(url("/a/.hidden").extension(), "");
    EXPECT_EQ(url("/a/dot.").extension(), "");
    EXPECT_EQ(url("/a.b/plain").extension(), "");
}

TEST(FileURL, ordersByUnsignedBytes)
{
    EXPECT_LT(url("/a"), url("/b"));
    EXPECT_LT(url("/a"), url("/a/b"));
    EXPECT_LT(url("/z"), url("/\xC3\xA4"));
}

TEST(FileURL, showsBytesThatAreNotUtf8AsReplacements)
{
    EXPECT_EQ(url("/\xFF").text(), QStringLiteral("/\uFFFD"));
    EXPECT_EQ(url("/\xFF").encoded(), "file:///%FF");
}

} // namespace
