// SPDX-License-Identifier: MIT
#include "Fakes/FakePlatform.h"
#include "Services/ActivityStore.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

ActivityRecord record(int number, qint64 bytes = 10)
{
    return {.id = QUuid::createUuid(),
            .kind = ActivityKind::junkRemoved,
            .title = u"Title %1"_s.arg(number),
            .detail = u"Detail"_s,
            .bytes = bytes,
            .date = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123 + number * 1000LL, Qt::UTC)};
}

/// A stored record with one field put in place of the sound one; an empty value leaves the field out.
QByteArray stored(const QByteArray &key = {}, const QByteArray &value = {})
{
    const QList<std::pair<QByteArray, QByteArray>> sound{{"id", "\"9F1B2C3D-0000-4000-8000-0123456789ab\""},
                                                         {"kind", "\"junkRemoved\""},
                                                         {"title", "\"a\""},
                                                         {"detail", "\"b\""},
                                                         {"bytes", "5"},
                                                         {"date", "700000000.5"}};
    QByteArrayList fields;
    for (const auto &[name, content] : sound) {
        const QByteArray used = name == key ? value : content;
        if (!used.isEmpty())
            fields.append('"' + name + "\":" + used);
    }
    return '{' + fields.join(',') + '}';
}

class ActivityStoreTest : public testing::Test
{
protected:
    ScratchTree tree;
    FakePlaces places{tree.folder("home")};
    FileURL folder = tree.at("home/BriskoData");
    FileURL file = folder.child("activity.json");

    [[nodiscard]] FileURL broken(int number) const
    {
        return folder.child("activity.json.broken-" + QByteArray::number(number));
    }
    void write(const QByteArray &content) const { tree.file("home/BriskoData/activity.json", content); }
};

TEST_F(ActivityStoreTest, makesItsFolderWithThoseOnTheWay)
{
    places.setHome(tree.at("home/deep/er"));
    EXPECT_EQ(ActivityStore::fileURL(places), tree.at("home/deep/er/BriskoData/activity.json"));
    EXPECT_TRUE(ScratchTree::exists(tree.at("home/deep/er/BriskoData")));
}

TEST_F(ActivityStoreTest, doesNothingWithoutAHome)
{
    places.setHome(std::nullopt);
    EXPECT_EQ(ActivityStore::fileURL(places), std::nullopt);
    EXPECT_EQ(ActivityStore::load(places), QList<ActivityRecord>());
    ActivityStore::save(places, {record(1)});
    EXPECT_FALSE(ScratchTree::exists(file));
}

TEST_F(ActivityStoreTest, readsBackWhatItWrote)
{
    QList<ActivityRecord> records;
    for (const ActivityKind kind :
         {ActivityKind::appUninstalled, ActivityKind::duplicatesRemoved, ActivityKind::junkRemoved,
          ActivityKind::largeFilesRemoved, ActivityKind::startupItemRemoved}) {
        ActivityRecord made = record(5 - int(records.size()));
        made.kind = kind;
        made.title = u"\"Größe\" \\ 日本\n\U0001F600/%@"_s;
        made.detail = QString();
        records.append(made);
    }
    ActivityStore::save(places, records);
    EXPECT_EQ(ActivityStore::load(places), records);
}

TEST_F(ActivityStoreTest, keepsByteCountsExactToTheLastBit)
{
    const QList<qint64> counts{0,
                               -1,
                               (1LL << 53) + 1,
                               std::numeric_limits<qint64>::max(),
                               std::numeric_limits<qint64>::max() - 1,
                               std::numeric_limits<qint64>::min()};
    QList<ActivityRecord> records;
    for (const qint64 count : counts)
        records.append(record(int(counts.size() - records.size()), count));
    ActivityStore::save(places, records);
    EXPECT_EQ(ActivityStore::load(places), records);
}

TEST_F(ActivityStoreTest, keepsMillisecondsOfAnyDate)
{
    constexpr quint32 kSeed = 11;
    QRandomGenerator random(kSeed);
    for (int round = 0; round < 2000; ++round) {
        ActivityRecord made = record(0);
        const qint64 ms = static_cast<qint64>(random.bounded(quint64{8'000'000'000'000})) - 4'000'000'000'000;
        made.date = QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC);
        ASSERT_EQ(ActivityStore::decode(ActivityStore::encode({made})), QList{made})
            << "seed " << kSeed << " ms " << ms;
    }
}

TEST_F(ActivityStoreTest, writesTheDocumentedForm)
{
    const ActivityRecord made{.id = QUuid(u"9f1b2c3d-0000-4000-8000-0123456789ab"_s),
                              .kind = ActivityKind::largeFilesRemoved,
                              .title = u"2 large files removed"_s,
                              .detail = u"1 KB freed"_s,
                              .bytes = 1000,
                              .date = QDateTime(QDate(2001, 1, 1), QTime(0, 0, 1, 500), Qt::UTC)};
    EXPECT_EQ(ActivityStore::encode({made}),
              "[{\"id\":\"9f1b2c3d-0000-4000-8000-0123456789ab\",\"kind\":\"largeFilesRemoved\","
              "\"title\":\"2 large files removed\",\"detail\":\"1 KB freed\",\"bytes\":1000,\"date\":1.5}]");
    EXPECT_EQ(ActivityStore::encode({}), "[]");
}

