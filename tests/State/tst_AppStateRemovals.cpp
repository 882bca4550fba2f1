// SPDX-License-Identifier: MIT
#include "State/Outcomes.h"
#include "State/Selections.h"
#include "State/StateFixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// Every flow that removes: what goes, what stays, what is said and what is recorded.
class tst_AppStateRemovals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleansACategoryWhole();
    void deletesTheTrashForGood();
    void keepsACategoryWithWhatFailed();
    void changesNothingWhenAllFailed();
    void ignoresACategoryThatIsGone();
    void dropsAFileFromEveryCategoryThatListsIt();
    void movesLargeFilesToTheTrash();
    void usesTheSingularForOneLargeFile();
    void removesOnlyWhatIsListed();
    void ignoresASecondClick();
    void dropsAGroupWithoutCopies();
    void keepsAGroupOfTwo();
    void ignoresASelectionFromNowhere();
    void uninstallsRelatedFilesFirst();
    void keepsAnApplicationWhoseBundleStayed();
    void countsAFailedCacheFileOnly();
    void selectsNothingToUninstallSilently();
    void neverTakesAnApplicationApart();
    void landsDetailsByIdentity();
    void stopsBetweenTwoItems();
    void togglesAUserLevelItem();
    void leavesASystemItemAsItIs();
    void removesAStartupItem();
    void refusesToRemoveASystemItem();
    void removesNothingWithoutAUsableHome();
};

