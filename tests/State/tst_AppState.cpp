// SPDX-License-Identifier: MIT
#include "Services/ActivityStore.h"
#include "State/StateFixture.h"
#include "Theme/Format.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Construction, preferences, notices, folder lists, the full rescan and stopping.
class tst_AppState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsFromStoredSettings();
    void readsUnknownStoredValuesAsSystem();
    void storesAppearanceAndLanguage();
    void storesNoPlatformLanguageForSystem();
    void startsNothingWhenMade();
    void rescansOnceWhenAskedTwice();
    void endsAFullRescanWithTheToast();
    void skipsTheInitialScanWhenApplicationsAreListed();
    void replacesAToastAndRestartsItsTime();
    void clearsTheQuestionBeforeItsActionRuns();
    void keepsTheTwentyNewestActivities();
    void recreatesADeletedHistoryFile();
    void loadsDefaultFoldersFromTheAccountHome();
    void keepsEachFolderOnce();
    void fallsBackToDefaultsAtTheNextStart();
    void keepsFolderPathsThatAreNotUtf8();
    void stopsScansAtOnce();
    void runsTheSecondScanOfAKindAfterTheFirst();
    void endsQuietlyWhenDestroyedDuringAScan();
    void findsNothingWithoutAUsableHome();
};

void tst_AppState::startsFromStoredSettings()
{
    StateFixture f;
    f.defaults.setInteger(DefaultsKey::appearance, 2);
    f.defaults.setText(DefaultsKey::appLanguage, u"de"_s);
    AppState &state = f.make();
    QCOMPARE(state.selection(), Page::overview);
    QCOMPARE(state.appearance(), AppearanceOption::dark);
    QCOMPARE(state.language(), AppLanguage::de);
    QCOMPARE(state.memoryTotal(), 16'000'000'000);
    QCOMPARE(state.availableDisk(), 5'000);
    QVERIFY(!state.diskTemperature());
}

void tst_AppState::readsUnknownStoredValuesAsSystem()
{
    StateFixture f;
    f.defaults.setInteger(DefaultsKey::appearance, 5);
    f.defaults.setText(DefaultsKey::appLanguage, u"xx"_s);
    AppState &state = f.make();
    QCOMPARE(state.appearance(), AppearanceOption::system);
    QCOMPARE(state.language(), AppLanguage::system);
}

void tst_AppState::storesAppearanceAndLanguage()
{
    StateFixture f;
    AppState &state = f.make();
    QSignalSpy appearance(&state, &AppState::appearanceChanged);
    QSignalSpy language(&state, &AppState::languageChanged);
    state.setAppearance(AppearanceOption::light);
    state.setLanguage(AppLanguage::zhHant);
    QCOMPARE(appearance.count(), 1);
    QCOMPARE(language.count(), 1);
    QCOMPARE(f.defaults.integer(DefaultsKey::appearance), 1);
    QCOMPARE(f.defaults.text(DefaultsKey::appLanguage), u"zh-Hant"_s);
    QCOMPARE(f.defaults.textList(DefaultsKey::appleLanguages), QStringList{u"zh-Hant"_s});
    state.setLanguage(AppLanguage::en);
}

void tst_AppState::storesNoPlatformLanguageForSystem()
{
    StateFixture f;
    AppState &state = f.make();
    state.setLanguage(AppLanguage::ja);
    state.setLanguage(AppLanguage::system);
    QCOMPARE(f.defaults.text(DefaultsKey::appLanguage), u"system"_s);
    QVERIFY(!f.defaults.contains(DefaultsKey::appleLanguages));
    state.setLanguage(AppLanguage::en);
}

void tst_AppState::startsNothingWhenMade()
{
    StateFixture f;
    AppState &state = f.make();
    f.settle();
    QVERIFY(!state.scanning() && !state.appsLoading() && !state.junkLoading());
    QCOMPARE(state.statsTick(), 0);
}

void tst_AppState::rescansOnceWhenAskedTwice()
{
    StateFixture f;
    AppState &state = f.make();
    QSignalSpy scanning(&state, &AppState::scanningChanged);
    QSignalSpy junk(&state, &AppState::junkLoadingChanged);
    {
        const StateFixture::Held held(f);
        state.rescanAll();
        state.rescanAll();
        QVERIFY(state.scanning());
    }
    QTRY_VERIFY(!state.scanning());
    QCOMPARE(scanning.count(), 2);
    QCOMPARE(junk.count(), 2);
}

void tst_AppState::endsAFullRescanWithTheToast()
{
    StateFixture f;
    AppState &state = f.make();
    f.fakes.figures->disk = 7'000;
    state.rescanAll();
    QCOMPARE(state.availableDisk(), 7'000);
    QTRY_VERIFY(!state.scanning());
    QCOMPARE(state.scanDetail(), QString());
    QCOMPARE(state.freeableProgress(), 0);
    QCOMPARE(state.toast(), (ToastData{.symbol = u"checkmark.circle.fill"_s,
                                       .tintHex = 0x22C55E,
                                       .message = u"Scan complete — Zero KB can be freed"_s}));
}

void tst_AppState::skipsTheInitialScanWhenApplicationsAreListed()
{
    StateFixture f;
    f.tree.folder("home/Applications/Editor.app");
    AppState &state = f.make();
    StateFixture::wait(state.scanApps());
    QCOMPARE(state.apps().size(), 1);
    state.startInitialScan();
    QVERIFY(!state.scanning());
    QCOMPARE(state.statsTick(), 1);
}

void tst_AppState::replacesAToastAndRestartsItsTime()
{
    StateFixture f;
    f.toastTime = 200ms;
    AppState &state = f.make();
    QSignalSpy changes(&state, &AppState::toastChanged);
    state.showToast(u"a"_s, 1, u"first"_s);
    QElapsedTimer sinceSecond;
    QTimer::singleShot(120ms, &state, [&] {
        state.showToast(u"b"_s, 2, u"second"_s);
        sinceSecond.start();
    });
    QTRY_COMPARE(changes.count(), 3);
    QVERIFY(!state.toast());
    QVERIFY2(sinceSecond.elapsed() >= 190, "the first toast's time must not hide the second");
}

void tst_AppState::clearsTheQuestionBeforeItsActionRuns()
{
    StateFixture f;
    AppState &state = f.make();
    bool wasCleared = false;
    ConfirmData question;
    question.id = QUuid::createUuid();
    question.onConfirm = [&] { wasCleared = !state.confirm(); };
    state.askToConfirm(question);
    QVERIFY(state.confirm());
    state.acceptConfirm();
    QVERIFY(wasCleared);
    state.askToConfirm(question);
    wasCleared = false;
    state.cancelConfirm();
    QVERIFY(!state.confirm());
    QVERIFY2(!wasCleared, "a declined action must not run");
    state.acceptConfirm(); // a second press finds nothing
    QVERIFY(!wasCleared);
}

void tst_AppState::keepsTheTwentyNewestActivities()
{
    StateFixture f;
    AppState &state = f.make();
    for (int i = 0; i < 25; ++i) {
        state.addActivity({.id = QUuid::createUuid(),
                           .kind = ActivityKind::junkRemoved,
                           .title = QString::number(i),
                           .detail = {},
                           .bytes = i,
                           .date = f.now.addSecs(i)});
    }
    QCOMPARE(state.activities().size(), 20);
    QCOMPARE(state.activities().first().title, u"24"_s);
    QCOMPARE(state.activities().last().title, u"5"_s);
    QCOMPARE(ActivityStore::load(*f.fakes.places).size(), 20);
    AppState &again = f.make();
    QCOMPARE(again.activities().first().title, u"24"_s);
}

void tst_AppState::recreatesADeletedHistoryFile()
{
    StateFixture f;
    AppState &state = f.make();
    const ActivityRecord record{.id = QUuid::createUuid(),
                                .kind = ActivityKind::junkRemoved,
                                .title = u"t"_s,
                                .detail = u"d"_s,
                                .bytes = 1,
                                .date = f.now};
    state.addActivity(record);
    QVERIFY(QFile::remove(ActivityStore::fileURL(*f.fakes.places)->text()));
    state.addActivity(record);
    QCOMPARE(ActivityStore::load(*f.fakes.places).size(), 2);
}

void tst_AppState::loadsDefaultFoldersFromTheAccountHome()
{
    StateFixture f;
    AppState &state = f.make();
    QCOMPARE(state.duplicateFolders(), (QList<FileURL>{f.home.child("Downloads"), f.home.child("Pictures"),
                                                       f.home.child("Movies"), f.home.child("Music")}));
    QCOMPARE(state.largeFileFolders(), QList<FileURL>{f.home});
    QCOMPARE(f.defaults.textList(DefaultsKey::largeFileFolders), QStringList{f.home.text()});
}

void tst_AppState::keepsEachFolderOnce()
{
    StateFixture f;
    AppState &state = f.make();
    const FileURL extra = f.tree.folder("extra");
    QSignalSpy changes(&state, &AppState::duplicateFoldersChanged);
    state.addDuplicateFolder(extra);
    state.addDuplicateFolder(extra);
    QCOMPARE(state.duplicateFolders().count(extra), 1);
    QCOMPARE(changes.count(), 1);
    state.addLargeFileFolder(extra);
    state.addLargeFileFolder(extra);
    QCOMPARE(state.largeFileFolders(), (QList<FileURL>{f.home, extra}));
    state.removeLargeFileFolder(extra);
    QCOMPARE(f.defaults.textList(DefaultsKey::largeFileFolders), QStringList{f.home.text()});
}

void tst_AppState::fallsBackToDefaultsAtTheNextStart()
{
    StateFixture f;
    AppState &state = f.make();
    for (const FileURL &folder : QList<FileURL>(state.duplicateFolders()))
        state.removeDuplicateFolder(folder);
    QVERIFY(state.duplicateFolders().isEmpty());
    QCOMPARE(f.make().duplicateFolders().size(), 4);
}

void tst_AppState::keepsFolderPathsThatAreNotUtf8()
{
    StateFixture f;
    const FileURL odd = f.tree.folder("caf\xE9, 100%25");
    f.make().addLargeFileFolder(odd);
    QCOMPARE(f.make().largeFileFolders(), (QList<FileURL>{f.home, odd}));
}

void tst_AppState::stopsScansAtOnce()
{
    StateFixture f;
    f.oldDownload("old.zip", 10);
    AppState &state = f.make();
    QSignalSpy lists(&state, &AppState::junkCategoriesChanged);
    {
        const StateFixture::Held held(f);
        state.rescanAll();
        state.scanJunk();
        QVERIFY(state.junkLoading() && state.scanning());
        state.stopScans();
        QVERIFY(!state.junkLoading() && !state.scanning() && !state.appsLoading());
        QCOMPARE(state.scanDetail(), QString());
    }
    f.settle();
    QCOMPARE(lists.count(), 0);
    QVERIFY2(!state.toast(), "a stopped scan says nothing");
    QCOMPARE(state.scanDetail(), QString());
    StateFixture::wait(state.scanJunkAsync());
    QCOMPARE(state.junkCategories().size(), 1);
}

void tst_AppState::runsTheSecondScanOfAKindAfterTheFirst()
{
    StateFixture f;
    AppState &state = f.make();
    QSignalSpy flag(&state, &AppState::largeFilesLoadingChanged);
    std::optional<StateFixture::Held> held(std::in_place, f);
    QCoro::Task<> first = state.scanLargeFilesAsync();
    QCoro::Task<> second = state.scanLargeFilesAsync();
    QVERIFY(state.largeFilesLoading());
    held.reset();
    QCoro::waitFor(first);
    QCoro::waitFor(second);
    QVERIFY(!state.largeFilesLoading());
    QVERIFY2(flag.count() == 2, "the flag stays set until the last of them ends");
}

void tst_AppState::endsQuietlyWhenDestroyedDuringAScan()
{
    StateFixture f;
    AppState &state = f.make();
    {
        const StateFixture::Held held(f);
        state.startInitialScan();
        state.scanLargeFiles(std::nullopt, 1);
        f.state.reset();
    }
    f.settle();
    QVERIFY(!f.state);
}

void tst_AppState::findsNothingWithoutAUsableHome()
{
    StateFixture f;
    f.oldDownload("old.zip", 10);
    f.tree.sparseFile("home/big", 200'000'000);
    f.fakes.places->setHome(std::nullopt);
    AppState &state = f.make();
    QSignalSpy told(&state, &AppState::noUsableHome);
    QStringList details;
    QObject::connect(&state, &AppState::scanDetailChanged, &state, [&] { details.append(state.scanDetail()); });
    state.rescanAll();
    QTRY_VERIFY(!state.scanning());
    QVERIFY(told.count() > 0);
    QVERIFY(details.contains(u"No usable home folder"_s));
    QVERIFY(state.junkCategories().isEmpty() && state.largeFiles().isEmpty() && state.apps().isEmpty());
}

QTEST_GUILESS_MAIN(tst_AppState)
#include "tst_AppState.moc"