TEST_F(ActivityStoreTest, writesJsonThatAnotherReaderUnderstands)
{
    ActivityRecord made = record(1, 42);
    made.title = u"\u2028 \x01 \x7F \"\\"_s;
    const QJsonObject read = QJsonDocument::fromJson(ActivityStore::encode({made})).array().first().toObject();
    EXPECT_EQ(read.keys(), (QStringList{u"bytes"_s, u"date"_s, u"detail"_s, u"id"_s, u"kind"_s, u"title"_s}));
    EXPECT_EQ(read[u"title"_s].toString(), made.title);
    EXPECT_EQ(read[u"bytes"_s].toInteger(), 42);
}

TEST_F(ActivityStoreTest, writesWhatIsNoTextWithoutFailing)
{
    ActivityRecord made = record(1);
    made.title = u"half a pair: "_s + QChar(0xD83D);
    const auto read = ActivityStore::decode(ActivityStore::encode({made}));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->size(), 1);
}

TEST_F(ActivityStoreTest, keepsTheFirstTwenty)
{
    QList<ActivityRecord> records;
    for (int number = 25; number > 0; --number)
        records.append(record(number));
    ActivityStore::save(places, records);
    EXPECT_EQ(ActivityStore::load(places), records.first(20));
    EXPECT_EQ(QJsonDocument::fromJson(ScratchTree::content(file)).array().size(), 20);
}

TEST_F(ActivityStoreTest, holdsTheNewestTwentyAfterTwentyFiveAdditions)
{
    QList<ActivityRecord> all;
    for (int number = 1; number <= 25; ++number) {
        all.prepend(record(number));
        ActivityStore::save(places, all);
    }
    EXPECT_EQ(ActivityStore::load(places), all.first(20));
}

TEST_F(ActivityStoreTest, answersTheNewestFirstAndKeepsTheOrderOfEqualDates)
{
    const ActivityRecord oldest = record(1);
    const ActivityRecord newest = record(9);
    ActivityRecord equal[3] = {record(5), record(5), record(5)};
    write(ActivityStore::encode({equal[0], oldest, equal[1], newest, equal[2]}));
    EXPECT_EQ(ActivityStore::load(places), (QList{newest, equal[0], equal[1], equal[2], oldest}));
}

TEST_F(ActivityStoreTest, makesADeletedFileAgain)
{
    ActivityStore::save(places, {record(1)});
    ASSERT_TRUE(QDir(QFile::decodeName(folder.path())).removeRecursively());
    const QList<ActivityRecord> list{record(2), record(1)};
    ActivityStore::save(places, list);
    EXPECT_EQ(ActivityStore::load(places), list);
}

TEST_F(ActivityStoreTest, readsWhatOthersMayWrite)
{
    const QByteArray loose = " [ " + stored() + ",\n" + stored("bytes", "5.0") + ',' + stored("bytes", "-7") + ',' +
                             stored("date", "7") + ',' + stored("date", "-1e9") + ',' +
                             stored("title", "\"a\",\"newer\":[1,{}]") + " ] \n";
    const auto read = ActivityStore::decode(loose);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->size(), 6);
    EXPECT_EQ(read->at(0).id, QUuid(u"9f1b2c3d-0000-4000-8000-0123456789ab"_s));
    EXPECT_EQ(read->at(0).date, QDateTime(QDate(2023, 3, 8), QTime(20, 26, 40, 500), Qt::UTC));
    EXPECT_EQ(read->at(1).bytes, 5);
}

class SpoiltHistory : public ActivityStoreTest, public testing::WithParamInterface<QByteArray>
{
};

TEST_P(SpoiltHistory, isEmptyAndKeptBesideBeforeTheNextRecord)
{
    write(GetParam());
    EXPECT_EQ(ActivityStore::decode(GetParam()), std::nullopt);
    EXPECT_EQ(ActivityStore::load(places), QList<ActivityRecord>());
    EXPECT_EQ(ScratchTree::content(file), GetParam()); // loading alone changes nothing
    const QList<ActivityRecord> list{record(1)};
    ActivityStore::save(places, list);
    EXPECT_EQ(ActivityStore::load(places), list);
    EXPECT_EQ(ScratchTree::content(broken(1)), GetParam());
    ActivityStore::save(places, list);
    EXPECT_FALSE(ScratchTree::exists(broken(2)));
}

QByteArray withOneSound(const QByteArray &other)
{
    return '[' + stored() + ',' + other + ']';
}

