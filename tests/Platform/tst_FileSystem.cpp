// SPDX-License-Identifier: MIT
#include "Platform/FileSystem.h"

#include "Fakes/ScratchTree.h"
#include "Platform/Descriptor.h"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>

namespace {

using FileSystem::Hidden;
using FileSystem::Kind;
using FileSystem::Root;
using FileSystem::Want;

QList<QByteArray> namesOf(const QList<FileSystem::Entry> &entries)
{
    QList<QByteArray> names;
    for (const FileSystem::Entry &entry : entries)
        names.append(entry.name);
    std::sort(names.begin(), names.end());
    return names;
}

TEST(FileSystemList, HidesNamesThatBeginWithADot)
{
    const ScratchTree tree;
    tree.file("a");
    tree.file(".b");
    EXPECT_EQ(namesOf(FileSystem::list(tree.root(), Hidden::skip, Want::kinds).value()), QList<QByteArray>{"a"});
    EXPECT_EQ(namesOf(FileSystem::list(tree.root(), Hidden::include, Want::kinds).value()),
              (QList<QByteArray>{".b", "a"}));
}

TEST(FileSystemList, TellsKindsAndAttributes)
{
    const ScratchTree tree;
    tree.file("file", "12345");
    tree.folder("folder");
    tree.link("link", "file");
    ASSERT_EQ(::mkfifo(tree.at("pipe").path().constData(), 0600), 0);
    const auto entries = FileSystem::list(tree.root(), Hidden::skip, Want::files);
    ASSERT_TRUE(entries);
    ASSERT_EQ(entries->size(), 4);
    for (const FileSystem::Entry &entry : *entries) {
        const Kind expected = entry.name == "file"     ? Kind::regular
                              : entry.name == "folder" ? Kind::folder
                              : entry.name == "link"   ? Kind::link
                                                       : Kind::other;
        EXPECT_EQ(entry.kind, expected) << entry.name.constData();
        EXPECT_EQ(entry.attributes.has_value(), entry.name == "file") << entry.name.constData();
        if (entry.name == "file") {
            EXPECT_EQ(entry.attributes.value().size, 5);
        }
    }
}

TEST(FileSystemList, IsAnErrorForWhatIsNoFolder)
{
    const ScratchTree tree;
    tree.folder("real");
    tree.file("real/file");
    tree.link("link", "real");
    EXPECT_FALSE(FileSystem::list(tree.at("none"), Hidden::skip, Want::kinds));
    EXPECT_FALSE(FileSystem::list(tree.at("real/file"), Hidden::skip, Want::kinds));
    EXPECT_TRUE(FileSystem::list(tree.at("link"), Hidden::skip, Want::kinds, Root::follow));
    EXPECT_FALSE(FileSystem::list(tree.at("link"), Hidden::skip, Want::kinds, Root::doNotFollow));
}

TEST(FileSystemRead, AnswersTheFirstBytesOfARegularFileAlone)
{
    const ScratchTree tree;
    const FileURL file = tree.file("file", "0123456789");
    tree.link("link", "file");
    ASSERT_EQ(::mkfifo(tree.at("pipe").path().constData(), 0600), 0);
    EXPECT_EQ(FileSystem::read(file, 4).value(), "0123");
    EXPECT_EQ(FileSystem::read(file, 1000).value(), "0123456789");
    EXPECT_EQ(FileSystem::read(file, 0).value(), "");
    EXPECT_FALSE(FileSystem::read(tree.at("none"), 4));
    EXPECT_FALSE(FileSystem::read(tree.at("link"), 4));
    EXPECT_FALSE(FileSystem::read(tree.at("pipe"), 4));
    EXPECT_FALSE(FileSystem::read(tree.root(), 4));
}

TEST(FileSystemMeasure, AddsUpAllThatLiesBelow)
{
    const ScratchTree tree;
    tree.file("a", "123");
    tree.file("sub/.hidden", "12345");
    tree.link("sub/link", "../a");
    const auto all = FileSystem::measure(tree.root(), Hidden::include, {});
    ASSERT_TRUE(all);
    EXPECT_EQ(all->logical, 8);
    EXPECT_EQ(all->entries, 4);
    EXPECT_EQ(FileSystem::measure(tree.root(), Hidden::skip, {})->logical, 3);
    EXPECT_FALSE(FileSystem::measure(tree.at("none"), Hidden::include, {}));
}

} // namespace
