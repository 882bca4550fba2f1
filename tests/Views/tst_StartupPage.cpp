// SPDX-License-Identifier: MIT
#include "Views/StartupPage.h"

#include "Views/PageFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_StartupPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksForAScanBeforeOne();
    void scansOnceWhenItAppears();
    void saysThatNothingWasFound();
    void countsItemsAndEnabledOnes();
    void usesTheSingularForOne();
    void listsAnItem();
    void keepsANameWithoutEnding();
    void explainsWhySystemItemsStay();
    void switchesAnItem();
    void doesNotSwitchASystemItem();
    void asksBeforeItRemoves();
    void removesWhatWasConfirmed();
    void disablesRemovingWhileARemovalRuns();
    void ignoresWhatItDoesNotList();
    void showsAndCopiesPaths();
    void stopsAScan();
    void translatesRows();
};

namespace {

FileURL agent(const PageFixture &f, const QByteArray &name)
{
    return f.startupItem(f.home.appending("Library/LaunchAgents").child(name));
}

FileURL daemon(const PageFixture &f, const QByteArray &name)
{
    return f.startupItem(f.tree.at("system/LaunchDaemons").child(name));
}

} // namespace

void tst_StartupPage::asksForAScanBeforeOne()
{
    PageFixture f;
    const StartupPage page(f.make(), f.actions);
    QCOMPARE(page.status(), u"Press Scan to list startup items"_s);
    QVERIFY(page.isEmpty() && !page.loading());
}

void tst_StartupPage::scansOnceWhenItAppears()
{
    PageFixture f;
    AppState &state = f.make();
    StartupPage page(state, f.actions);
    QSignalSpy loading(&state, &AppState::startupLoadingChanged);
    {
        const StateFixture::Held held(f);
        page.appeared();
        QVERIFY(page.loading());
        QCOMPARE(page.status(), u"Scanning startup items…"_s);
    }
    QTRY_VERIFY(!page.loading());
    page.appeared();
    QVERIFY(!page.loading());
    QCOMPARE(loading.count(), 2);
    {
        const StateFixture::Held held(f);
        page.refreshItems();
        QVERIFY(page.loading());
    }
    QTRY_VERIFY(!page.loading());
}

void tst_StartupPage::saysThatNothingWasFound()
{
    PageFixture f;
    StartupPage page(f.make(), f.actions);
    page.appeared();
    QTRY_COMPARE(page.status(), u"No startup items found"_s);
    QVERIFY(page.isEmpty());
}

void tst_StartupPage::countsItemsAndEnabledOnes()
{
    PageFixture f;
    agent(f, "one.plist");
    agent(f, "two.plist");
    f.fakes.propertyList->tables[agent(f, "three.plist")].values.insert(u"Disabled"_s, true);
    StartupPage page(f.make(), f.actions);
    page.appeared();
    QTRY_COMPARE(page.status(), u"3 items · 2 enabled"_s);
    QVERIFY(!page.isEmpty());
}

void tst_StartupPage::usesTheSingularForOne()
{
    PageFixture f;
    agent(f, "one.plist");
    StartupPage page(f.make(), f.actions);
    page.appeared();
    QTRY_COMPARE(page.status(), u"1 item · 1 enabled"_s);
}

