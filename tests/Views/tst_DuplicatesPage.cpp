// SPDX-License-Identifier: MIT
#include "Views/DuplicatesPage.h"
#include "Views/PageFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// What the page of the duplicate finder says, allows and asks.
class tst_DuplicatesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsNoScanByItself();
    void tellsWhatTheScanDoes();
    void stopsAScan();
    void countsOneGroupAndSeveral();
    void listsGroupsAsRows();
    void namesAnEmptyGroup();
    void hidesTheFilesOfACollapsedGroup();
    void keepsGroupsCollapsedOverScans();
    void countsTheSelection();
    void neverTicksTheLastCopy();
    void allowsTheOriginalWhileAnotherStays();
    void keepsTheFirst_data();
    void keepsTheFirst();
    void ignoresStrangers();
    void keepsTheSelectionOfACollapsedGroup();
    void keepsTheSelectionThatStillExists();
    void untiesASelectionThatLostItsLastCopy();
    void asksInTheSingular();
    void asksInThePlural();
    void removesWhatWasAskedAbout();
    void keepsACopyThoughTheListChangedMeanwhile();
    void cannotRemoveWhileRemoving();
    void managesFolders();
    void addsAPickedFolder();
    void actsOnListedFilesOnly();
    void followsTheLanguage();
    void staysQuickWithAHundredThousandRows();
};