namespace {

InstalledApp found(const AppState &state, const FileURL &bundle)
{
    for (const InstalledApp &app : state.apps()) {
        if (app.url == bundle)
            return app;
    }
    return {};
}

void scanAppsWithDetails(AppState &state)
{
    StateFixture::wait(state.scanApps());
    QTRY_VERIFY(!state.appDetailsLoading());
}

FileURL makeApp(const StateFixture &f, const QByteArray &name, qsizetype size = 5'000)
{
    f.tree.file("home/Applications/" + name + ".app/Contents/program", QByteArray(size, 'p'));
    return f.home.appending("Applications/" + name + ".app");
}

} // namespace

void tst_AppStateRemovals::cleansACategoryWhole()
{
    StateFixture f;
    f.oldDownload("a.zip", 700);
    f.oldDownload("b.zip", 500);
    AppState &state = f.make();
    StateFixture::wait(state.scanJunkAsync());
    QCOMPARE(state.junkCategories().size(), 1);
    QCOMPARE(state.junkReclaimable(), 1'200);
    QSignalSpy removing(&state, &AppState::removingChanged);
    const RemovalReport report = StateFixture::wait(state.removeJunkCategory(state.junkCategories().first().id));
    QVERIFY(state.junkCategories().isEmpty());
    QCOMPARE(report.bytes, 1'200);
    QCOMPARE(report.removed.size(), 2);
    QCOMPARE(state.toast()->message, u"Cleaned — 1 KB freed"_s);
    QCOMPARE(state.activities().size(), 1);
    QCOMPARE(state.activities().first().title, u"Old Downloads cleaned"_s);
    QCOMPARE(state.activities().first().detail, u"1 KB freed"_s);
    QCOMPARE(state.activities().first().bytes, 1'200);
    QCOMPARE(removing.count(), 2);
    QVERIFY(!state.alert());
}

void tst_AppStateRemovals::deletesTheTrashForGood()
{
    StateFixture f;
    f.tree.file("home/.Trash/folder/inside", "12345");
    AppState &state = f.make();
    StateFixture::wait(state.scanJunkAsync());
    QCOMPARE(state.junkCategories().size(), 1);
    QVERIFY(state.junkCategories().first().deletesDirectly);
    const RemovalReport report = StateFixture::wait(state.removeJunkCategory(state.junkCategories().first().id));
    QCOMPARE(report.bytes, 5);
    QVERIFY(!ScratchTree::exists(f.home.appending(".Trash/folder")));
    QVERIFY2(QDir(f.trash.text()).isEmpty(), "no second copy lands in the Trash");
}

void tst_AppStateRemovals::keepsACategoryWithWhatFailed()
{
    StateFixture f;
    QList<FileURL> files;
    for (int i = 0; i < 10; ++i)
        files.append(f.oldDownload("f" + QByteArray::number(i), 1'000));
    f.fakes.trashCan->refuse(files.at(2));
    f.fakes.trashCan->refuse(files.at(7));
    AppState &state = f.make();
    StateFixture::wait(state.scanJunkAsync());
    const QUuid id = state.junkCategories().first().id;
    StateFixture::wait(state.removeJunkCategory(id));
    QCOMPARE(state.junkCategories().size(), 1);
    QCOMPARE(state.junkCategories().first().id, id);
    QCOMPARE(state.junkCategories().first().files.size(), 2);
    QCOMPARE(state.junkCategories().first().totalSize, 2'000);
    QCOMPARE(state.alert()->title, u"Can't clean junk"_s);
    QCOMPARE(state.alert()->message,
             u"8 KB freed, but 2 protected items were skipped (such as diagnostic reports or sandbox data). You can "
             u"remove them manually in Finder."_s);
    QCOMPARE(state.activities().size(), 1);
    QVERIFY(!state.toast());
}

void tst_AppStateRemovals::changesNothingWhenAllFailed()
{
    StateFixture f;
    const FileURL file = f.oldDownload("only", 1'000);
    f.fakes.trashCan->refuse(file, std::errc::read_only_file_system);
    AppState &state = f.make();
    StateFixture::wait(state.scanJunkAsync());
    const QList<JunkCategory> before = state.junkCategories();
    StateFixture::wait(state.removeJunkCategory(before.first().id));
    QCOMPARE(state.junkCategories(), before);
    QCOMPARE(state.alert()->message, Outcomes::words(std::make_error_code(std::errc::read_only_file_system)));
    QVERIFY(state.activities().isEmpty());
}

void tst_AppStateRemovals::ignoresACategoryThatIsGone()
{
    StateFixture f;
    f.oldDownload("a", 10);
    AppState &state = f.make();
    StateFixture::wait(state.scanJunkAsync());
    const QUuid old = state.junkCategories().first().id;
    StateFixture::wait(state.scanJunkAsync());
    const RemovalReport report = StateFixture::wait(state.removeJunkCategory(old));
    QCOMPARE(report, RemovalReport());
    QVERIFY(!state.toast() && !state.alert());
    QVERIFY(f.fakes.trashCan->asked().isEmpty());
}

void tst_AppStateRemovals::dropsAFileFromEveryCategoryThatListsIt()
{
    StateFixture f;
    f.tree.file("home/Library/Caches/Firefox/cache", "12345");
    f.tree.file("home/Library/Caches/other", "123");
    AppState &state = f.make();
    StateFixture::wait(state.scanJunkAsync());
    QCOMPARE(state.junkCategories().size(), 2);
    QCOMPARE(state.junkCategories().at(0).name, u"App Caches"_s);
    const QUuid browsers = state.junkCategories().at(1).id;
    StateFixture::wait(state.removeJunkCategory(state.junkCategories().at(0).id));
    QVERIFY2(state.junkCategories().isEmpty(), "the browser's cache went with the caches folder");
    const RemovalReport second = StateFixture::wait(state.removeJunkCategory(browsers));
    QCOMPARE(second, RemovalReport());
}

void tst_AppStateRemovals::movesLargeFilesToTheTrash()
{
    StateFixture f;
    const FileURL small = f.tree.sparseFile("home/a", 2'000'000);
    const FileURL big = f.tree.sparseFile("home/b", 3'000'000);
    f.tree.sparseFile("home/c", 4'000'000);
    AppState &state = f.make();
    StateFixture::wait(state.scanLargeFilesAsync(std::nullopt, 2'000'000));
    QCOMPARE(state.largeFiles().size(), 3);
    QCOMPARE(state.largeFilesTotalSize(), 9'000'000);
    const RemovalReport report = StateFixture::wait(state.removeLargeFiles({small, big}));
    QCOMPARE(report.bytes, 5'000'000);
    QCOMPARE(state.largeFiles().size(), 1);
    QCOMPARE(state.activities().first().title, u"2 large files removed"_s);
    QCOMPARE(state.toast()->message, u"Moved to Trash — 5 MB freed"_s);
}

void tst_AppStateRemovals::usesTheSingularForOneLargeFile()
{
    StateFixture f;
    const FileURL file = f.tree.sparseFile("home/a", 2'000'000);
    AppState &state = f.make();
    StateFixture::wait(state.scanLargeFilesAsync(std::nullopt, 1));
    StateFixture::wait(state.removeLargeFiles({file}));
    QCOMPARE(state.activities().first().title, u"1 large file removed"_s);
}

void tst_AppStateRemovals::removesOnlyWhatIsListed()
{
    StateFixture f;
    const FileURL unlisted = f.tree.file("home/notes.txt", "dear diary");
    AppState &state = f.make();
    StateFixture::wait(state.scanLargeFilesAsync(std::nullopt, 1'000));
    QCOMPARE(StateFixture::wait(state.removeLargeFiles({unlisted})), RemovalReport());
    QVERIFY(ScratchTree::exists(unlisted));
    QVERIFY(f.fakes.trashCan->asked().isEmpty());
    QVERIFY(!state.alert() && !state.toast() && state.activities().isEmpty());
}

void tst_AppStateRemovals::ignoresASecondClick()
{
    StateFixture f;
    const FileURL file = f.tree.sparseFile("home/a", 2'000'000);
    AppState &state = f.make();
    StateFixture::wait(state.scanLargeFilesAsync(std::nullopt, 1));
    QCoro::Task<RemovalReport> first = state.removeLargeFiles({file});
    QCoro::Task<RemovalReport> second = state.removeLargeFiles({file});
    QCOMPARE(QCoro::waitFor(first).bytes, 2'000'000);
    QCOMPARE(QCoro::waitFor(second), RemovalReport());
    QCOMPARE(f.fakes.trashCan->asked(), QList<FileURL>{file});
    QCOMPARE(state.activities().size(), 1);
}

void tst_AppStateRemovals::dropsAGroupWithoutCopies()
{
    StateFixture f;
    const QByteArray content(5'000, 'd');
    f.tree.file("home/Pictures/a", content);
    const FileURL copy = f.tree.file("home/Pictures/b", content);
    AppState &state = f.make();
    StateFixture::wait(state.scanDuplicates());
    QCOMPARE(state.duplicateGroups().size(), 1);
    QCOMPARE(state.duplicateReclaimable(), 5'000);
    const RemovalReport report = StateFixture::wait(state.removeDuplicates({copy}, state.duplicateGroups()));
    QCOMPARE(report.removed.size(), 1);
    QVERIFY(state.duplicateGroups().isEmpty());
    QCOMPARE(state.activities().first().title, u"1 duplicate files removed"_s);
    QCOMPARE(state.activities().first().detail, u"5 KB removed"_s);
    QCOMPARE(state.toast()->message, u"Removed 1 duplicates — 5 KB freed"_s);
}

void tst_AppStateRemovals::keepsAGroupOfTwo()
{
    StateFixture f;
    const QByteArray content(5'000, 'd');
    f.tree.file("home/Pictures/a", content);
    f.tree.file("home/Pictures/b", content);
    const FileURL copy = f.tree.file("home/Pictures/c", content);
    AppState &state = f.make();
    StateFixture::wait(state.scanDuplicates());
    StateFixture::wait(state.removeDuplicates({copy}, state.duplicateGroups()));
    QCOMPARE(state.duplicateGroups().size(), 1);
    QCOMPARE(state.duplicateGroups().first().files.size(), 2);
}

void tst_AppStateRemovals::ignoresASelectionFromNowhere()
{
    StateFixture f;
    const QByteArray content(5'000, 'd');
    f.tree.file("home/Pictures/a", content);
    f.tree.file("home/Pictures/b", content);
    const FileURL elsewhere = f.tree.file("home/Pictures/notes", "keep me");
    AppState &state = f.make();
    StateFixture::wait(state.scanDuplicates());
    QCOMPARE(StateFixture::wait(state.removeDuplicates({elsewhere}, state.duplicateGroups())), RemovalReport());
    QVERIFY(ScratchTree::exists(elsewhere));
}

void tst_AppStateRemovals::uninstallsRelatedFilesFirst()
{
    StateFixture f;
    const FileURL bundle = makeApp(f, "Editor");
    const FileURL support = f.tree.file("home/Library/Application Support/Editor/data", "12345").parent();
    AppState &state = f.make();
    scanAppsWithDetails(state);
    QCOMPARE(found(state, bundle).relatedFiles.size(), 1);
    const RemovalReport report = StateFixture::wait(state.uninstallApps({bundle}));
    QCOMPARE(f.fakes.trashCan->asked(), (QList<FileURL>{support, bundle}));
    QVERIFY(state.apps().isEmpty());
    QCOMPARE(state.activities().first().title, u"Editor uninstalled"_s);
    QCOMPARE(state.activities().first().bytes, report.bytes);
    QVERIFY(report.bytes > 5'000);
    QVERIFY(state.toast());
}

void tst_AppStateRemovals::keepsAnApplicationWhoseBundleStayed()
{
    StateFixture f;
    const FileURL bundle = makeApp(f, "Editor");
    f.fakes.trashCan->refuse(bundle);
    AppState &state = f.make();
    scanAppsWithDetails(state);
    const QList<InstalledApp> before = state.apps();
    const RemovalReport report = StateFixture::wait(state.uninstallApps({bundle}));
    QCOMPARE(state.apps(), before);
    QCOMPARE(state.alert()->title, u"Can't move to Trash"_s);
    QCOMPARE(state.alert()->message, Outcomes::words(std::make_error_code(std::errc::permission_denied)));
    QCOMPARE(report.bytes, 0);
    QVERIFY(state.activities().isEmpty());
}

void tst_AppStateRemovals::countsAFailedCacheFileOnly()
{
    StateFixture f;
    const FileURL one = makeApp(f, "One");
    const FileURL two = makeApp(f, "Two");
    const FileURL log = f.tree.file("home/Library/Logs/One", "log file");
    f.fakes.trashCan->refuse(log);
    AppState &state = f.make();
    scanAppsWithDetails(state);
    StateFixture::wait(state.uninstallApps({one, two}));
    QVERIFY(state.apps().isEmpty());
    QCOMPARE(state.activities().first().title, u"2 apps uninstalled"_s);
    QCOMPARE(state.alert()->title, u"2 apps uninstalled"_s);
    QVERIFY(state.alert()->message.contains(u"but 1 protected items were skipped"_s));
}

void tst_AppStateRemovals::selectsNothingToUninstallSilently()
{
    StateFixture f;
    AppState &state = f.make();
    QCOMPARE(StateFixture::wait(state.uninstallApps({})), RemovalReport());
    QCOMPARE(StateFixture::wait(state.uninstallApps({f.home.child("Gone.app")})), RemovalReport());
    QVERIFY(!state.alert() && !state.toast());
}

void tst_AppStateRemovals::neverTakesAnApplicationApart()
{
    StateFixture f;
    const FileURL bundle = makeApp(f, "Editor");
    f.fakes.trashCan->refuse(bundle);
    AppState &state = f.make();
    scanAppsWithDetails(state);
    StateFixture::wait(state.uninstallApps({bundle}));
    QCOMPARE(f.fakes.trashCan->asked(), QList<FileURL>{bundle});
    QVERIFY(ScratchTree::exists(bundle.appending("Contents/program")));
}

void tst_AppStateRemovals::landsDetailsByIdentity()
{
    StateFixture f;
    const FileURL beta = makeApp(f, "Beta", 9'000);
    f.tree.file("home/Library/Logs/Beta", "log file");
    AppState &state = f.make();
    StateFixture::wait(state.scanApps());
    // A newer list in which every row has moved, while the details of the older one are still on their way.
    const FileURL alpha = makeApp(f, "Alpha", 100'000);
    f.tree.file("home/Library/Logs/Alpha", "another log");
    scanAppsWithDetails(state);
    QCOMPARE(state.apps().size(), 2);
    QCOMPARE(state.apps().first().url, alpha);
    for (const InstalledApp &app : state.apps()) {
        QCOMPARE(app.relatedFiles.size(), 1);
        QCOMPARE(app.relatedFiles.first().url.name(), app.name.toUtf8());
    }
    QVERIFY(*found(state, alpha).bundleSize > *found(state, beta).bundleSize);
}

void tst_AppStateRemovals::stopsBetweenTwoItems()
{
    StateFixture f;
    QSet<FileURL> all;
    for (int i = 0; i < 10; ++i)
        all.insert(f.tree.sparseFile("home/f" + QByteArray::number(i), 2'000'000));
    AppState &state = f.make();
    StateFixture::wait(state.scanLargeFilesAsync(std::nullopt, 1));
    std::atomic<int> asked = 0;
    QSemaphore reached;
    QSemaphore goOn;
    f.fakes.trashCan->setBefore([&](const FileURL &) {
        if (++asked == 3) {
            reached.release();
            goOn.acquire();
        }
    });
    QCoro::Task<RemovalReport> task = state.removeLargeFiles(all);
    reached.acquire();
    state.stopRemovals();
    goOn.release();
    const RemovalReport report = QCoro::waitFor(task);
    QCOMPARE(asked.load(), 3);
    QCOMPARE(report.removed.size(), 3);
    QVERIFY(report.stopped);
    QVERIFY(report.failed.isEmpty());
    QCOMPARE(state.largeFiles().size(), 7);
    QCOMPARE(state.activities().first().bytes, 6'000'000);
}

namespace {

FileURL makeAgent(const StateFixture &f, const FileURL &file)
{
    f.tree.file(file.path().sliced(f.tree.root().path().size() + 1), "plist");
    f.fakes.propertyList->tables.insert(file, {});
    return file;
}

} // namespace

void tst_AppStateRemovals::togglesAUserLevelItem()
{
    StateFixture f;
    const FileURL file = makeAgent(f, f.home.appending("Library/LaunchAgents/org.sample.plist"));
    AppState &state = f.make();
    StateFixture::wait(state.scanStartupItems());
    QCOMPARE(state.startupItems().size(), 1);
    QVERIFY(state.startupItems().first().isEnabled);
    StateFixture::wait(state.toggleStartupItem(state.startupItems().first()));
    QVERIFY(!state.startupItems().first().isEnabled);
    QCOMPARE(f.fakes.propertyList->tables.value(file).boolean(u"Disabled"_s), true);
    QCOMPARE(state.toast(),
             (ToastData{.symbol = u"pause.circle.fill"_s, .tintHex = 0xF59E0B, .message = u"org.sample disabled"_s}));
    StateFixture::wait(state.toggleStartupItem(state.startupItems().first()));
    QCOMPARE(state.toast()->message, u"org.sample enabled"_s);
    QVERIFY(state.startupItems().first().isEnabled);
}

void tst_AppStateRemovals::leavesASystemItemAsItIs()
{
    StateFixture f;
    const FileURL file = makeAgent(f, f.tree.at("system/LaunchDaemons/org.system.plist"));
    AppState &state = f.make();
    StateFixture::wait(state.scanStartupItems());
    QCOMPARE(state.startupItems().size(), 1);
    QVERIFY(!state.startupItems().first().isUserLevel);
    StateFixture::wait(state.toggleStartupItem(state.startupItems().first()));
    QVERIFY(state.startupItems().first().isEnabled);
    QVERIFY(f.fakes.propertyList->tables.value(file).values.isEmpty());
    QCOMPARE(state.toast()->message, u"org.system enabled"_s);
}

void tst_AppStateRemovals::removesAStartupItem()
{
    StateFixture f;
    const FileURL file = makeAgent(f, f.home.appending("Library/LaunchAgents/org.sample.plist"));
    AppState &state = f.make();
    StateFixture::wait(state.scanStartupItems());
    const StartupItem item = state.startupItems().first();
    const RemovalReport report = StateFixture::wait(state.removeStartupItem(item));
    QVERIFY(state.startupItems().isEmpty());
    QVERIFY(!ScratchTree::exists(file));
    QCOMPARE(report.removed.first().url, file);
    QCOMPARE(state.activities().first().title, u"org.sample removed"_s);
    QCOMPARE(state.activities().first().detail, u"Launch Agent"_s);
    QCOMPARE(state.activities().first().bytes, 0);
    QCOMPARE(state.toast()->message, u"Removed org.sample"_s);
    QCOMPARE(StateFixture::wait(state.removeStartupItem(item)), RemovalReport());
}

void tst_AppStateRemovals::refusesToRemoveASystemItem()
{
    StateFixture f;
    const FileURL file = makeAgent(f, f.tree.at("system/LaunchAgents/org.system.plist"));
    AppState &state = f.make();
    StateFixture::wait(state.scanStartupItems());
    StateFixture::wait(state.removeStartupItem(state.startupItems().first()));
    QCOMPARE(state.alert()->title, u"Can't remove startup item"_s);
    QCOMPARE(state.alert()->message, u"Cannot remove system-level startup items"_s);
    QVERIFY(ScratchTree::exists(file));
    QCOMPARE(state.startupItems().size(), 1);
}

void tst_AppStateRemovals::removesNothingWithoutAUsableHome()
{
    StateFixture f;
    const FileURL file = f.tree.sparseFile("home/a", 2'000'000);
    AppState &state = f.make();
    StateFixture::wait(state.scanLargeFilesAsync(std::nullopt, 1));
    QCOMPARE(state.largeFiles().size(), 1);
    f.fakes.places->setHome(std::nullopt);
    QCOMPARE(StateFixture::wait(state.removeLargeFiles({file})), RemovalReport());
    QVERIFY(ScratchTree::exists(file));
}

QTEST_GUILESS_MAIN(tst_AppStateRemovals)
#include "tst_AppStateRemovals.moc"