void tst_StartupPage::listsAnItem()
{
    PageFixture f;
    const FileURL file = agent(f, "org.sample.plist");
    StartupPage page(f.make(), f.actions);
    const QAbstractItemModelTester tester(page.items(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    page.appeared();
    QTRY_COMPARE(page.items()->rowCount(), 1);
    QCOMPARE(Rows(page.items()).value(0, "itemId").toString(), ItemId::of(file));
    QCOMPARE(Rows(page.items()).value(0, "name").toString(), u"org.sample"_s);
    QCOMPARE(Rows(page.items()).value(0, "typeLabel").toString(), u"Launch Agent"_s);
    QCOMPARE(Rows(page.items()).value(0, "path").toString(), file.text());
    QCOMPARE(Rows(page.items()).value(0, "switchedOn").toBool(), true);
    QCOMPARE(Rows(page.items()).value(0, "toggleText").toString(), u"Disable"_s);
    QCOMPARE(Rows(page.items()).value(0, "canToggle").toBool(), true);
    QCOMPARE(Rows(page.items()).value(0, "canRemove").toBool(), true);
    QCOMPARE(Rows(page.items()).value(0, "toggleTip").toString(), QString());
    QCOMPARE(Rows(page.items()).value(0, "removeTip").toString(), QString());
}

void tst_StartupPage::keepsANameWithoutEnding()
{
    StartupModel model;
    StartupEntry entry;
    entry.item.name = u"org.sample"_s;
    entry.item.path = FileURL::fromCleanPath("/a/org.sample");
    model.setRecords({entry});
    QCOMPARE(Rows(&model).value(0, "name").toString(), u"org.sample"_s);
}

void tst_StartupPage::explainsWhySystemItemsStay()
{
    PageFixture f;
    daemon(f, "org.system.plist");
    StartupPage page(f.make(), f.actions);
    page.appeared();
    QTRY_COMPARE(page.items()->rowCount(), 1);
    QCOMPARE(Rows(page.items()).value(0, "typeLabel").toString(), u"Launch Daemon"_s);
    QCOMPARE(Rows(page.items()).value(0, "canToggle").toBool(), false);
    QCOMPARE(Rows(page.items()).value(0, "canRemove").toBool(), false);
    QCOMPARE(Rows(page.items()).value(0, "toggleTip").toString(), u"System-level items cannot be modified"_s);
    QCOMPARE(Rows(page.items()).value(0, "removeTip").toString(), u"System-level items cannot be removed"_s);
}

void tst_StartupPage::switchesAnItem()
{
    PageFixture f;
    const FileURL file = agent(f, "org.sample.plist");
    StartupPage page(f.make(), f.actions);
    const QAbstractItemModelTester tester(page.items(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    page.appeared();
    QTRY_COMPARE(page.items()->rowCount(), 1);
    QSignalSpy resets(page.items(), &QAbstractItemModel::modelReset);
    page.toggle(ItemId::of(file));
    QTRY_COMPARE(Rows(page.items()).value(0, "toggleText").toString(), u"Enable"_s);
    QCOMPARE(page.status(), u"1 item · 0 enabled"_s);
    page.toggle(ItemId::of(file));
    QTRY_COMPARE(page.status(), u"1 item · 1 enabled"_s);
    QCOMPARE(resets.count(), 0);
}

void tst_StartupPage::doesNotSwitchASystemItem()
{
    PageFixture f;
    const FileURL file = daemon(f, "org.system.plist");
    AppState &state = f.make();
    StartupPage page(state, f.actions);
    page.appeared();
    QTRY_COMPARE(page.items()->rowCount(), 1);
    page.toggle(ItemId::of(file));
    page.remove(ItemId::of(file));
    f.settle();
    QVERIFY(f.fakes.propertyList->tables.value(file).values.isEmpty());
    QVERIFY(!state.toast() && !state.confirm());
}

void tst_StartupPage::asksBeforeItRemoves()
{
    PageFixture f;
    const FileURL file = agent(f, "org.sample.plist");
    AppState &state = f.make();
    StartupPage page(state, f.actions);
    page.appeared();
    QTRY_COMPARE(page.items()->rowCount(), 1);
    page.remove(ItemId::of(file));
    QVERIFY(state.confirm());
    QCOMPARE(state.confirm()->title, u"Remove org.sample?"_s);
    QCOMPARE(state.confirm()->message,
             u"This will move the plist file to Trash. You can re-enable it later from the original app."_s);
    QCOMPARE(state.confirm()->rows,
             (QList<std::pair<QString, QString>>{{u"Type"_s, u"Launch Agent"_s}, {u"Path"_s, file.text()}}));
    QCOMPARE(state.confirm()->confirmTitle, u"Remove"_s);
    state.cancelConfirm();
    f.settle();
    QCOMPARE(page.items()->rowCount(), 1);
    QVERIFY(ScratchTree::exists(file));
}

void tst_StartupPage::removesWhatWasConfirmed()
{
    PageFixture f;
    const FileURL file = agent(f, "org.sample.plist");
    const FileURL other = agent(f, "org.other.plist");
    AppState &state = f.make();
    StartupPage page(state, f.actions);
    page.appeared();
    QTRY_COMPARE(page.items()->rowCount(), 2);
    page.remove(ItemId::of(file));
    state.acceptConfirm();
    QTRY_COMPARE(page.items()->rowCount(), 1);
    QVERIFY(!ScratchTree::exists(file) && ScratchTree::exists(other));
    QCOMPARE(f.fakes.trashCan->asked(), QList<FileURL>{file});
}

void tst_StartupPage::disablesRemovingWhileARemovalRuns()
{
    PageFixture f;
    const FileURL file = agent(f, "org.sample.plist");
    const FileURL other = agent(f, "org.other.plist");
    AppState &state = f.make();
    StartupPage page(state, f.actions);
    page.appeared();
    QTRY_COMPARE(page.items()->rowCount(), 2);
    {
        const StateFixture::Held held(f);
        page.remove(ItemId::of(file));
        state.acceptConfirm();
        QVERIFY(page.removing());
        QCOMPARE(Rows(page.items()).value(0, "canRemove").toBool(), false);
        QCOMPARE(Rows(page.items()).value(1, "canRemove").toBool(), false);
        page.remove(ItemId::of(other));
        QVERIFY(!state.confirm());
    }
    QTRY_VERIFY(!page.removing());
    QCOMPARE(Rows(page.items()).value(0, "canRemove").toBool(), true);
}

void tst_StartupPage::ignoresWhatItDoesNotList()
{
    PageFixture f;
    agent(f, "org.sample.plist");
    AppState &state = f.make();
    StartupPage page(state, f.actions);
    page.appeared();
    QTRY_COMPARE(page.items()->rowCount(), 1);
    for (const QString &id : {u"file:///elsewhere.plist"_s, u"nonsense"_s, QString()}) {
        page.toggle(id);
        page.remove(id);
        page.showInFileManager(id);
        page.copyPath(id);
    }
    f.settle();
    QVERIFY(!state.confirm() && !state.toast());
    QVERIFY(f.fakes.workspace->shown.isEmpty() && f.copied.isEmpty());
}

void tst_StartupPage::showsAndCopiesPaths()
{
    PageFixture f;
    const FileURL file = agent(f, "org.sample.plist");
    StartupPage page(f.make(), f.actions);
    page.appeared();
    QTRY_COMPARE(page.items()->rowCount(), 1);
    page.showInFileManager(ItemId::of(file));
    page.copyPath(ItemId::of(file));
    QCOMPARE(f.fakes.workspace->shown, QList<FileURL>{file});
    QCOMPARE(f.copied, QStringList{file.text()});
}

void tst_StartupPage::stopsAScan()
{
    PageFixture f;
    StartupPage page(f.make(), f.actions);
    const StateFixture::Held held(f);
    page.appeared();
    QVERIFY(page.loading());
    page.stopScan();
    QVERIFY(!page.loading());
}

void tst_StartupPage::translatesRows()
{
    PageFixture f;
    agent(f, "org.sample.plist");
    AppState &state = f.make();
    StartupPage page(state, f.actions);
    page.appeared();
    QTRY_COMPARE(page.items()->rowCount(), 1);
    QSignalSpy touched(page.items(), &QAbstractItemModel::dataChanged);
    state.setLanguage(AppLanguage::de);
    QCOMPARE(touched.count(), 1);
    QCOMPARE(page.status(), u"1 Objekt · 1 aktiv"_s);
    QCOMPARE(Rows(page.items()).value(0, "toggleText").toString(), u"Deaktivieren"_s);
    state.setLanguage(AppLanguage::en);
}

QTEST_GUILESS_MAIN(tst_StartupPage)
#include "tst_StartupPage.moc"
