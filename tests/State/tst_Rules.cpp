// SPDX-License-Identifier: MIT
#include "State/Confirmations.h"
#include "State/Outcomes.h"
#include "State/RemovalReports.h"
#include "State/Selections.h"
#include "State/Totals.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDateTime kNow = QDateTime::fromString(u"2026-03-05T12:00:00Z"_s, Qt::ISODate);

FileURL url(const char *path)
{
    return FileURL::fromPath(path).value();
}

InstalledApp app(const char *path, const std::optional<QDateTime> &lastUsed, std::optional<qint64> size, qint64 related)
{
    InstalledApp made;
    made.url = url(path);
    made.name = made.url.nameText().chopped(4);
    made.lastUsed = lastUsed;
    made.bundleSize = size;
    made.relatedFiles = {{.name = u"Caches"_s, .url = url("/l/c"), .size = related},
                         {.name = u"Logs"_s, .url = url("/l/g"), .size = std::nullopt}};
    return made;
}

DuplicateGroup group(std::initializer_list<const char *> paths, qint64 size)
{
    DuplicateGroup made{.id = u"0"_s, .files = {}};
    for (const char *path : paths)
        made.files.append({.url = url(path), .size = size, .modified = {}});
    return made;
}

TEST(Totals, countAnApplicationAsUnusedOnlyAfterThirtyDays)
{
    EXPECT_FALSE(Totals::isUnused(app("/a.app", kNow.addDays(-29), 1, 1), kNow));
    EXPECT_FALSE(Totals::isUnused(app("/a.app", kNow.addDays(-30), 1, 1), kNow));
    EXPECT_TRUE(Totals::isUnused(app("/a.app", kNow.addDays(-30).addMSecs(-1), 1, 1), kNow));
    EXPECT_TRUE(Totals::isUnused(app("/a.app", kNow.addDays(-31), 1, 1), kNow));
    EXPECT_FALSE(Totals::isUnused(app("/a.app", std::nullopt, 1, 1), kNow));
}

TEST(Totals, addBundleAndKnownRelatedSizesOfUnusedApplications)
{
    const QList<InstalledApp> apps{app("/a.app", kNow.addDays(-31), 100, 10), app("/b.app", kNow, 1000, 1),
                                   app("/c.app", kNow.addDays(-99), std::nullopt, 5)};
    EXPECT_EQ(Totals::unusedAppsSize(apps, kNow), 115);
    EXPECT_EQ(Totals::unusedAppsSize({}, kNow), 0);
}

TEST(Totals, leaveTheFirstCopyOutOfWhatCanBeReclaimed)
{
    EXPECT_EQ(Totals::reclaimable({group({"/a"}, 10), group({"/b", "/c", "/d"}, 10)}), 20);
}

