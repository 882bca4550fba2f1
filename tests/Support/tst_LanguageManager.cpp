// SPDX-License-Identifier: MIT
#include "Support/LanguageManager.h"
#include "Support/LanguageSnapshot.h"
#include "Support/Text.h"
#include "Support/UserDefaults.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

using namespace Qt::StringLiterals;

namespace {

class LanguageManagerTest : public testing::Test
{
protected:
    QTemporaryDir folder;
    UserDefaults defaults{folder.filePath(u"Brisko.conf"_s)};
};

TEST_F(LanguageManagerTest, storesTraditionalChineseUnderBothKeys)
{
    LanguageManager::apply(AppLanguage::zhHant, defaults);
    EXPECT_EQ(defaults.text(DefaultsKey::appLanguage), u"zh-Hant"_s);
    EXPECT_EQ(defaults.textList(DefaultsKey::appleLanguages), QStringList{u"zh-Hant"_s});
}

TEST_F(LanguageManagerTest, forgetsTheListWhenTheSystemIsChosenAgain)
{
    LanguageManager::apply(AppLanguage::ja, defaults);
    EXPECT_TRUE(defaults.contains(DefaultsKey::appleLanguages));
    LanguageManager::apply(AppLanguage::system, defaults);
    EXPECT_EQ(defaults.text(DefaultsKey::appLanguage), u"system"_s);
    EXPECT_FALSE(defaults.contains(DefaultsKey::appleLanguages));
}

TEST_F(LanguageManagerTest, startsInSystemForAnUnknownStoredLanguage)
{
    LanguageManager::apply(AppLanguage::de, defaults);
    defaults.setText(DefaultsKey::appLanguage, u"pt"_s);
    LanguageManager::activate(defaults);
    EXPECT_EQ(LanguageManager::current(), AppLanguage::system);
    EXPECT_EQ(defaults.text(DefaultsKey::appLanguage), u"system"_s);
    EXPECT_FALSE(defaults.contains(DefaultsKey::appleLanguages));
}

TEST_F(LanguageManagerTest, startsInSystemWithNothingStored)
{
    LanguageManager::apply(AppLanguage::de, defaults);
    defaults.remove(DefaultsKey::appLanguage);
    LanguageManager::activate(defaults);
    EXPECT_EQ(LanguageManager::current(), AppLanguage::system);
}

TEST_F(LanguageManagerTest, startsInTheStoredLanguage)
{
    defaults.setText(DefaultsKey::appLanguage, u"ja"_s);
    LanguageManager::activate(defaults);
    EXPECT_EQ(LanguageManager::current(), AppLanguage::ja);
    EXPECT_EQ(LanguageManager::localizedString(u"Trash"), u"ゴミ箱"_s);
    EXPECT_EQ(defaults.textList(DefaultsKey::appleLanguages), QStringList{u"ja"_s});
}

TEST_F(LanguageManagerTest, formatsGermanWithTheGermanLocale)
{
    LanguageManager::apply(AppLanguage::de, defaults);
    EXPECT_EQ(LanguageManager::localeIdentifier(), u"de_DE"_s);
    EXPECT_EQ(LanguageManager::locale(), QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(Text::filled(u"Hashing files… %lld%%", {qint64{1'234}}), u"Dateien werden verglichen … 1.234 %"_s);
}

TEST_F(LanguageManagerTest, hasTheDocumentedLocaleForEachLanguage)
{
    const QList<std::pair<AppLanguage, QString>> documented{
        {AppLanguage::en, u"en_US"_s},          {AppLanguage::ja, u"ja_JP"_s},          {AppLanguage::ko, u"ko_KR"_s},
        {AppLanguage::zhHans, u"zh_Hans_CN"_s}, {AppLanguage::zhHant, u"zh_Hant_TW"_s}, {AppLanguage::de, u"de_DE"_s},
        {AppLanguage::fr, u"fr_FR"_s},          {AppLanguage::es, u"es_ES"_s},          {AppLanguage::it, u"it_IT"_s},
        {AppLanguage::tr, u"tr_TR"_s},          {AppLanguage::th, u"th_TH"_s}};
    for (const auto &[language, identifier] : documented) {
        LanguageManager::apply(language, defaults);
        EXPECT_EQ(LanguageManager::current(), language);
        EXPECT_EQ(LanguageManager::shownLanguage(), language);
        EXPECT_EQ(LanguageManager::localeIdentifier(), identifier);
    }
}

TEST_F(LanguageManagerTest, translatesIntoEachLanguage)
{
    std::set<QString> words;
    for (const AppLanguage language : allLanguages()) {
        if (language == AppLanguage::system)
            continue;
        LanguageManager::apply(language, defaults);
        words.insert(Text::lookup(u"Duplicates"));
    }
    EXPECT_EQ(qsizetype(words.size()), allLanguages().size() - 1);
}

TEST_F(LanguageManagerTest, namesEachLanguageInItself)
{
    LanguageManager::apply(AppLanguage::ja, defaults);
    const QStringList names{u"システム"_s, u"English"_s,  u"日本語"_s,  u"한국어"_s,   u"简体中文"_s, u"繁體中文"_s,
                            u"Deutsch"_s,  u"Français"_s, u"Español"_s, u"Italiano"_s, u"Türkçe"_s,   u"ไทย"_s};
    QStringList ours;
    for (const AppLanguage language : allLanguages())
        ours.append(LanguageManager::nativeName(language));
    EXPECT_EQ(ours, names);
}

TEST_F(LanguageManagerTest, picksTheFirstSystemLanguageWithTexts)
{
    using LanguageManager::preferredLanguage;
    EXPECT_EQ(preferredLanguage({u"de-AT"_s, u"de-Latn-AT"_s}), AppLanguage::de);
    EXPECT_EQ(preferredLanguage({u"ja"_s}), AppLanguage::ja);
    EXPECT_EQ(preferredLanguage({u"pt-BR"_s, u"de"_s, u"ja"_s}), AppLanguage::de);
    EXPECT_EQ(preferredLanguage({u"en-GB"_s, u"de"_s}), AppLanguage::en);
    EXPECT_EQ(preferredLanguage({u"pt-BR"_s}), AppLanguage::en);
    EXPECT_EQ(preferredLanguage({u"C"_s}), AppLanguage::en);
    EXPECT_EQ(preferredLanguage({}), AppLanguage::en);
}

TEST_F(LanguageManagerTest, makesOneSnapshotForEachLanguage)
{
    std::set<const LanguageSnapshot *> seen;
    for (int round = 0; round < 3; ++round) {
        for (const AppLanguage language : allLanguages()) {
            LanguageManager::apply(language, defaults);
            seen.insert(&languageSnapshot());
        }
    }
    EXPECT_EQ(qsizetype(seen.size()), allLanguages().size());
}

struct SystemLanguage {
    QList<std::pair<QString, QString>> environment;
    QString answer; // shown language, locale, "Trash", 12,500, 1.2 MB and a day
};

class SystemLanguageTest : public testing::TestWithParam<SystemLanguage>
{
};

TEST_P(SystemLanguageTest, isTakenFromTheEnvironment)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name : {u"LC_ALL"_s, u"LC_MESSAGES"_s, u"LC_NUMERIC"_s, u"LANG"_s, u"LANGUAGE"_s})
        environment.remove(name);
    for (const auto &[name, value] : GetParam().environment)
        environment.insert(name, value);
    QProcess probe;
    probe.setProcessEnvironment(environment);
    probe.start(QStringLiteral(SYSTEM_LANGUAGE_PROBE), QStringList());
    ASSERT_TRUE(probe.waitForFinished());
    EXPECT_EQ(QString::fromUtf8(probe.readAllStandardOutput()), GetParam().answer);
}

TEST(LanguageWithoutATable, showsEnglishTextsAndIsStoredAllTheSame)
{
    QProcess probe;
    probe.start(QStringLiteral(SYSTEM_LANGUAGE_PROBE), {u"--without-tables"_s});
    ASSERT_TRUE(probe.waitForFinished());
    EXPECT_EQ(QString::fromUtf8(probe.readAllStandardOutput()), u"ko|ko_KR|Trash|ko|ko"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Environments, SystemLanguageTest,
    testing::Values(
        SystemLanguage{{}, u"en|en_US|Trash|12,500|1.2 MB|Mar 5, 2024"_s},
        SystemLanguage{{{u"LC_ALL"_s, u"C"_s}}, u"en|en_US|Trash|12,500|1.2 MB|Mar 5, 2024"_s},
        SystemLanguage{{{u"LC_ALL"_s, u"POSIX"_s}, {u"LANGUAGE"_s, u"de"_s}},
                       u"en|en_US|Trash|12,500|1.2 MB|Mar 5, 2024"_s},
        SystemLanguage{{{u"LANG"_s, u"C.UTF-8"_s}}, u"en|en_US|Trash|12,500|1.2 MB|Mar 5, 2024"_s},
        SystemLanguage{{{u"LANG"_s, u"de_DE.UTF-8"_s}}, u"de|de_DE|Papierkorb|12.500|1,2 MB|05.03.2024"_s},
        SystemLanguage{{{u"LANG"_s, u"de_CH.UTF-8"_s}}, u"de|de_CH|Papierkorb|12’500|1.2 MB|05.03.2024"_s},
        SystemLanguage{{{u"LANG"_s, u"ja_JP.UTF-8"_s}}, u"ja|ja_JP|ゴミ箱|12,500|1.2 MB|2024/03/05"_s},
        SystemLanguage{{{u"LANG"_s, u"ko_KR.UTF-8"_s}}, u"ko|ko_KR|휴지통|12,500|1.2MB|2024. 3. 5."_s},
        SystemLanguage{{{u"LANG"_s, u"zh_CN.UTF-8"_s}}, u"zh-Hans|zh_CN|废纸篓|12,500|1.2 MB|2024年3月5日"_s},
        SystemLanguage{{{u"LANG"_s, u"zh_TW.UTF-8"_s}}, u"zh-Hant|zh_TW|垃圾桶|12,500|1.2 MB|2024年3月5日"_s},
        SystemLanguage{{{u"LANG"_s, u"fr_FR.UTF-8"_s}}, u"fr|fr_FR|Corbeille|12\u202f500|1,2\u00a0Mo|5 mars 2024"_s},
        SystemLanguage{{{u"LANG"_s, u"es_ES.UTF-8"_s}}, u"es|es_ES|Papelera|12.500|1,2 MB|5 mar 2024"_s},
        SystemLanguage{{{u"LANG"_s, u"it_IT.UTF-8"_s}}, u"it|it_IT|Cestino|12.500|1,2 MB|5 mar 2024"_s},
        SystemLanguage{{{u"LANG"_s, u"tr_TR.UTF-8"_s}}, u"tr|tr_TR|Çöp|12.500|1,2 MB|5 Mar 2024"_s},
        SystemLanguage{{{u"LANG"_s, u"th_TH.UTF-8"_s}}, u"th|th_TH|ถังขยะ|12,500|1.2 MB|5 มี.ค. 2567"_s},
        SystemLanguage{{{u"LANG"_s, u"en_US.UTF-8"_s}, {u"LANGUAGE"_s, u"pt:ja"_s}},
                       u"ja|pt_BR|ゴミ箱|12.500|1,2 MB|5 de mar. de 2024"_s},
        SystemLanguage{{{u"LANG"_s, u"pt_BR.UTF-8"_s}}, u"en|pt_BR|Trash|12.500|1,2 MB|5 de mar. de 2024"_s},
        SystemLanguage{{{u"LANG"_s, u"xx_YY.UTF-8"_s}}, u"en|en_US|Trash|12,500|1.2 MB|Mar 5, 2024"_s}));

struct Region {
    QString code;
    AppLanguage language;
};

TEST(ChineseRegions, areMatchedByScript)
{
    for (const Region &region : {Region{u"zh-TW"_s, AppLanguage::zhHant}, Region{u"zh-HK"_s, AppLanguage::zhHant},
                                 Region{u"zh-MO"_s, AppLanguage::zhHant}, Region{u"zh-Hant"_s, AppLanguage::zhHant},
                                 Region{u"zh-CN"_s, AppLanguage::zhHans}, Region{u"zh-SG"_s, AppLanguage::zhHans},
                                 Region{u"zh"_s, AppLanguage::zhHans}, Region{u"zh-Hans-HK"_s, AppLanguage::zhHans}}) {
        EXPECT_EQ(LanguageManager::languageOfCode(region.code), region.language) << region.code.toStdString();
    }
    EXPECT_EQ(LanguageManager::languageOfCode(u"pt-BR"_s), std::nullopt);
    EXPECT_EQ(LanguageManager::languageOfCode(u"C"_s), std::nullopt);
}

} // namespace
