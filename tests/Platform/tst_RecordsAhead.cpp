// SPDX-License-Identifier: MIT
// Records that are written ahead of the moves are as good as those written with them, and none is left over.
#include "Platform/TrashDesk.h"

#include <QFile>
#include <QRandomGenerator>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <tuple>

namespace {

class RecordsAheadTest : public testing::Test
{
protected:
    /// Files below several folders; every third has a name that others have as well.
    QList<FileURL> files(int count)
    {
        QList<FileURL> result;
        for (int number = 0; number < count; ++number) {
            const QByteArray text = QByteArray::number(number);
            const QByteArray name = number % 3 == 0 ? QByteArray("same.txt") : "file " + text;
            result.append(desk.tree.file("home/" + text + '/' + name, text));
        }
        return result;
    }
    [[nodiscard]] QByteArrayList trashed() const { return sorted(TrashDesk::names(desk.homeTrash().child("files"))); }
    /// The names that records keep.
    [[nodiscard]] QByteArrayList recorded() const
    {
        QByteArrayList names = TrashDesk::names(desk.homeTrash().child("info"));
        for (QByteArray &name : names) {
            EXPECT_TRUE(name.endsWith(".trashinfo"));
            name.chop(10);
        }
        return sorted(names);
    }
    [[nodiscard]] static QByteArrayList sorted(QByteArrayList names)
    {
        std::ranges::sort(names);
        return names;
    }
    static void expectRecord(const FileURL &trashed, const FileURL &item)
    {
        EXPECT_EQ(TrashDesk::originOf(trashed), item.path());
        EXPECT_EQ(TrashDesk::modeOf(TrashDesk::recordOf(trashed)), 0600U);
    }

    TrashDesk desk;
};

TEST_F(RecordsAheadTest, recordsEachItemWhereItWas)
{
    const QList<FileURL> items = files(3'000);
    {
        const auto batch = desk.can().begin();
        batch->expect(items);
        for (int number = 0; number < items.size(); ++number) {
            const auto moved = batch->moveToTrash(items[number]);
            ASSERT_TRUE(moved);
            expectRecord(*moved, items[number]);
            EXPECT_EQ(ScratchTree::content(*moved), QByteArray::number(number));
        }
    }
    EXPECT_EQ(trashed().size(), items.size());
    EXPECT_EQ(recorded(), trashed());
    EXPECT_TRUE(trashed().contains("same.1000.txt"));
}

TEST_F(RecordsAheadTest, leavesNoRecordOfWhatDoesNotCome)
{
    const quint32 seed = QRandomGenerator::system()->generate();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    QList<FileURL> items = files(2'000);
    QSet<FileURL> gone;
    {
        const auto batch = desk.can().begin();
        batch->expect(items);
        for (const FileURL &item : std::as_const(items)) {
            // Some are passed over, some vanish before their turn, and some that nobody spoke of come in between.
            switch (random() % 8) {
            case 0:
                break;
            case 1:
                ASSERT_TRUE(QFile::remove(QFile::decodeName(item.path())));
                EXPECT_EQ(TrashDesk::errorOf(batch->moveToTrash(item)), std::errc::no_such_file_or_directory);
                break;
            case 2: {
                const FileURL other = desk.tree.file("home/other/same.txt");
                const auto moved = batch->moveToTrash(other);
                ASSERT_TRUE(moved);
                expectRecord(*moved, other);
                break;
            }
            default: {
                const auto moved = batch->moveToTrash(item);
                ASSERT_TRUE(moved);
                expectRecord(*moved, item);
            }
            }
        }
    }
    EXPECT_FALSE(trashed().isEmpty());
    EXPECT_EQ(recorded(), trashed());
}

TEST_F(RecordsAheadTest, endsAtOnceWithoutARecordWhenNothingMoreComes)
{
    const QList<FileURL> items = files(1'000);
    {
        const auto batch = desk.can().begin();
        batch->expect(items);
        ASSERT_TRUE(batch->moveToTrash(items[0]));
    }
    EXPECT_EQ(trashed(), QByteArrayList{"same.txt"});
    EXPECT_EQ(recorded(), trashed());
}

TEST_F(RecordsAheadTest, touchesNoTrashBeforeTheFirstItemComes)
{
    const QList<FileURL> items = files(300);
    desk.can().begin()->expect(items);
    EXPECT_FALSE(ScratchTree::exists(desk.homeTrash()));
}

TEST_F(RecordsAheadTest, findsItemsFarDownItsList)
{
    const QList<FileURL> items = files(3'000);
    {
        const auto batch = desk.can().begin();
        batch->expect(items);
        for (const int number : {0, 700, 2'999}) {
            const auto moved = batch->moveToTrash(items[number]);
            ASSERT_TRUE(moved);
            expectRecord(*moved, items[number]);
        }
        // Going back is no promise either.
        ASSERT_TRUE(batch->moveToTrash(items[1]));
    }
    EXPECT_EQ(trashed().size(), 4);
    EXPECT_EQ(recorded(), trashed());
}

TEST_F(RecordsAheadTest, replacesNothingThatLiesThereWithoutARecord)
{
    const QList<FileURL> items = files(600);
    for (const char *name : {"same.txt", "same.2.txt", "same.7.txt", "file 1"})
        desk.tree.file(QByteArray("home/.local/share/Trash/files/") + name, "older");
    {
        const auto batch = desk.can().begin();
        batch->expect(items);
        for (const FileURL &item : items) {
            const auto moved = batch->moveToTrash(item);
            ASSERT_TRUE(moved);
            expectRecord(*moved, item);
        }
    }
    EXPECT_EQ(trashed().size(), items.size() + 4);
    EXPECT_EQ(recorded().size(), items.size());
    EXPECT_EQ(ScratchTree::content(desk.homeTrash().appending("files/same.txt")), "older");
    EXPECT_EQ(ScratchTree::content(desk.homeTrash().appending("files/file 1")), "older");
}

TEST_F(RecordsAheadTest, goesOnPastAnItemThatVanished)
{
    QList<FileURL> items = files(300);
    ASSERT_TRUE(QFile::remove(QFile::decodeName(items[0].path()))); // the first "same.txt"
    {
        const auto batch = desk.can().begin();
        batch->expect(items);
        for (const FileURL &item : std::as_const(items))
            std::ignore = batch->moveToTrash(item);
    }
    EXPECT_EQ(trashed().size(), items.size() - 1);
    EXPECT_EQ(recorded(), trashed());
}

TEST_F(RecordsAheadTest, takesFoldersWithTheirSizes)
{
    QList<FileURL> items = files(300);
    desk.tree.file("home/big/folder/file", QByteArray(100'000, 'x'));
    items.insert(150, desk.tree.at("home/big"));
    {
        const auto batch = desk.can().begin();
        batch->expect(items);
        for (const FileURL &item : std::as_const(items))
            ASSERT_TRUE(batch->moveToTrash(item));
    }
    const QByteArray sizes = TrashDesk::content(desk.homeTrash().child("directorysizes"));
    EXPECT_EQ(sizes.count('\n'), 1);
    EXPECT_TRUE(sizes.endsWith(" big\n"));
}

} // namespace
