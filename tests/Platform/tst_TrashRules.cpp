// SPDX-License-Identifier: MIT
#include "Platform/Linux/DirectorySizes.h"
#include "Platform/Linux/MountTable.h"
#include "Platform/Linux/TrashError.h"
#include "Platform/Linux/TrashNames.h"

#include <QSet>
#include <QString>
#include <QUrl>

#include <gtest/gtest.h>

#include <random>

namespace {

constexpr qsizetype kLimit = 245; // bytes: what is left of 255 beside ".trashinfo"

FileURL url(const char *path)
{
    return FileURL::fromPath(path).value();
}

TEST(TrashNames, leaveRoomForTheRecordsEnding)
{
    EXPECT_EQ(TrashNames::limitFor(255), kLimit);
}

TEST(TrashNames, keepTheFirstOfANameAsItIs)
{
    EXPECT_EQ(TrashNames::numbered("a.txt", 1, kLimit), "a.txt");
    EXPECT_EQ(TrashNames::numbered(QByteArray(kLimit, 'x'), 1, kLimit), QByteArray(kLimit, 'x'));
}

TEST(TrashNames, putTheNumberBeforeTheEnding)
{
    EXPECT_EQ(TrashNames::numbered("a.txt", 2, kLimit), "a.2.txt");
    EXPECT_EQ(TrashNames::numbered("a.tar.gz", 3, kLimit), "a.tar.3.gz");
    EXPECT_EQ(TrashNames::numbered("folder", 12, kLimit), "folder.12");
    EXPECT_EQ(TrashNames::numbered(".hidden", 2, kLimit), ".hidden.2");
    EXPECT_EQ(TrashNames::numbered("dot.", 2, kLimit), "dot..2");
    EXPECT_EQ(TrashNames::numbered("...", 2, kLimit), "....2");
}

TEST(TrashNames, keepTheEndingOfWhatIsTooLong)
{
    const QByteArray shortened = TrashNames::numbered(QByteArray(251, 'x') + ".jpg", 1, kLimit);
    EXPECT_EQ(shortened, QByteArray(kLimit - 4, 'x') + ".jpg");
    const QByteArray second = TrashNames::numbered(QByteArray(251, 'x') + ".jpg", 2, kLimit);
    EXPECT_EQ(second, QByteArray(kLimit - 6, 'x') + ".2.jpg");
}

TEST(TrashNames, takeNoLongTailForAnEnding)
{
    const QByteArray name = "a." + QByteArray(253, 'y');
    EXPECT_EQ(TrashNames::numbered(name, 1, kLimit), name.first(kLimit));
    EXPECT_EQ(TrashNames::numbered(name, 2, kLimit), name.first(kLimit - 2) + ".2");
}

TEST(TrashNames, cutBetweenCharacters)
{
    const std::array<QByteArray, 3> characters = {"\xC3\xA9", "\xE6\x97\xA5", "\xF0\x9F\x97\x91"};
    for (const QByteArray &character : characters) {
        const QByteArray name = character.repeated(255 / character.size());
        for (qsizetype limit = 20; limit <= 40; ++limit) {
            const QByteArray cut = TrashNames::numbered(name, 1, limit);
            EXPECT_LE(cut.size(), limit);
            EXPECT_GT(cut.size(), limit - character.size());
            EXPECT_EQ(cut.size() % character.size(), 0) << limit;
        }
    }
}

TEST(TrashNames, stayWithinTheLimitAndApartForAnyBytes)
{
    constexpr unsigned seed = 20260211;
    SCOPED_TRACE(seed);
    std::mt19937 random(seed); // NOLINT: fixed so that a failure can be repeated
    std::uniform_int_distribution<int> byte(1, 255);
    std::uniform_int_distribution<int> length(1, 255);
    for (int round = 0; round < 2000; ++round) {
        QByteArray name;
        for (int left = length(random); left > 0; --left) {
            const int value = byte(random);
            name.append(value == '/' ? '.' : static_cast<char>(value));
        }
        QSet<QByteArray> seen;
        for (const quint64 number : {1ULL, 2ULL, 3ULL, 10ULL, 99ULL, 123456789ULL}) {
            const QByteArray kept = TrashNames::numbered(name, number, kLimit);
            EXPECT_LE(kept.size(), kLimit);
            EXPECT_FALSE(kept.isEmpty());
            EXPECT_FALSE(kept.contains('/'));
            EXPECT_FALSE(seen.contains(kept)) << kept.toPercentEncoding().constData();
            seen.insert(kept);
        }
        // Text stays text: what was whole UTF-8 is cut into whole UTF-8.
        if (QString::fromUtf8(name).toUtf8() == name) {
            const QByteArray kept = TrashNames::numbered(name, 1, 17);
            EXPECT_EQ(QString::fromUtf8(kept).toUtf8(), kept);
        }
    }
}

TEST(TrashNames, recordTheBytesOfThePathPercentEncoded)
{
    EXPECT_EQ(TrashNames::record("/home/me/a b%\n\xFF\xC3\xA9.txt", "2026-01-02T03:04:05"),
              "[Trash Info]\nPath=/home/me/a%20b%25%0A%FF%C3%A9.txt\nDeletionDate=2026-01-02T03:04:05\n");
    EXPECT_EQ(TrashNames::record("photos/x", "2026-01-02T03:04:05"),
              "[Trash Info]\nPath=photos/x\nDeletionDate=2026-01-02T03:04:05\n");
}

TEST(TrashNames, findAFreeNumberInFewQuestions)
{
    for (const quint64 last : {1ULL, 2ULL, 3ULL, 7ULL, 8ULL, 1000ULL, 100'000ULL, 1ULL << 40}) {
        int questions = 0;
        const quint64 found = TrashNames::firstFree(1, [&](quint64 number) {
            ++questions;
            return number <= last;
        });
        EXPECT_EQ(found, last + 1);
        EXPECT_LE(questions, 2 * 41 + 2);
    }
}

TEST(TrashNames, findAFreeNumberAmongGaps)
{
    const QSet<quint64> taken{1, 2, 3, 5, 9, 17, 20};
    for (const quint64 from : {1ULL, 3ULL, 5ULL}) {
        const quint64 found = TrashNames::firstFree(from, [&](quint64 number) { return taken.contains(number); });
        EXPECT_GT(found, from);
        EXPECT_FALSE(taken.contains(found));
    }
}

TEST(DirectorySizes, readWhatTheyWrite)
{
    const QList<DirectorySizes::Line> lines{{.name = "a b", .size = 4096, .recorded = 1767323045},
                                            {.name = "\xFF\n", .size = 0, .recorded = 1}};
    EXPECT_EQ(DirectorySizes::text(lines), "4096 1767323045 a%20b\n0 1 %FF%0A\n");
    EXPECT_EQ(DirectorySizes::parse(DirectorySizes::text(lines)), lines);
}

TEST(DirectorySizes, leaveOutWhatIsNotUnderstood)
{
    const QByteArray text =
        "16384 15803468 Documents\nnonsense\n1 2\n1 2 3 4\n-5 1 a\nx 1 a\n1 x a\n"
        "1 1 ..\n1 1 .\n1 1 a%2Fb\n1 1 a%00b\n1 1 \n99999999999999999999 1 a\n8192 15803582 Another_Folder";
    const QList<DirectorySizes::Line> expected{{.name = "Documents", .size = 16384, .recorded = 15803468},
                                               {.name = "Another_Folder", .size = 8192, .recorded = 15803582}};
    EXPECT_EQ(DirectorySizes::parse(text), expected);
}

TEST(DirectorySizes, dropFoldersThatAreGoneAndReplaceThoseThatCameAgain)
{
    const QList<DirectorySizes::Line> old{{"stays", 1, 1}, {"gone", 2, 2}, {"again", 3, 3}};
    const QList<DirectorySizes::Line> added{{"again", 30, 30}, {"fresh", 4, 4}};
    const QList<DirectorySizes::Line> expected{{"stays", 1, 1}, {"again", 30, 30}, {"fresh", 4, 4}};
    EXPECT_EQ(DirectorySizes::merged(old, added, [](const QByteArray &name) { return name != "gone"; }), expected);
}

TEST(MountTable, readsTheKernelsLines)
{
    const QByteArray text =
        "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
        "36 35 98:0 /mnt1 /mnt/two\\040words\\134x rw,noatime master:1 shared:7 - ext4 /dev/root rw\n"
        "nonsense\n"
        "40 35 0:40 / /run/user/1000 rw - tmpfs tmpfs rw,size=1k";
    const QList<MountPoints::Mount> expected{{.folder = url("/proc"), .type = "proc"},
                                             {.folder = url("/mnt/two words\\x"), .type = "ext4"},
                                             {.folder = url("/run/user/1000"), .type = "tmpfs"}};
    EXPECT_EQ(MountTable::parse(text), expected);
    EXPECT_TRUE(MountTable::parse("").isEmpty());
}

TEST(MountTable, findsTheNearestAndLatestMount)
{
    const QList<MountPoints::Mount> mounts{{.folder = url("/"), .type = "ext4"},
                                           {.folder = url("/mnt/usb"), .type = "vfat"},
                                           {.folder = url("/mnt"), .type = "xfs"},
                                           {.folder = url("/mnt/usb"), .type = "btrfs"}};
    EXPECT_EQ(MountTable::holding(mounts, url("/home/me"))->type, "ext4");
    EXPECT_EQ(MountTable::holding(mounts, url("/"))->type, "ext4");
    EXPECT_EQ(MountTable::holding(mounts, url("/mnt/usbx"))->type, "xfs");
    EXPECT_EQ(MountTable::holding(mounts, url("/mnt/usb"))->type, "btrfs");
    EXPECT_EQ(MountTable::holding(mounts, url("/mnt/usb/a/b"))->type, "btrfs");
    EXPECT_EQ(MountTable::holding({}, url("/a")), nullptr);
}

TEST(TrashError, hasWordsForPeople)
{
    const std::error_code error = TrashError::tooLargeToCopy;
    EXPECT_EQ(error.message(), "Too large to copy to the Trash from another disk.");
    EXPECT_NE(error, std::make_error_code(std::errc::operation_not_permitted));
}

} // namespace