TEST(Totals, fillTheGaugeLogarithmicallyAndNeverWhole)
{
    EXPECT_EQ(Totals::freeableProgress(0), 0);
    EXPECT_EQ(Totals::freeableProgress(-1), 0);
    EXPECT_NEAR(Totals::freeableProgress(9'000'000'000), 1 / 2.699837725867246, 1e-12);
    EXPECT_EQ(Totals::freeableProgress(1'000'000'000'000), 0.92);
    EXPECT_GT(Totals::freeableProgress(1), 0);
}

TEST(Selections, neverLetTheLastCopyBeTicked)
{
    const DuplicateGroup three = group({"/a", "/b", "/c"}, 1);
    EXPECT_TRUE(Selections::maySelect(three, {}, url("/a")));
    EXPECT_TRUE(Selections::maySelect(three, {url("/a")}, url("/b")));
    EXPECT_FALSE(Selections::maySelect(three, {url("/a"), url("/b")}, url("/c")));
    EXPECT_FALSE(Selections::maySelect(group({"/a"}, 1), {}, url("/a")));
}

TEST(Selections, keepTheFirstOfEachGroup)
{
    const QList<DuplicateGroup> groups{group({"/a", "/b"}, 1), group({"/c", "/d", "/e"}, 1)};
    EXPECT_EQ(Selections::allButFirst(groups), (QSet<FileURL>{url("/b"), url("/d"), url("/e")}));
    EXPECT_EQ(Selections::groupWithoutACopyLeft(groups, Selections::allButFirst(groups)), nullptr);
}

TEST(Selections, nameTheGroupThatWouldLoseEveryCopy)
{
    const QList<DuplicateGroup> groups{group({"/a", "/b"}, 1), group({"/c", "/d"}, 1)};
    EXPECT_EQ(Selections::groupWithoutACopyLeft(groups, {url("/a"), url("/c"), url("/d")}), &groups.at(1));
}

TEST(Selections, listSelectedFilesInGroupOrder)
{
    const QList<DuplicateGroup> groups{group({"/a", "/b"}, 1), group({"/c", "/d"}, 1)};
    const QList<DuplicateFile> files = Selections::selectedFiles(groups, {url("/d"), url("/a"), url("/elsewhere")});
    EXPECT_EQ(RemovalReports::urlsOf(files), (QList<FileURL>{url("/a"), url("/d")}));
}

JunkCategory category(qsizetype files, bool forGood)
{
    JunkCategory made;
    made.id = QUuid::createUuid();
    made.deletesDirectly = forGood;
    for (qsizetype i = 0; i < files; ++i)
        made.files.append({.url = url("/j").child(QByteArray::number(i)), .size = 1'000, .modified = {}});
    made.totalSize = files * 1'000;
    return made;
}

TEST(Confirmations, useSingularFormsForOneCategoryAndOneFile)
{
    const ConfirmData one = Confirmations::cleanJunk({category(1, false)});
    EXPECT_EQ(one.title, u"Clean 1 category?"_s);
    EXPECT_EQ(one.message, u"This will move 1 file to Trash."_s);
    EXPECT_EQ(one.confirmTitle, u"Clean Selected"_s);
    EXPECT_EQ(one.rows.first(), std::pair(u"Total Size"_s, u"1 KB"_s));
    const ConfirmData two = Confirmations::cleanJunk({category(1, false), category(2, false)});
    EXPECT_EQ(two.title, u"Clean 2 categories?"_s);
    EXPECT_EQ(two.message, u"This will move 3 files to Trash."_s);
}

TEST(Confirmations, warnWhenAnySelectedCategoryIsDeletedForGood)
{
    EXPECT_EQ(Confirmations::cleanJunk({category(1, false), category(2, true)}).message,
              u"This will permanently delete 3 files."_s);
    EXPECT_EQ(Confirmations::cleanJunk({category(1, true)}).message, u"This will permanently delete 1 file."_s);
}

TEST(Confirmations, askForLargeFilesAndDuplicates)
{
    const LargeFile file{.url = url("/big"), .size = 2'000'000, .modified = {}};
    EXPECT_EQ(Confirmations::removeLargeFiles({file}).title, u"Remove 1 large file?"_s);
    EXPECT_EQ(Confirmations::removeLargeFiles({file, file}).title, u"Remove 2 large files?"_s);
    const DuplicateFile copy{.url = url("/copy"), .size = 2'000'000, .modified = {}};
    EXPECT_EQ(Confirmations::removeDuplicates({copy}).title, u"Remove 1 duplicate file?"_s);
    EXPECT_EQ(Confirmations::removeDuplicates({copy, copy}).rows.first(),
              std::pair(u"Selected Files"_s, u"2 · 4 MB"_s));
}

TEST(Confirmations, showTheIconAndNameOfASingleApplication)
{
    InstalledApp single = app("/Apps/Editor.app", kNow, 1'000'000, 2'000);
    single.icon = url("/Apps/Editor.app/icon.icns");
    const ConfirmData one = Confirmations::uninstall({single});
    EXPECT_EQ(one.title, u"Uninstall Editor?"_s);
    EXPECT_EQ(one.iconImage, single.icon);
    EXPECT_EQ(one.rows, (QList<std::pair<QString, QString>>{{u"Application"_s, u"1 · 1 MB"_s},
                                                            {u"Related Files"_s, u"2 · 2 KB"_s}}));
    const ConfirmData two = Confirmations::uninstall({single, single});
    EXPECT_EQ(two.title, u"Uninstall 2 apps?"_s);
    EXPECT_EQ(two.iconImage, std::nullopt);
    EXPECT_EQ(two.rows.first().first, u"Applications"_s);
}

TEST(Confirmations, showStartupItemsWithoutTheirEnding)
{
    const StartupItem item{.name = u"org.sample.plist"_s, .path = url("/h/org.sample.plist")};
    EXPECT_EQ(Confirmations::removeStartupItem(item).title, u"Remove org.sample?"_s);
    EXPECT_EQ(Confirmations::displayName({.name = u"plain"_s, .path = url("/h/plain")}), u"plain"_s);
}

struct OutcomeCase {
    const char *name;
    Outcomes::Facts facts;
    bool toast;
    QString alertMessage;
};

TEST(Outcomes, areOneOfThree)
{
    const std::error_code denied = std::make_error_code(std::errc::permission_denied);
    const QString skipped = u"8 KB freed, but 2 protected items were skipped (such as diagnostic reports or sandbox "
                            u"data). You can remove them manually in Finder."_s;
    const QList<OutcomeCase> cases{
        {"all went",
         {.removedCount = 2, .failedCount = 0, .bytes = 10, .firstError = {}, .partialTitle = {}},
         true,
         {}},
        {"some went",
         {.removedCount = 8, .failedCount = 2, .bytes = 8'000, .firstError = denied, .partialTitle = {}},
         false,
         skipped},
        {"none went",
         {.removedCount = 0, .failedCount = 3, .bytes = 0, .firstError = denied, .partialTitle = {}},
         false,
         Outcomes::words(denied)},
        {"stopped before the first", {}, false, {}},
    };
    for (const OutcomeCase &row : cases) {
        SCOPED_TRACE(row.name);
        const Outcomes::Notice notice = Outcomes::outcomeOf(row.facts, Outcomes::junk);
        EXPECT_EQ(notice.toast.has_value(), row.toast);
        EXPECT_EQ(notice.alert.has_value(), !row.alertMessage.isEmpty());
        if (notice.alert) {
            EXPECT_EQ(notice.alert->title, u"Can't clean junk"_s);
            EXPECT_EQ(notice.alert->message, row.alertMessage);
        }
    }
}

TEST(Outcomes, nameTheCountWhereTheToastDoes)
{
    Outcomes::Facts facts{.removedCount = 3,
                          .failedCount = 0,
                          .bytes = 1'200'000,
                          .firstError = {},
                          .partialTitle = {},
                          .count = Outcomes::Count::said};
    EXPECT_EQ(Outcomes::outcomeOf(facts, Outcomes::duplicates).toast,
              (ToastData{.symbol = u"checkmark.circle.fill"_s,
                         .tintHex = 0x22C55E,
                         .message = u"Removed 3 duplicates — 1.2 MB freed"_s}));
}

TEST(RemovalReports, countWhatWasNotReachedAsNeitherRemovedNorFailed)
{
    const TrashResult result{.removed = {url("/a")},
                             .failed = {{.url = url("/b"), .error = std::make_error_code(std::errc::io_error)}},
                             .notReached = {url("/c")}};
    EXPECT_EQ(RemovalReports::stayed(result), (QSet<FileURL>{url("/b"), url("/c")}));
    const RemovalReport report = RemovalReports::reportOf(result, {{url("/a"), 7}, {url("/b"), 9}, {url("/c"), 11}});
    EXPECT_EQ(report.removed, (QList<RemovedItem>{{.url = url("/a"), .size = 7}}));
    EXPECT_EQ(report.failed.size(), 1);
    EXPECT_EQ(report.bytes, 7);
    EXPECT_TRUE(report.stopped);
}

} // namespace
