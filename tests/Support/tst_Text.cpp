// SPDX-License-Identifier: MIT
#include "Support/LanguageManager.h"
#include "Support/Text.h"
#include "Support/UserDefaults.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

class TextTest : public testing::Test
{
protected:
    void SetUp() override { choose(AppLanguage::en); }
    void choose(AppLanguage language) { LanguageManager::apply(language, m_defaults); }

private:
    QTemporaryDir m_folder;
    UserDefaults m_defaults{m_folder.filePath(u"Brisko.conf"_s)};
};

TEST_F(TextTest, looksUpInTheChosenLanguage)
{
    EXPECT_EQ(Text::lookup(u"Trash"), u"Trash"_s);
    choose(AppLanguage::de);
    EXPECT_EQ(Text::lookup(u"Trash"), u"Papierkorb"_s);
    choose(AppLanguage::ja);
    EXPECT_EQ(Text::lookup(u"Trash"), u"ゴミ箱"_s);
}

TEST_F(TextTest, answersTheEnglishTextWhereThereIsNoTranslation)
{
    choose(AppLanguage::de);
    EXPECT_EQ(Text::lookup(u"A text that nobody has translated — ünïcode"),
              u"A text that nobody has translated — ünïcode"_s);
    EXPECT_EQ(Text::lookup(u""), QString());
}

TEST_F(TextTest, fillsPlaceholdersInOrder)
{
    EXPECT_EQ(Text::format(u"%@ freed, but %lld items were skipped"_s, {u"1 MB"_s, qint64{3}}),
              u"1 MB freed, but 3 items were skipped"_s);
    EXPECT_EQ(Text::format(u"%@%@%@"_s, {u"a"_s, u"b"_s, u"c"_s}), u"abc"_s);
}

TEST_F(TextTest, looksUpFirstAndFillsThen)
{
    choose(AppLanguage::de);
    EXPECT_EQ(Text::filled(u"Removed %lld duplicates — %@ freed", {qint64{12'500}, u"1,2 MB"_s}),
              u"12.500 Duplikate entfernt – 1,2 MB freigegeben"_s);
}

TEST_F(TextTest, fillsNumberedPlaceholdersInAnyOrder)
{
    EXPECT_EQ(Text::format(u"%2$lld of %1$@, %1$@ again"_s, {u"files"_s, qint64{7}}), u"7 of files, files again"_s);
}

TEST_F(TextTest, writesDoubledPercentSignsOnce)
{
    EXPECT_EQ(Text::format(u"%lld%%"_s, {qint64{42}}), u"42%"_s);
    EXPECT_EQ(Text::format(u"%%@ %%%%"_s, {u"x"_s}), u"%@ %%"_s);
}

TEST_F(TextTest, leavesAPlaceholderWithoutAnArgumentOfItsKind)
{
    EXPECT_EQ(Text::format(u"%@ and %@"_s, {u"one"_s}), u"one and %@"_s);
    EXPECT_EQ(Text::format(u"%lld and %lld"_s, {u"text"_s, qint64{2}}), u"%lld and 2"_s);
    EXPECT_EQ(Text::format(u"%@"_s, {qint64{1}}), u"%@"_s);
    EXPECT_EQ(Text::format(u"%3$@ %0$@ %999$lld"_s, {u"x"_s}), u"%3$@ %0$@ %999$lld"_s);
}

TEST_F(TextTest, leavesWhatIsNoPlaceholder)
{
    for (const QString &text : {u"100% sure"_s, u"%"_s, u"a%"_s, u"%1"_s, u"%1$"_s, u"%12345678901234567890$@"_s,
                                u"%ll"_s, u"%d %s %.0f°"_s, u"%1$%"_s})
        EXPECT_EQ(Text::format(text, {u"x"_s, qint64{1}}), text);
}

TEST_F(TextTest, doesNotFillWhatAnArgumentBroughtAlong)
{
    EXPECT_EQ(Text::format(u"%@ %@"_s, {u"%@ %lld %%"_s, u"b"_s}), u"%@ %lld %% b"_s);
}

struct Grouping {
    AppLanguage language;
    qint64 number;
    QString text;
};

class TextGrouping : public TextTest, public testing::WithParamInterface<Grouping>
{
};

TEST_P(TextGrouping, followsTheLanguage)
{
    const Grouping &row = GetParam();
    choose(row.language);
    EXPECT_EQ(Text::format(u"%lld"_s, {row.number}), row.text);
}

INSTANTIATE_TEST_SUITE_P(
    Languages, TextGrouping,
    testing::Values(Grouping{AppLanguage::en, 12'500, u"12,500"_s}, Grouping{AppLanguage::en, 999, u"999"_s},
                    Grouping{AppLanguage::en, 0, u"0"_s}, Grouping{AppLanguage::en, -1'000, u"-1,000"_s},
                    Grouping{AppLanguage::en, std::numeric_limits<qint64>::max(), u"9,223,372,036,854,775,807"_s},
                    Grouping{AppLanguage::en, std::numeric_limits<qint64>::min(), u"-9,223,372,036,854,775,808"_s},
                    Grouping{AppLanguage::de, 12'500, u"12.500"_s}, Grouping{AppLanguage::ja, 12'500, u"12,500"_s},
                    Grouping{AppLanguage::ko, 12'500, u"12,500"_s}, Grouping{AppLanguage::zhHans, 12'500, u"12,500"_s},
                    Grouping{AppLanguage::zhHant, 12'500, u"12,500"_s},
                    Grouping{AppLanguage::fr, 12'500, u"12\u202f500"_s}, Grouping{AppLanguage::tr, 12'500, u"12.500"_s},
                    Grouping{AppLanguage::it, 12'500, u"12.500"_s},
                    // Spanish groups from five digits on.
                    Grouping{AppLanguage::es, 1'500, u"1500"_s}, Grouping{AppLanguage::es, 12'500, u"12.500"_s},
                    Grouping{AppLanguage::th, 12'500, u"12,500"_s}));

} // namespace
