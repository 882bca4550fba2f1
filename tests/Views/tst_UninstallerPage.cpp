// SPDX-License-Identifier: MIT
#include "Views/UninstallerPage.h"

#include "Theme/Format.h"
#include "Views/AppIconImages.h"
#include "Views/PageFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_UninstallerPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsApplications_data();
    void countsApplications();
    void saysThatItScans();
    void offersAScanWhileNothingIsListed();
    void stopsAScan();
    void listsAnApplication();
    void calculatesUntilTheSizeIsKnown();
    void selectsAnApplicationWhoseSizeIsUnknown();
    void marksASizeThatMissesAPart();
    void saysWhereAccessIsMissing();
    void saysThatThereAreNoRelatedFiles();
    void listsRelatedFilesOfAnExpandedRow();
    void marksUnusedApplications();
    void addsUpTheSelection();
    void keepsTheSelectionThatStillExists();
    void ignoresWhatItDoesNotList();
    void asksWithTheApplicationsOwnIcon();
    void asksForSeveral();
    void uninstallsWhatWasConfirmed();
    void removesNothingWhenCancelled();
    void saysWhenAccessIsRefused();
    void saysOfTheQuestionWhatWillGo();
    void withdrawsTheQuestionWithItsApplication();
    void disablesRemovingWhileARemovalRuns();
    void showsTheAccessBanner();
    void showsAndCopiesPathsOfItemsOnly();
    void keepsRowsWhileDetailsArrive();
    void translatesRows();
};

namespace {

void scan(AppState &state)
{
    StateFixture::wait(state.scanApps());
    QTRY_VERIFY(!state.appDetailsLoading());
}

QVariant at(UninstallerPage &page, int row, const char *role)
{
    return Rows(page.apps()).value(row, role);
}

QVariant ofEntry(const AppEntry &entry, const char *role)
{
    AppsModel model;
    model.setRecords({entry});
    return Rows(&model).value(0, role);
}

enum class Details { awaited, known };

/// The row of an application called "Editor".
AppEntry entryOf(std::optional<qint64> size, const QList<RelatedFile> &related, Details details)
{
    AppEntry entry;
    entry.app.url = FileURL::fromCleanPath("/Applications/Editor.app");
    entry.app.name = u"Editor"_s;
    entry.app.bundleSize = size;
    entry.app.relatedFiles = related;
    entry.app.detailed = details == Details::known;
    return entry;
}

RelatedFile related(const QByteArray &name, std::optional<qint64> size)
{
    return {.name = u"Caches"_s, .url = FileURL::fromCleanPath("/home/me/Library/Caches/" + name), .size = size};
}

} // namespace

void tst_UninstallerPage::countsApplications_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << 0 << u"0 applications · %1 installed"_s;
    QTest::newRow("one") << 1 << u"1 application · %1 installed"_s;
    QTest::newRow("several") << 3 << u"3 applications · %1 installed"_s;
}