namespace {

struct Fixture : PageFixture {
    DuplicatesPage &open()
    {
        make();
        page = std::make_unique<DuplicatesPage>(*state, actions);
        tester = std::make_unique<QAbstractItemModelTester>(page->groups(),
                                                            QAbstractItemModelTester::FailureReportingMode::QtTest);
        return *page;
    }
    ~Fixture() { page.reset(); }
    [[nodiscard]] Rows rows() const { return Rows(page->groups()); }
    [[nodiscard]] Rows folders() const { return Rows(page->folders()); }
    void scan()
    {
        page->scan();
        QTRY_VERIFY(!state->duplicatesLoading());
    }
    FileURL copy(const QByteArray &name, char content = 'a', qsizetype size = 5'000) const
    {
        return tree.file("home/Pictures/" + name, QByteArray(size, content));
    }
    /// The row of a file; heads bear the name of their first file too.
    [[nodiscard]] int fileRow(const QString &name) const
    {
        for (int row = 0; row < rows().count(); ++row) {
            if (!rows().flag(row, "isHead") && rows().text(row, "name") == name)
                return row;
        }
        return -1;
    }
    void toggle(const QString &name) { page->toggle(rows().text(fileRow(name), "itemId")); }
    [[nodiscard]] bool selected(const QString &name) const { return rows().flag(fileRow(name), "selected"); }
    [[nodiscard]] bool selectable(const QString &name) const { return rows().flag(fileRow(name), "selectable"); }

    std::unique_ptr<DuplicatesPage> page;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

} // namespace

void tst_DuplicatesPage::startsNoScanByItself()
{
    Fixture f;
    const DuplicatesPage &page = f.open();
    QVERIFY(!f.state->duplicatesLoading());
    QCOMPARE(page.subtitle(), u"No duplicate files yet — press Scan to search"_s);
    QCOMPARE(page.emptyTitle(), u"No duplicate files found"_s);
    QCOMPARE(page.emptyHint(), u"Press Scan to search your folders for identical copies"_s);
    QCOMPARE(page.status(), u"Select copies to remove — at least one copy of each file is kept"_s);
    QVERIFY(page.isEmpty() && page.canScan() && !page.canRemove());
}

void tst_DuplicatesPage::tellsWhatTheScanDoes()
{
    Fixture f;
    DuplicatesPage &page = f.open();
    {
        const StateFixture::Held held(f);
        page.scan();
        QCOMPARE(page.subtitle(), u"Finding duplicate files…"_s);
        QCOMPARE(page.emptyTitle(), u"Scanning folders…"_s);
        QCOMPARE(page.emptyHint(), u"Hashing file contents, this may take a moment"_s);
        QVERIFY(page.isLoading() && !page.canScan());
    }
    QTRY_VERIFY(!page.isLoading());
    QVERIFY(page.canScan());
}

void tst_DuplicatesPage::stopsAScan()
{
    Fixture f;
    f.copy("a");
    f.copy("b");
    DuplicatesPage &page = f.open();
    {
        const StateFixture::Held held(f);
        page.scan();
        page.stopScan();
        QVERIFY(!page.isLoading());
    }
    f.settle();
    QVERIFY(page.isEmpty());
}

void tst_DuplicatesPage::countsOneGroupAndSeveral()
{
    Fixture f;
    f.copy("a1", 'a');
    f.copy("a2", 'a');
    const DuplicatesPage &page = f.open();
    f.scan();
    QCOMPARE(page.subtitle(), u"1 group · 5 KB reclaimable"_s);
    f.copy("b1", 'b');
    f.copy("b2", 'b');
    f.copy("b3", 'b');
    f.scan();
    QCOMPARE(page.subtitle(), u"2 groups · 15 KB reclaimable"_s);
}

void tst_DuplicatesPage::listsGroupsAsRows()
{
    Fixture f;
    const FileURL first = f.copy("a1");
    ScratchTree::setModified(first, QDateTime({2024, 3, 5}, {12, 0}, Qt::UTC));
    f.copy("a2");
    f.copy("a3");
    f.open();
    f.scan();
    const Rows rows = f.rows();
    QCOMPARE(rows.count(), 4);
    QCOMPARE(rows.column("isHead"), (QStringList{u"true"_s, u"false"_s, u"false"_s, u"false"_s}));
    QCOMPARE(rows.column("name"), (QStringList{u"a1"_s, u"a1"_s, u"a2"_s, u"a3"_s}));
    QCOMPARE(rows.column("original"), (QStringList{u"false"_s, u"true"_s, u"false"_s, u"false"_s}));
    QCOMPARE(rows.column("last"), (QStringList{u"false"_s, u"false"_s, u"false"_s, u"true"_s}));
    QCOMPARE(rows.text(0, "itemId"), f.state->duplicateGroups().first().id);
    QCOMPARE(rows.text(0, "detail"), u"3 copies · 10 KB reclaimable"_s);
    QCOMPARE(rows.text(1, "detail"), u"5 KB · Mar 5, 2024"_s);
    QCOMPARE(rows.text(1, "path"), first.text());
}

void tst_DuplicatesPage::namesAnEmptyGroup()
{
    const SelectionSet<FileURL> selection;
    DuplicatesModel model(selection);
    model.setGroups({{.id = u"0123"_s, .files = {}}});
    QCOMPARE(Rows(&model).count(), 1);
    QCOMPARE(Rows(&model).text(0, "name"), u"Unknown"_s);
    QVERIFY(Rows(&model).flag(0, "last"));
}

void tst_DuplicatesPage::hidesTheFilesOfACollapsedGroup()
{
    Fixture f;
    f.copy("a1", 'a');
    f.copy("a2", 'a');
    f.copy("b1", 'b', 6'000);
    f.copy("b2", 'b', 6'000);
    DuplicatesPage &page = f.open();
    f.scan();
    QCOMPARE(f.rows().count(), 6);
    const QPersistentModelIndex second(page.groups()->index(3, 0));
    page.toggleCollapsed(f.rows().text(0, "itemId"));
    QCOMPARE(f.rows().count(), 4);
    QVERIFY(f.rows().flag(0, "collapsed") && f.rows().flag(0, "last"));
    QVERIFY(second.isValid() && second.row() == 1);
    page.toggleCollapsed(f.rows().text(0, "itemId"));
    QCOMPARE(f.rows().count(), 6);
    QVERIFY(!f.rows().flag(0, "collapsed") && !f.rows().flag(0, "last"));
    page.toggleCollapsed(u"no group"_s);
    QCOMPARE(f.rows().count(), 6);
}

void tst_DuplicatesPage::keepsGroupsCollapsedOverScans()
{
    Fixture f;
    f.copy("a1");
    f.copy("a2");
    DuplicatesPage &page = f.open();
    f.scan();
    page.toggleCollapsed(f.rows().text(0, "itemId"));
    f.copy("a3");
    f.scan();
    QCOMPARE(f.rows().count(), 1);
    QCOMPARE(f.rows().text(0, "detail"), u"3 copies · 10 KB reclaimable"_s);
}

void tst_DuplicatesPage::countsTheSelection()
{
    Fixture f;
    f.copy("a1");
    f.copy("a2");
    f.copy("a3");
    const DuplicatesPage &page = f.open();
    f.scan();
    f.toggle(u"a2"_s);
    QCOMPARE(page.status(), u"1 file selected · 5 KB"_s);
    f.toggle(u"a3"_s);
    QCOMPARE(page.status(), u"2 files selected · 10 KB"_s);
    QVERIFY(page.canRemove());
    f.toggle(u"a2"_s);
    f.toggle(u"a3"_s);
    QVERIFY(!page.canRemove());
}

void tst_DuplicatesPage::neverTicksTheLastCopy()
{
    Fixture f;
    f.copy("a1");
    f.copy("a2");
    const DuplicatesPage &page = f.open();
    f.scan();
    QVERIFY(f.selectable(u"a1"_s) && f.selectable(u"a2"_s));
    QSignalSpy changed(f.page->groups(), &QAbstractItemModel::dataChanged);
    f.toggle(u"a2"_s);
    QVERIFY(!f.selectable(u"a1"_s));
    QVERIFY2(f.selectable(u"a2"_s), "its tick can be taken away");
    QVERIFY2(changed.count() >= 2, "both rows are drawn anew");
    f.toggle(u"a1"_s);
    QVERIFY(!f.selected(u"a1"_s));
    QCOMPARE(page.status(), u"1 file selected · 5 KB"_s);
    f.toggle(u"a2"_s);
    QVERIFY(f.selectable(u"a1"_s));
}

void tst_DuplicatesPage::allowsTheOriginalWhileAnotherStays()
{
    Fixture f;
    const FileURL original = f.copy("a1");
    const FileURL copy = f.copy("a2");
    DuplicatesPage &page = f.open();
    f.scan();
    f.toggle(u"a1"_s);
    page.remove();
    f.state->acceptConfirm();
    QTRY_VERIFY(!page.isRemoving());
    QVERIFY(!ScratchTree::exists(original) && ScratchTree::exists(copy));
}

void tst_DuplicatesPage::keepsTheFirst_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::newRow("nothing ticked") << QStringList{};
    QTest::newRow("the first ticked") << QStringList{u"a1"_s};
    QTest::newRow("the others ticked") << QStringList{u"a2"_s, u"a3"_s};
    QTest::newRow("the first and another ticked") << QStringList{u"a1"_s, u"a3"_s};
}

void tst_DuplicatesPage::keepsTheFirst()
{
    QFETCH(const QStringList, before);
    Fixture f;
    f.copy("a1");
    f.copy("a2");
    f.copy("a3");
    f.copy("b1", 'b', 6'000);
    f.copy("b2", 'b', 6'000);
    DuplicatesPage &page = f.open();
    f.scan();
    for (const QString &name : before)
        f.toggle(name);
    page.keepFirst(f.rows().text(f.fileRow(u"a1"_s) - 1, "itemId"));
    QVERIFY(!f.selected(u"a1"_s) && f.selected(u"a2"_s) && f.selected(u"a3"_s));
    QVERIFY(!f.selected(u"b1"_s) && !f.selected(u"b2"_s));
    QCOMPARE(page.status(), u"2 files selected · 10 KB"_s);
    page.keepFirst(f.rows().text(f.fileRow(u"b1"_s) - 1, "itemId"));
    QVERIFY2(!f.selected(u"b1"_s) && f.selected(u"b2"_s), "of two exactly the second");
}

void tst_DuplicatesPage::ignoresStrangers()
{
    Fixture f;
    f.copy("a1");
    f.copy("a2");
    DuplicatesPage &page = f.open();
    f.scan();
    page.toggle(u"file:///etc/passwd"_s);
    page.toggle(f.rows().text(0, "itemId"));
    page.toggle(QString());
    page.keepFirst(u"no group"_s);
    page.keepFirst(QString());
    QVERIFY(!page.canRemove());
    page.remove();
    QVERIFY(!f.state->confirm());
}

void tst_DuplicatesPage::keepsTheSelectionOfACollapsedGroup()
{
    Fixture f;
    f.copy("a1");
    f.copy("a2");
    DuplicatesPage &page = f.open();
    f.scan();
    f.toggle(u"a2"_s);
    const QString group = f.rows().text(0, "itemId");
    page.toggleCollapsed(group);
    QCOMPARE(page.status(), u"1 file selected · 5 KB"_s);
    page.toggleCollapsed(group);
    QVERIFY(f.selected(u"a2"_s));
}

void tst_DuplicatesPage::keepsTheSelectionThatStillExists()
{
    Fixture f;
    f.copy("a1");
    const FileURL goes = f.copy("a2");
    f.copy("a3");
    const DuplicatesPage &page = f.open();
    f.scan();
    f.toggle(u"a2"_s);
    f.toggle(u"a3"_s);
    QCOMPARE(::unlink(goes.path().constData()), 0);
    f.scan();
    QCOMPARE(page.status(), u"1 file selected · 5 KB"_s);
    f.copy("a2");
    f.scan();
    QVERIFY(f.selected(u"a3"_s));
    QVERIFY2(!f.selected(u"a2"_s), "what is new was never ticked");
}

void tst_DuplicatesPage::untiesASelectionThatLostItsLastCopy()
{
    Fixture f;
    const FileURL kept = f.copy("a1");
    f.copy("a2");
    f.copy("a3");
    const DuplicatesPage &page = f.open();
    f.scan();
    f.toggle(u"a2"_s);
    f.toggle(u"a3"_s);
    QCOMPARE(::unlink(kept.path().constData()), 0);
    f.scan();
    QVERIFY2(!f.selected(u"a2"_s), "one copy has to stay, and the first is the one");
    QVERIFY(f.selected(u"a3"_s));
    QCOMPARE(page.status(), u"1 file selected · 5 KB"_s);
}

void tst_DuplicatesPage::asksInTheSingular()
{
    Fixture f;
    f.copy("a1");
    f.copy("a2");
    DuplicatesPage &page = f.open();
    f.scan();
    f.toggle(u"a2"_s);
    page.remove();
    QVERIFY(f.state->confirm());
    QCOMPARE(f.state->confirm()->title, u"Remove 1 duplicate file?"_s);
    QCOMPARE(f.state->confirm()->symbol, u"square.stack.3d.up.slash"_s);
    QCOMPARE(f.state->confirm()->message,
             u"The selected copies will be moved to Trash. One original copy of each file is kept."_s);
    QCOMPARE(f.state->confirm()->rows, (QList<std::pair<QString, QString>>{{u"Selected Files"_s, u"1 · 5 KB"_s}}));
    QCOMPARE(f.state->confirm()->confirmTitle, u"Move to Trash"_s);
}

void tst_DuplicatesPage::asksInThePlural()
{
    Fixture f;
    f.copy("a1");
    f.copy("a2");
    f.copy("a3");
    DuplicatesPage &page = f.open();
    f.scan();
    page.keepFirst(f.rows().text(0, "itemId"));
    page.remove();
    QCOMPARE(f.state->confirm()->title, u"Remove 2 duplicate files?"_s);
    QCOMPARE(f.state->confirm()->rows.first().second, u"2 · 10 KB"_s);
}

void tst_DuplicatesPage::removesWhatWasAskedAbout()
{
    Fixture f;
    const FileURL first = f.copy("a1");
    const FileURL asked = f.copy("a2");
    const FileURL later = f.copy("a3");
    DuplicatesPage &page = f.open();
    f.scan();
    f.toggle(u"a2"_s);
    page.remove();
    QVERIFY(ScratchTree::exists(asked));
    f.toggle(u"a3"_s);
    {
        const StateFixture::Held held(f);
        f.state->acceptConfirm();
        QVERIFY(page.isRemoving());
    }
    QTRY_VERIFY(!page.isRemoving());
    QVERIFY(!ScratchTree::exists(asked));
    QVERIFY(ScratchTree::exists(first) && ScratchTree::exists(later));
    QCOMPARE(f.rows().count(), 3);
    QVERIFY(!page.canRemove());
}

void tst_DuplicatesPage::keepsACopyThoughTheListChangedMeanwhile()
{
    Fixture f;
    const FileURL kept = f.copy("a1");
    const FileURL second = f.copy("a2");
    const FileURL third = f.copy("a3");
    DuplicatesPage &page = f.open();
    f.scan();
    f.toggle(u"a2"_s);
    f.toggle(u"a3"_s);
    page.remove();
    QCOMPARE(::unlink(kept.path().constData()), 0);
    f.scan();
    f.state->acceptConfirm();
    QTRY_VERIFY(!page.isRemoving());
    QVERIFY2(ScratchTree::exists(second), "the copy that was to be kept is gone: another is");
    QVERIFY(!ScratchTree::exists(third));
}

void tst_DuplicatesPage::cannotRemoveWhileRemoving()
{
    Fixture f;
    f.copy("a1");
    f.copy("a2");
    f.copy("a3");
    DuplicatesPage &page = f.open();
    f.scan();
    f.toggle(u"a2"_s);
    page.remove();
    {
        const StateFixture::Held held(f);
        f.state->acceptConfirm();
        f.toggle(u"a3"_s);
        QVERIFY(page.isRemoving() && !page.canRemove());
        page.remove();
        QVERIFY(!f.state->confirm());
    }
    QTRY_VERIFY(!page.isRemoving());
    QVERIFY(page.canRemove() && f.selected(u"a3"_s));
}

void tst_DuplicatesPage::managesFolders()
{
    Fixture f;
    DuplicatesPage &page = f.open();
    QCOMPARE(f.folders().column("name"), (QStringList{u"Downloads"_s, u"Pictures"_s, u"Movies"_s, u"Music"_s}));
    for (const QString &name : f.folders().column("name")) {
        QVERIFY(page.hasFolders());
        page.removeFolder(f.folders().itemId(name));
    }
    QVERIFY(!page.hasFolders());
    QVERIFY(f.state->duplicateFolders().isEmpty());
}

void tst_DuplicatesPage::addsAPickedFolder()
{
    Fixture f;
    f.panel.answer = f.tree.folder("copies");
    DuplicatesPage &page = f.open();
    page.addFolder();
    QTRY_COMPARE(f.folders().count(), 5);
    QCOMPARE(f.folders().text(4, "name"), u"copies"_s);
    QCOMPARE(f.folders().text(4, "path"), f.tree.at("copies").text());
    QCOMPARE(f.panel.lastMessage, u"Choose a folder to scan for duplicate files."_s);
}

void tst_DuplicatesPage::actsOnListedFilesOnly()
{
    Fixture f;
    f.copy("a1");
    const FileURL second = f.copy("a2");
    DuplicatesPage &page = f.open();
    f.scan();
    const QString id = f.rows().text(f.fileRow(u"a2"_s), "itemId");
    page.showInFileManager(id);
    page.copyPath(id);
    page.showInFileManager(u"file:///etc/passwd"_s);
    page.copyPath(f.rows().text(0, "itemId"));
    QCOMPARE(f.fakes.workspace->shown, QList<FileURL>{second});
    QCOMPARE(f.copied, QStringList{second.text()});
}

void tst_DuplicatesPage::followsTheLanguage()
{
    Fixture f;
    f.copy("a1");
    f.copy("a2");
    DuplicatesPage &page = f.open();
    f.scan();
    const QString english = f.rows().text(0, "detail");
    QSignalSpy touched(page.groups(), &QAbstractItemModel::dataChanged);
    f.state->setLanguage(AppLanguage::de);
    QVERIFY(f.rows().text(0, "detail") != english);
    QVERIFY(!touched.isEmpty());
    f.state->setLanguage(AppLanguage::en);
    QCOMPARE(f.rows().text(0, "detail"), english);
}

void tst_DuplicatesPage::staysQuickWithAHundredThousandRows()
{
    QList<DuplicateGroup> groups;
    for (int group = 0; group < 25'000; ++group) {
        DuplicateGroup made{.id = QString::number(group, 16).rightJustified(64, u'0'), .files = {}};
        for (int file = 0; file < 3; ++file) {
            made.files.append(
                {.url = FileURL::fromCleanPath("/home/user/Pictures/holiday/" + QByteArray::number(group) + "/" +
                                               QByteArray::number(file)),
                 .size = 5'000,
                 .modified = {}});
        }
        groups.append(made);
    }
    const SelectionSet<FileURL> selection;
    DuplicatesModel model(selection);
    model.setGroups(groups);
    QCOMPARE(model.rowCount(), 100'000);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QBENCHMARK_ONCE
    {
        model.toggleCollapsed(groups.at(12'000).id);
    }
    QCOMPARE(model.rowCount(), 99'997);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(resets.count(), 0);
}

QTEST_GUILESS_MAIN(tst_DuplicatesPage)
#include "tst_DuplicatesPage.moc"