INSTANTIATE_TEST_SUITE_P(
    Contents, SpoiltHistory,
    testing::Values(QByteArray(), QByteArray("no json"), QByteArray("null"), QByteArray("{}"), QByteArray("[null]"),
                    QByteArray("[[]]"), QByteArray("[" + stored()), QByteArray("[" + stored() + ",]"),
                    QByteArray("[" + stored() + "]x"), withOneSound(stored("kind", "\"cookiesRemoved\"")),
                    withOneSound(stored("kind", "1")), withOneSound(stored("kind", {})), withOneSound(stored("id", {})),
                    withOneSound(stored("id", "\"no uuid\"")), withOneSound(stored("id", "\"\"")),
                    withOneSound(stored("id", "\"{9F1B2C3D-0000-4000-8000-0123456789ab}\"")),
                    withOneSound(stored("title", {})), withOneSound(stored("title", "null")),
                    withOneSound(stored("detail", "[]")), withOneSound(stored("bytes", "\"5\"")),
                    withOneSound(stored("bytes", "5.5")), withOneSound(stored("bytes", "9223372036854775808")),
                    withOneSound(stored("bytes", "1e19")), withOneSound(stored("bytes", "true")),
                    withOneSound(stored("date", "\"2024-01-01\"")), withOneSound(stored("date", "null")),
                    withOneSound(stored("date", "1e300")), withOneSound(stored("title", "\"\xFF\"")),
                    QByteArray("\0[]", 3), QByteArray(200'000, '[')));

TEST_F(ActivityStoreTest, takesTheFirstFreeNumberForABrokenHistory)
{
    tree.file("home/BriskoData/activity.json.broken-1", "earlier");
    write("spoilt");
    ActivityStore::save(places, {record(1)});
    EXPECT_EQ(ScratchTree::content(broken(1)), "earlier");
    EXPECT_EQ(ScratchTree::content(broken(2)), "spoilt");
}

TEST_F(ActivityStoreTest, keepsAsideWhatIsFarTooLarge)
{
    tree.folder("home/BriskoData");
    tree.sparseFile("home/BriskoData/activity.json", qint64{3} << 30);
    EXPECT_EQ(ActivityStore::load(places), QList<ActivityRecord>());
    ActivityStore::save(places, {record(1)});
    EXPECT_TRUE(ScratchTree::exists(broken(1)));
    EXPECT_EQ(ActivityStore::load(places).size(), 1);
}

TEST_F(ActivityStoreTest, leavesAFolderAndAPipeInItsPlace)
{
    tree.file("home/BriskoData/activity.json/inside");
    EXPECT_EQ(ActivityStore::load(places), QList<ActivityRecord>());
    ActivityStore::save(places, {record(1)});
    EXPECT_TRUE(ScratchTree::exists(tree.at("home/BriskoData/activity.json/inside")));

    places.setHome(tree.folder("other"));
    tree.folder("other/BriskoData");
    ASSERT_EQ(::mkfifo(tree.at("other/BriskoData/activity.json").path().constData(), 0600), 0);
    EXPECT_EQ(ActivityStore::load(places), QList<ActivityRecord>());
}

TEST_F(ActivityStoreTest, keepsAsideWhatMayNotBeRead)
{
    write("private");
    OrdinaryUser::own(folder);
    OrdinaryUser::own(file);
    ASSERT_EQ(::chmod(file.path().constData(), 0000), 0);
    ASSERT_EQ(::chmod(tree.root().path().constData(), 0755), 0);
    {
        const OrdinaryUser user;
        EXPECT_EQ(ActivityStore::load(places), QList<ActivityRecord>());
        ActivityStore::save(places, {record(1)});
        EXPECT_EQ(ActivityStore::load(places).size(), 1);
    }
    ASSERT_EQ(::chmod(broken(1).path().constData(), 0600), 0);
    EXPECT_EQ(ScratchTree::content(broken(1)), "private");
}

TEST_F(ActivityStoreTest, ignoresAFolderThatCannotBeWritten)
{
    ActivityStore::save(places, {record(1)});
    const QByteArray before = ScratchTree::content(file);
    ASSERT_EQ(::chmod(file.path().constData(), 0644), 0);
    ASSERT_EQ(::chmod(folder.path().constData(), 0555), 0);
    ASSERT_EQ(::chmod(tree.root().path().constData(), 0755), 0);
    {
        const OrdinaryUser user;
        ActivityStore::save(places, {record(2)});
        EXPECT_EQ(ActivityStore::load(places).size(), 1);
    }
    ASSERT_EQ(::chmod(folder.path().constData(), 0755), 0);
    EXPECT_EQ(ScratchTree::content(file), before);
}

TEST_F(ActivityStoreTest, leavesNothingBesideTheFileAndKeepsItPrivate)
{
    const mode_t before = ::umask(0);
    ActivityStore::save(places, {record(1)});
    ::umask(before);
    EXPECT_EQ(QDir(QFile::decodeName(folder.path())).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"activity.json"_s});
    struct stat status {
    };
    ASSERT_EQ(::stat(file.path().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
    ASSERT_EQ(::stat(folder.path().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0700U);
}

TEST_F(ActivityStoreTest, worksBelowAHomeWhoseNameIsNoText)
{
    places.setHome(tree.folder("h\xFFome"));
    const QList<ActivityRecord> list{record(1)};
    ActivityStore::save(places, list);
    EXPECT_EQ(ActivityStore::load(places), list);
    EXPECT_TRUE(ScratchTree::exists(tree.at("h\xFFome/BriskoData/activity.json")));
}

} // namespace
