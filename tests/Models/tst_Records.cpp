// SPDX-License-Identifier: MIT
#include "Models/ActivityRecord.h"
#include "Models/CheckedSum.h"
#include "Models/Duplicates.h"
#include "Models/Preferences.h"
#include "Models/StartupItem.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

DuplicateGroup groupOf(int count, qint64 size)
{
    DuplicateGroup group;
    for (int i = 0; i < count; ++i)
        group.files.append({.url = FileURL::root().child(QByteArray::number(i)), .size = size, .modified = {}});
    return group;
}

TEST(DuplicateGroup, countsEveryCopyButTheFirst)
{
    EXPECT_EQ(groupOf(0, 10).reclaimable(), 0);
    EXPECT_EQ(groupOf(1, 10).reclaimable(), 0);
    EXPECT_EQ(groupOf(3, 10).reclaimable(), 20);
}

TEST(CheckedSumDeathTest, endsTheProgramOnOverflow)
{
    EXPECT_EQ(checkedSum(2, 3), 5);
    EXPECT_DEATH((void)checkedSum(std::numeric_limits<qint64>::max(), 1), "overflow");
}

TEST(Preferences, readUnknownStoredValuesAsSystem)
{
    EXPECT_EQ(appearanceFromRaw(0), AppearanceOption::system);
    EXPECT_EQ(appearanceFromRaw(1), AppearanceOption::light);
    EXPECT_EQ(appearanceFromRaw(2), AppearanceOption::dark);
    EXPECT_EQ(appearanceFromRaw(5), AppearanceOption::system);
    EXPECT_EQ(languageFromRaw(u"xx"), AppLanguage::system);
    EXPECT_EQ(languageFromRaw(u""), AppLanguage::system);
}

TEST(Preferences, storeEachLanguageUnderItsOwnText)
{
    EXPECT_EQ(allLanguages().size(), 12);
    for (const AppLanguage language : allLanguages())
        EXPECT_EQ(languageFromRaw(rawValue(language)), language);
    EXPECT_EQ(rawValue(AppLanguage::zhHant), u"zh-Hant"_s);
}

TEST(ActivityKind, readsBackWhatItStores)
{
    EXPECT_EQ(rawValue(ActivityKind::appUninstalled), u"appUninstalled"_s);
    EXPECT_EQ(activityKindFromRaw(u"startupItemRemoved"), ActivityKind::startupItemRemoved);
    EXPECT_EQ(activityKindFromRaw(u"somethingElse"), std::nullopt);
}

TEST(StartupType, hasDocumentedNames)
{
    EXPECT_EQ(rawValue(StartupType::launchAgent), u"Launch Agent"_s);
    EXPECT_EQ(rawValue(StartupType::launchDaemon), u"Launch Daemon"_s);
    EXPECT_EQ(rawValue(StartupType::loginItem), u"Login Item"_s);
}

} // namespace
