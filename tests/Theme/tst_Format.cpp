// SPDX-License-Identifier: MIT
#include "Support/LanguageManager.h"
#include "Support/UserDefaults.h"
#include "Theme/Format.h"

#include <QRandomGenerator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <limits>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class FormatTest : public testing::Test
{
protected:
    void SetUp() override { choose(AppLanguage::en); }
    void choose(AppLanguage language) { LanguageManager::apply(language, m_defaults); }

private:
    QTemporaryDir m_folder;
    UserDefaults m_defaults{m_folder.filePath(u"Brisko.conf"_s)};
};

struct Count {
    qint64 bytes;
    QString text;
};

class FormatBytes : public FormatTest, public testing::WithParamInterface<Count>
{
};

TEST_P(FormatBytes, inEnglish)
{
    EXPECT_EQ(Format::bytes(GetParam().bytes), GetParam().text) << Format::bytes(GetParam().bytes).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Documented, FormatBytes,
                         testing::Values(Count{0, u"Zero KB"_s}, Count{1, u"1 byte"_s}, Count{2, u"2 bytes"_s},
                                         Count{499, u"499 bytes"_s}, Count{999, u"999 bytes"_s},
                                         Count{1'000, u"1 KB"_s}, Count{1'023, u"1 KB"_s}, Count{5'500, u"6 KB"_s},
                                         Count{11'999, u"12 KB"_s}, Count{900'000, u"900 KB"_s},
                                         Count{999'499, u"999 KB"_s}, Count{999'500, u"1 MB"_s},
                                         Count{1'200'000, u"1.2 MB"_s}, Count{12'345'678, u"12.3 MB"_s},
                                         Count{123'456'789, u"123.5 MB"_s}, Count{999'900'000, u"999.9 MB"_s},
                                         Count{1'234'567'898, u"1.23 GB"_s}, Count{12'345'678'987, u"12.35 GB"_s},
                                         Count{1'000'000'000'000, u"1 TB"_s}, Count{5'000'000'000'000'000, u"5 PB"_s},
                                         Count{999'949'999, u"999.9 MB"_s}, Count{999'950'000, u"1 GB"_s}));

INSTANTIATE_TEST_SUITE_P(Edges, FormatBytes,
                         testing::Values(Count{1'499, u"1 KB"_s}, Count{1'500, u"2 KB"_s}, Count{2'500, u"3 KB"_s},
                                         Count{1'049'999, u"1 MB"_s}, Count{1'050'000, u"1.1 MB"_s},
                                         Count{1'250'000, u"1.3 MB"_s}, Count{1'004'999'999, u"1 GB"_s},
                                         Count{1'005'000'000, u"1.01 GB"_s}, Count{1'050'000'000, u"1.05 GB"_s},
                                         Count{1'500'000'000, u"1.5 GB"_s}, Count{999'994'999'999, u"999.99 GB"_s},
                                         Count{999'995'000'000, u"1 TB"_s}, Count{1'125'000'000'000, u"1.13 TB"_s},
                                         Count{999'994'999'999'999'999, u"999.99 PB"_s},
                                         Count{999'995'000'000'000'000, u"1 EB"_s},
                                         Count{std::numeric_limits<qint64>::max(), u"9.22 EB"_s}));

struct Language {
    AppLanguage language;
    QString one;
    QString two;
    QString zero;
    QList<QString> units; // of 12,000 bytes, then of one and a half million, billion, ...
    QString date;         // 5 March 2024
};

class FormatLanguage : public FormatTest, public testing::WithParamInterface<Language>
{
};

TEST_P(FormatLanguage, namesUnitsAndDatesInItsOwnWay)
{
    const Language &row = GetParam();
    choose(row.language);
    EXPECT_EQ(Format::bytes(1), row.one);
    EXPECT_EQ(Format::bytes(2), row.two);
    EXPECT_EQ(Format::bytes(0), row.zero);
    qint64 count = 12'000;
    for (const QString &unit : row.units) {
        EXPECT_EQ(Format::bytes(count), unit) << Format::bytes(count).toStdString();
        count = count == 12'000 ? 1'500'000 : count * 1000;
    }
    EXPECT_EQ(Format::date(QDateTime(QDate(2024, 3, 5), QTime(23, 59, 59))), row.date);
}

INSTANTIATE_TEST_SUITE_P(Documented, FormatLanguage,
                         testing::Values(Language{AppLanguage::en,
                                                  u"1 byte"_s,
                                                  u"2 bytes"_s,
                                                  u"Zero KB"_s,
                                                  {u"12 KB"_s, u"1.5 MB"_s, u"1.5 GB"_s, u"1.5 TB"_s, u"1.5 PB"_s},
                                                  u"Mar 5, 2024"_s},
                                         Language{AppLanguage::fr,
                                                  u"1\u00a0octet"_s,
                                                  u"2\u00a0octets"_s,
                                                  u"Zéro\u00a0Ko"_s,
                                                  {u"12\u00a0Ko"_s, u"1,5\u00a0Mo"_s, u"1,5\u00a0Go"_s,
                                                   u"1,5\u00a0To"_s, u"1,5\u00a0Po"_s},
                                                  u"5 mars 2024"_s},
                                         Language{AppLanguage::it,
                                                  u"1 byte"_s,
                                                  u"2 byte"_s,
                                                  u"Zero KB"_s,
                                                  {u"12 KB"_s, u"1,5 MB"_s, u"1,5 GB"_s, u"1,5 TB"_s, u"1,5 PB"_s},
                                                  u"5 mar 2024"_s},
                                         Language{AppLanguage::th,
                                                  u"1 ไบต์"_s,
                                                  u"2 ไบต์"_s,
                                                  u"ศูนย์ KB"_s,
                                                  {u"12 KB"_s, u"1.5 MB"_s, u"1.5 GB"_s, u"1.5 TB"_s, u"1.5 PB"_s},
                                                  u"5 มี.ค. 2567"_s},
                                         Language{AppLanguage::de,
                                                  u"1 Byte"_s,
                                                  u"2 Byte"_s,
                                                  u"0 KB"_s,
                                                  {u"12 KB"_s, u"1,5 MB"_s, u"1,5 GB"_s, u"1,5 TB"_s, u"1,5 PB"_s},
                                                  u"05.03.2024"_s},
                                         Language{AppLanguage::es,
                                                  u"1 byte"_s,
                                                  u"2 bytes"_s,
                                                  u"0 KB"_s,
                                                  {u"12 KB"_s, u"1,5 MB"_s, u"1,5 GB"_s, u"1,5 TB"_s, u"1,5 PB"_s},
                                                  u"5 mar 2024"_s},
                                         Language{AppLanguage::tr,
                                                  u"1 bayt"_s,
                                                  u"2 bayt"_s,
                                                  u"0 KB"_s,
                                                  {u"12 KB"_s, u"1,5 MB"_s, u"1,5 GB"_s, u"1,5 TB"_s, u"1,5 PB"_s},
                                                  u"5 Mar 2024"_s},
                                         Language{AppLanguage::ja,
                                                  u"1 バイト"_s,
                                                  u"2 バイト"_s,
                                                  u"0 KB"_s,
                                                  {u"12 KB"_s, u"1.5 MB"_s, u"1.5 GB"_s, u"1.5 TB"_s, u"1.5 PB"_s},
                                                  u"2024/03/05"_s},
                                         Language{AppLanguage::ko,
                                                  u"1바이트"_s,
                                                  u"2바이트"_s,
                                                  u"0KB"_s,
                                                  {u"12KB"_s, u"1.5MB"_s, u"1.5GB"_s, u"1.5TB"_s, u"1.5PB"_s},
                                                  u"2024. 3. 5."_s},
                                         Language{AppLanguage::zhHans,
                                                  u"1 字节"_s,
                                                  u"2 字节"_s,
                                                  u"0 KB"_s,
                                                  {u"12 KB"_s, u"1.5 MB"_s, u"1.5 GB"_s, u"1.5 TB"_s, u"1.5 PB"_s},
                                                  u"2024年3月5日"_s},
                                         Language{AppLanguage::zhHant,
                                                  u"1 位元組"_s,
                                                  u"2 位元組"_s,
                                                  u"0 KB"_s,
                                                  {u"12 KB"_s, u"1.5 MB"_s, u"1.5 GB"_s, u"1.5 TB"_s, u"1.5 PB"_s},
                                                  u"2024年3月5日"_s}));

/// The rules over again, with plain decimal arithmetic: 128 bits hold every product.
QString plainBytes(qint64 count)
{
    if (count == 0)
        return u"Zero KB"_s;
    if (count < 1000)
        return count == 1 ? u"1 byte"_s : u"%1 bytes"_s.arg(count);
    const QStringList names{u"KB"_s, u"MB"_s, u"GB"_s, u"TB"_s, u"PB"_s, u"EB"_s};
    const int decimals[] = {0, 1, 2, 2, 2, 2};
    __extension__ using Wide = __int128;
    Wide unit = 1000;
    for (int at = 0;; ++at, unit *= 1000) {
        Wide power = 1;
        for (int digit = 0; digit < decimals[at]; ++digit)
            power *= 10;
        const Wide rounded = (2 * Wide(count) * power + unit) / (2 * unit);
        if (rounded >= 1000 * power)
            continue;
        QString digits = QString::number(static_cast<qint64>(rounded)).rightJustified(decimals[at] + 1, u'0');
        if (decimals[at] > 0) {
            digits.insert(digits.size() - decimals[at], u'.');
            while (digits.endsWith(u'0'))
                digits.chop(1);
            if (digits.endsWith(u'.'))
                digits.chop(1);
        }
        return digits + u' ' + names[at];
    }
}

TEST_F(FormatTest, agreesWithPlainArithmeticOnRandomCounts)
{
    constexpr quint32 kSeed = 7;
    QRandomGenerator random(kSeed);
    for (int round = 0; round < 20'000; ++round) {
        const qint64 count = static_cast<qint64>(random.generate64() >> (1 + random.bounded(63)));
        ASSERT_EQ(Format::bytes(count), plainBytes(count)) << "seed " << kSeed << ", count " << count;
    }
    for (qint64 power = 1000; power < std::numeric_limits<qint64>::max() / 1000; power *= 10) {
        for (const qint64 half : {power, power * 5, power * 995, power + power / 2, power + power / 20}) {
            for (const qint64 count : {half - 1, half, half + 1})
                ASSERT_EQ(Format::bytes(count), plainBytes(count)) << "count " << count;
        }
    }
}

TEST_F(FormatTest, followsAChangeOfLanguageAtOnce)
{
    EXPECT_EQ(Format::bytes(1'200'000), u"1.2 MB"_s);
    choose(AppLanguage::de);
    EXPECT_EQ(Format::bytes(1'200'000), u"1,2 MB"_s);
    EXPECT_EQ(Format::date(QDateTime(QDate(2024, 3, 5), QTime(0, 0))), u"05.03.2024"_s);
    choose(AppLanguage::en);
    EXPECT_EQ(Format::bytes(1'200'000), u"1.2 MB"_s);
}

TEST_F(FormatTest, showsTheLocalDay)
{
    const QDateTime lateInLondon(QDate(2024, 3, 5), QTime(23, 30), Qt::UTC);
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", "UTC-9"); // nine hours ahead
    ::tzset();
    EXPECT_EQ(Format::date(lateInLondon), u"Mar 6, 2024"_s);
    qputenv("TZ", "UTC9");
    ::tzset();
    EXPECT_EQ(Format::date(QDateTime(QDate(2024, 3, 5), QTime(3, 0), Qt::UTC)), u"Mar 4, 2024"_s);
    qputenv("TZ", before);
    ::tzset();
    EXPECT_EQ(Format::date(lateInLondon), u"Mar 5, 2024"_s);
}

TEST_F(FormatTest, showsDatesFarFromNow)
{
    EXPECT_EQ(Format::date(QDateTime(QDate(1970, 1, 1), QTime(0, 0))), u"Jan 1, 1970"_s);
    EXPECT_EQ(Format::date(QDateTime(QDate(1901, 12, 14), QTime(0, 0))), u"Dec 14, 1901"_s);
    EXPECT_EQ(Format::date(QDateTime(QDate(2446, 5, 10), QTime(0, 0))), u"May 10, 2446"_s);
    EXPECT_EQ(Format::date(QDateTime()), QString());
}

TEST_F(FormatTest, ordersNamesWithoutRegardToCase)
{
    EXPECT_EQ(Format::compareNames(u"Mail"_s, u"mail"_s), 0);
    EXPECT_LT(Format::compareNames(u"apple"_s, u"Banana"_s), 0);
    EXPECT_GT(Format::compareNames(u"Zoo"_s, u"apple"_s), 0);
    EXPECT_EQ(Format::compareNames(u""_s, u""_s), 0);
    EXPECT_LT(Format::compareNames(u""_s, u"a"_s), 0);
}

TEST_F(FormatTest, ordersNamesAsTheLanguageDoes)
{
    QStringList names{u"Zebra"_s, u"Äpfel"_s, u"apfel"_s, u"Birne"_s, u"Éclair"_s};
    choose(AppLanguage::de);
    std::sort(names.begin(), names.end(),
              [](const QString &a, const QString &b) { return Format::compareNames(a, b) < 0; });
    EXPECT_EQ(names, (QStringList{u"apfel"_s, u"Äpfel"_s, u"Birne"_s, u"Éclair"_s, u"Zebra"_s}));
    // Turkish sorts the dotless i before the dotted one; English takes them for one letter and an accent.
    choose(AppLanguage::tr);
    EXPECT_LT(Format::compareNames(u"ız"_s, u"ia"_s), 0);
    choose(AppLanguage::en);
    EXPECT_GT(Format::compareNames(u"ız"_s, u"ia"_s), 0);
}

TEST_F(FormatTest, mayBeCalledOnManyThreadsWhileTheLanguageChanges)
{
    const QDateTime day(QDate(2024, 3, 5), QTime(12, 0));
    std::atomic<bool> done{false};
    std::atomic<int> wrong{0};
    std::atomic<int> calls{0};
    std::vector<std::thread> threads;
    threads.reserve(3);
    for (int thread = 0; thread < 3; ++thread) {
        threads.emplace_back([&] {
            while (!done) {
                const QString bytes = Format::bytes(1'200'000);
                const QString date = Format::date(day);
                wrong += bytes != u"1.2 MB"_s && bytes != u"1,2 MB"_s;
                wrong += date != u"Mar 5, 2024"_s && date != u"05.03.2024"_s && date != u"2024/03/05"_s;
                wrong += Format::compareNames(u"a"_s, u"B"_s) >= 0;
                ++calls;
            }
        });
    }
    const std::array choices{AppLanguage::de, AppLanguage::ja, AppLanguage::en};
    for (size_t turn = 0; turn < 30 || calls < 100; ++turn)
        choose(choices[turn % choices.size()]);
    done = true;
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
}

} // namespace