void tst_UninstallerPage::countsApplications()
{
    QFETCH(int, count);
    QFETCH(QString, text);
    PageFixture f;
    for (int number = 0; number < count; ++number)
        f.app("App" + QByteArray::number(number), 100'000);
    AppState &state = f.make();
    const UninstallerPage page(state, f.actions);
    scan(state);
    qint64 sum = 0;
    for (const InstalledApp &app : state.apps())
        sum += app.bundleSize.value_or(0);
    QVERIFY(sum >= qint64{count} * 100'000);
    QCOMPARE(page.subtitle(), text.arg(Format::bytes(sum)));
}

void tst_UninstallerPage::saysThatItScans()
{
    PageFixture f;
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    {
        const StateFixture::Held held(f);
        page.scan();
        QVERIFY(page.loading() && !page.canScan());
        QCOMPARE(page.subtitle(), u"Scanning applications…"_s);
        QCOMPARE(page.scanDetail(), u"Scanning applications…"_s);
    }
    QTRY_VERIFY(!page.loading());
    QCOMPARE(page.scanDetail(), QString());
    QTRY_VERIFY(page.canScan());
}

void tst_UninstallerPage::offersAScanWhileNothingIsListed()
{
    PageFixture f;
    f.app("Editor");
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    QVERIFY(page.isEmpty() && page.canScan());
    page.scan();
    QTRY_VERIFY(!page.isEmpty());
}

void tst_UninstallerPage::stopsAScan()
{
    PageFixture f;
    UninstallerPage page(f.make(), f.actions);
    const StateFixture::Held held(f);
    page.scan();
    QVERIFY(page.loading());
    page.stopScan();
    QVERIFY(!page.loading() && page.canScan());
}

void tst_UninstallerPage::listsAnApplication()
{
    PageFixture f;
    const FileURL bundle = f.app("Editor");
    const FileURL icon = f.tree.file("home/Applications/Editor.app/Contents/icon.png");
    f.fakes.workspace->bundles.insert(bundle, {.identifier = u"org.editor"_s, .version = u"2.1"_s, .icon = icon});
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    const QAbstractItemModelTester tester(page.apps(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    scan(state);
    QCOMPARE(page.apps()->rowCount(), 1);
    QCOMPARE(at(page, 0, "itemId").toString(), ItemId::of(bundle));
    QCOMPARE(at(page, 0, "name").toString(), u"Editor"_s);
    QCOMPARE(at(page, 0, "version").toString(), u"2.1"_s);
    QCOMPARE(at(page, 0, "path").toString(), bundle.text());
    QCOMPARE(at(page, 0, "iconSource").toString(), AppIconImages::addressOf(icon));
    QCOMPARE(at(page, 0, "sizeText").toString(), Format::bytes(*state.apps().first().bundleSize));
    QVERIFY(!at(page, 0, "selected").toBool() && !at(page, 0, "expanded").toBool() && !at(page, 0, "unused").toBool());
}

void tst_UninstallerPage::calculatesUntilTheSizeIsKnown()
{
    const PageFixture f; // sets the language
    AppEntry entry = entryOf({}, {}, Details::awaited);
    QCOMPARE(ofEntry(entry, "sizeText").toString(), u"Calculating…"_s);
    QCOMPARE(ofEntry(entry, "iconSource").toString(), QString());
    entry.app.bundleSize = 5'000'000;
    entry.app.detailed = true;
    QCOMPARE(ofEntry(entry, "sizeText").toString(), u"5 MB"_s);
}

void tst_UninstallerPage::selectsAnApplicationWhoseSizeIsUnknown()
{
    PageFixture f;
    const FileURL bundle = f.app("Editor");
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    QObject::connect(&state, &AppState::appsChanged, &state, &AppState::stopScans); // before anything is measured
    StateFixture::wait(state.scanApps());
    QCOMPARE(at(page, 0, "sizeText").toString(), u"Calculating…"_s);
    page.toggle(ItemId::of(bundle));
    QVERIFY(at(page, 0, "selected").toBool() && page.canRemove());
    QCOMPARE(page.footer(), u"1 item selected · Zero KB"_s);
}

void tst_UninstallerPage::marksASizeThatMissesAPart()
{
    const PageFixture f;
    AppEntry entry = entryOf(5'000'000, {related("Editor", 1'000'000)}, Details::known);
    QCOMPARE(ofEntry(entry, "sizeText").toString(), u"6 MB"_s);
    entry.app.relatedFiles.append(related("org.editor", std::nullopt));
    QCOMPARE(ofEntry(entry, "sizeText").toString(), u"6 MB+"_s);
    entry.app.relatedFiles.clear();
    entry.app.bundleSize.reset(); // it could not be measured
    QCOMPARE(ofEntry(entry, "sizeText").toString(), u"Zero KB+"_s);
}

void tst_UninstallerPage::saysWhereAccessIsMissing()
{
    const PageFixture f;
    AppEntry entry = entryOf(5'000'000, {related("Editor", std::nullopt)}, Details::known);
    entry.expanded = true;
    QCOMPARE(ofEntry(entry, "fileSymbols").toStringList(), QStringList{u"lock.fill"_s});
    QCOMPARE(ofEntry(entry, "fileSizes").toStringList(), QStringList{u"Full Disk Access required"_s});
}

void tst_UninstallerPage::saysThatThereAreNoRelatedFiles()
{
    const PageFixture f;
    AppEntry entry = entryOf({}, {}, Details::awaited);
    QCOMPARE(ofEntry(entry, "summary").toString(), u"Looking for related files…"_s);
    QCOMPARE(ofEntry(entry, "emptyText").toString(), u"Looking for related files…"_s);
    entry.app.detailed = true;
    QCOMPARE(ofEntry(entry, "summary").toString(), u"No related files"_s);
    QCOMPARE(ofEntry(entry, "emptyText").toString(), u"No related files found for this app."_s);
}

void tst_UninstallerPage::listsRelatedFilesOfAnExpandedRow()
{
    PageFixture f;
    const FileURL bundle = f.app("Editor");
    const FileURL support = f.tree.file("home/Library/Application Support/Editor/data", "12345").parent();
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    const QString size = Format::bytes(*state.apps().first().relatedFiles.first().size);
    QCOMPARE(at(page, 0, "summary").toString(), u"Related Files · "_s + size);
    page.toggleExpanded(ItemId::of(bundle));
    QVERIFY(at(page, 0, "expanded").toBool());
    QCOMPARE(at(page, 0, "fileIds").toStringList(), QStringList{ItemId::of(support)});
    QCOMPARE(at(page, 0, "filePaths").toStringList(), QStringList{support.text()});
    QCOMPARE(at(page, 0, "fileSizes").toStringList(), QStringList{size});
    QCOMPARE(at(page, 0, "fileSymbols").toStringList(), QStringList{QString()});
    page.toggleExpanded(ItemId::of(bundle));
    QVERIFY(!at(page, 0, "expanded").toBool());
}

void tst_UninstallerPage::marksUnusedApplications()
{
    PageFixture f;
    ScratchTree::setModified(f.app("Idle"), f.now.addDays(-40));
    ScratchTree::setModified(f.app("Used"), f.now.addDays(-2));
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    QCOMPARE(Rows(page.apps()).column("name"), (QStringList{u"Idle"_s, u"Used"_s}));
    QVERIFY(at(page, 0, "unused").toBool());
    QVERIFY(!at(page, 1, "unused").toBool());
}

void tst_UninstallerPage::addsUpTheSelection()
{
    PageFixture f;
    const FileURL editor = f.app("Editor", 50'000);
    const FileURL player = f.app("Player", 90'000);
    f.tree.file("home/Library/Application Support/Player/data", QByteArray(20'000, 'c'));
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    QCOMPARE(page.footer(), u"Select applications to uninstall"_s);
    QVERIFY(!page.canRemove());
    page.toggle(ItemId::of(editor));
    QCOMPARE(page.footer(), u"1 item selected · "_s + Format::bytes(*state.apps().first().bundleSize));
    page.toggle(ItemId::of(player));
    qint64 sum = 0;
    for (const InstalledApp &app : state.apps()) {
        sum += *app.bundleSize;
        for (const RelatedFile &file : app.relatedFiles)
            sum += *file.size;
    }
    QVERIFY(sum >= 160'000);
    QCOMPARE(page.footer(), u"2 items selected · "_s + Format::bytes(sum));
    page.toggle(ItemId::of(editor));
    page.toggle(ItemId::of(player));
    QVERIFY(!page.canRemove());
}

void tst_UninstallerPage::keepsTheSelectionThatStillExists()
{
    PageFixture f;
    const FileURL editor = f.app("Editor");
    const FileURL player = f.app("Player");
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    const QAbstractItemModelTester tester(page.apps(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    scan(state);
    page.toggle(ItemId::of(editor));
    page.toggle(ItemId::of(player));
    page.toggleExpanded(ItemId::of(player));
    QSignalSpy resets(page.apps(), &QAbstractItemModel::modelReset);
    QVERIFY(std::rename(editor.path().constData(), f.tree.at("away").path().constData()) == 0);
    f.app("Another");
    scan(state);
    QCOMPARE(Rows(page.apps()).column("name"), (QStringList{u"Another"_s, u"Player"_s}));
    QVERIFY(!at(page, 0, "selected").toBool());
    QVERIFY(at(page, 1, "selected").toBool() && at(page, 1, "expanded").toBool());
    QCOMPARE(resets.count(), 0);
    // What comes back was not chosen.
    QVERIFY(std::rename(f.tree.at("away").path().constData(), editor.path().constData()) == 0);
    scan(state);
    QCOMPARE(Rows(page.apps()).column("selected"), (QStringList{u"false"_s, u"false"_s, u"true"_s}));
}

void tst_UninstallerPage::ignoresWhatItDoesNotList()
{
    PageFixture f;
    f.app("Editor");
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    for (const QString &id : {u"file:///Applications/Other.app"_s, u"Editor"_s, QString()}) {
        page.toggle(id);
        page.toggleExpanded(id);
    }
    QVERIFY(!at(page, 0, "selected").toBool() && !at(page, 0, "expanded").toBool());
    page.remove();
    f.settle();
    QVERIFY(!state.confirm());
}

void tst_UninstallerPage::asksWithTheApplicationsOwnIcon()
{
    PageFixture f;
    const FileURL bundle = f.app("Editor");
    const FileURL icon = f.tree.file("home/Applications/Editor.app/Contents/icon.png");
    f.fakes.workspace->bundles.insert(bundle, {.identifier = {}, .version = {}, .icon = icon});
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    page.toggle(ItemId::of(bundle));
    page.remove();
    QTRY_VERIFY(state.confirm());
    QCOMPARE(state.confirm()->iconImage, std::optional(icon));
    QCOMPARE(state.confirm()->title, u"Uninstall Editor?"_s);
    QCOMPARE(state.confirm()->message, u"This will move the application and related files to Trash."_s);
    QCOMPARE(state.confirm()->confirmTitle, u"Move to Trash"_s);
    QCOMPARE(state.confirm()->rows.value(0).first, u"Application"_s);
    QCOMPARE(state.confirm()->rows.value(1).first, u"Related Files"_s);
}

void tst_UninstallerPage::asksForSeveral()
{
    PageFixture f;
    const FileURL editor = f.app("Editor");
    const FileURL player = f.app("Player");
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    page.toggle(ItemId::of(editor));
    page.toggle(ItemId::of(player));
    page.remove();
    QTRY_VERIFY(state.confirm());
    QCOMPARE(state.confirm()->iconImage, std::optional<FileURL>());
    QCOMPARE(state.confirm()->symbol, u"arrow.down.app.fill"_s);
    QCOMPARE(state.confirm()->title, u"Uninstall 2 apps?"_s);
    QCOMPARE(state.confirm()->rows.value(0).first, u"Applications"_s);
}

void tst_UninstallerPage::uninstallsWhatWasConfirmed()
{
    PageFixture f;
    const FileURL editor = f.app("Editor");
    const FileURL player = f.app("Player");
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    page.toggle(ItemId::of(editor));
    page.remove();
    QTRY_VERIFY(state.confirm());
    state.acceptConfirm();
    QCOMPARE(page.footer(), u"Select applications to uninstall"_s);
    QTRY_VERIFY(!state.removing());
    QCOMPARE(Rows(page.apps()).column("name"), QStringList{u"Player"_s});
    QCOMPARE(f.fakes.trashCan->asked(), QList<FileURL>{editor});
    QVERIFY(ScratchTree::exists(player));
}

void tst_UninstallerPage::removesNothingWhenCancelled()
{
    PageFixture f;
    const FileURL editor = f.app("Editor");
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    page.toggle(ItemId::of(editor));
    page.remove();
    QTRY_VERIFY(state.confirm());
    state.cancelConfirm();
    f.settle();
    QVERIFY(f.fakes.trashCan->asked().isEmpty() && ScratchTree::exists(editor));
    QVERIFY(at(page, 0, "selected").toBool());
}

void tst_UninstallerPage::saysWhenAccessIsRefused()
{
    PageFixture f;
    const FileURL editor = f.app("Editor");
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    f.fakes.grants->consent = true; // and the panel is cancelled
    page.toggle(ItemId::of(editor));
    page.remove();
    QTRY_VERIFY(state.alert());
    QCOMPARE(state.alert()->message, u"Brisko needs access to the Applications folder to move apps to Trash."_s);
    QCOMPARE(f.panel.lastMessage, state.alert()->message);
    QCOMPARE(f.panel.lastHint, FileURL::fromPath("/Applications"));
    f.settle();
    QVERIFY(!state.confirm() && f.fakes.trashCan->asked().isEmpty());
    QVERIFY(page.canRemove());
}

void tst_UninstallerPage::saysOfTheQuestionWhatWillGo()
{
    PageFixture f;
    const FileURL editor = f.app("Editor");
    f.tree.file("home/Library/Application Support/Editor/data", QByteArray(20'000, 'c'));
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    StateFixture::wait(state.scanApps());
    page.toggle(ItemId::of(editor));
    page.remove();
    QTRY_VERIFY(state.confirm());
    QTRY_VERIFY(!state.appDetailsLoading());
    const InstalledApp &app = state.apps().first();
    QCOMPARE(app.relatedFiles.size(), 1);
    QCOMPARE(state.confirm()->rows.value(1).second, u"1 · "_s + Format::bytes(*app.relatedFiles.first().size));
    state.acceptConfirm();
    QTRY_VERIFY(state.apps().isEmpty());
    QCOMPARE(f.fakes.trashCan->asked().size(), 2);
}

void tst_UninstallerPage::withdrawsTheQuestionWithItsApplication()
{
    PageFixture f;
    const FileURL editor = f.app("Editor");
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    page.toggle(ItemId::of(editor));
    page.remove();
    QTRY_VERIFY(state.confirm());
    QVERIFY(std::rename(editor.path().constData(), f.tree.at("away").path().constData()) == 0);
    scan(state);
    QVERIFY(!state.confirm());
}

void tst_UninstallerPage::disablesRemovingWhileARemovalRuns()
{
    PageFixture f;
    const FileURL editor = f.app("Editor");
    const FileURL player = f.app("Player");
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    page.toggle(ItemId::of(editor));
    page.remove();
    QTRY_VERIFY(state.confirm());
    {
        const StateFixture::Held held(f);
        state.acceptConfirm();
        page.toggle(ItemId::of(player));
        QVERIFY(page.removing() && !page.canRemove());
        page.remove();
        QVERIFY(!state.confirm());
    }
    QTRY_VERIFY(!page.removing());
    QVERIFY(page.canRemove());
}

void tst_UninstallerPage::showsTheAccessBanner()
{
    PageFixture f;
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    QVERIFY(!page.needsFullDiskAccess());
    // A database that is none: a folder cannot be read as one.
    f.tree.folder("home/Library/Application Support/com.apple.TCC/TCC.db");
    scan(state);
    QTRY_VERIFY(page.needsFullDiskAccess());
    page.openAccessSettings();
    QCOMPARE(f.fakes.workspace->opened.size(), 1);
}

void tst_UninstallerPage::showsAndCopiesPathsOfItemsOnly()
{
    PageFixture f;
    const FileURL bundle = f.app("Editor");
    const FileURL support = f.tree.file("home/Library/Application Support/Editor/data", "12345").parent();
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    page.showInFileManager(ItemId::of(bundle));
    page.showInFileManager(ItemId::of(support));
    page.showInFileManager(ItemId::of(f.home));
    page.copyPath(ItemId::of(support));
    page.copyPath(ItemId::of(f.home));
    QCOMPARE(f.fakes.workspace->shown, (QList<FileURL>{bundle, support}));
    QCOMPARE(f.copied, QStringList{support.text()});
}

void tst_UninstallerPage::keepsRowsWhileDetailsArrive()
{
    PageFixture f;
    for (const char *name : {"A", "B", "C"})
        f.app(name);
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    const QAbstractItemModelTester tester(page.apps(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy resets(page.apps(), &QAbstractItemModel::modelReset);
    QSignalSpy inserted(page.apps(), &QAbstractItemModel::rowsInserted);
    QSignalSpy touched(page.apps(), &QAbstractItemModel::dataChanged);
    const auto forget = [&] {
        for (QSignalSpy *spy : {&resets, &inserted, &touched})
            spy->clear();
    };
    // Only what follows the list counts.
    QObject::connect(&state, &AppState::appsChanged, &page, forget, Qt::SingleShotConnection);
    StateFixture::wait(state.scanApps());
    QTRY_VERIFY(!state.appDetailsLoading());
    QCOMPARE(page.apps()->rowCount(), 3);
    QCOMPARE(resets.count() + inserted.count(), 0);
    QCOMPARE(touched.count(), 3); // each row once
    for (const QList<QVariant> &range : std::as_const(touched))
        QCOMPARE(range.at(0).toModelIndex(), range.at(1).toModelIndex());
}

void tst_UninstallerPage::translatesRows()
{
    PageFixture f;
    f.app("Editor");
    AppState &state = f.make();
    UninstallerPage page(state, f.actions);
    scan(state);
    state.setLanguage(AppLanguage::de);
    QCOMPARE(page.footer(), u"Wähle Apps zum Deinstallieren aus"_s);
    QCOMPARE(at(page, 0, "summary").toString(), u"Keine zugehörigen Dateien"_s);
    state.setLanguage(AppLanguage::en);
    QCOMPARE(page.footer(), u"Select applications to uninstall"_s);
}

QTEST_GUILESS_MAIN(tst_UninstallerPage)
#include "tst_UninstallerPage.moc"
