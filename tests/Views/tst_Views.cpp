// SPDX-License-Identifier: MIT
#include "Views/UpdateFeed.h"
#include "Views/ViewFixture.h"

#include <QKeyEvent>
#include <QQmlExtensionPlugin>
#include <QSignalSpy>
#include <QTest>

Q_IMPORT_QML_PLUGIN(Brisko_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Brisko_PaintedPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_PagesPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_ViewsPlugin)

using namespace Qt::StringLiterals;

/// Pages, panel and modals as they are drawn and pressed.
class tst_Views : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void overviewShowsItsFigures();
    void overviewTilesLeadToTheirPages_data();
    void overviewTilesLeadToTheirPages();
    void overviewTilesSayThatTheyAreCounted();
    void overviewTilesWorkFromTheKeyboard();
    void uninstallerOffersAScan();
    void uninstallerTicksAndOpensRows();
    void uninstallerWorksFromTheKeyboard();
    void uninstallerShowsTheMenuOfAnItem();
    void uninstallerAsksBeforeItRemoves();
    void startupListsItems();
    void startupButtonsOfSystemItemsRest();
    void startupSwitchesFromTheKeyboard();
    void settingsSwitchTheLanguage();
    void settingsSwitchTheAppearance();
    void settingsRemoveAndAddFolders();
    void settingsOpenTheMakersPages();
    void panelLeadsToThePages();
    void confirmationAnswersToReturnAndEscape();
    void confirmationKeepsTheKeyboard();
    void confirmationClosesOnItsBackdrop();
    void confirmationGivesTheKeyboardBack();
    void confirmationTakesNoHeldKeyForAnAnswer();
    void alertClosesWithItsButton();
    void updateShowsPillsForWhatIsKnown();
    void updateIsLeftForLaterByEscape();
    void toastIsSeenWhileItIsShown();
};

namespace {

/// What modals lie over: something that holds the keyboard.
class Overlay
{
public:
    void open()
    {
        f.show(u"NoticeLayer"_s, {{u"notices"_s, QVariant::fromValue(f.models.notices())},
                                  {u"backdropSource"_s, QVariant::fromValue(&source)}});
        behind = new QQuickItem(f.window->view().contentItem());
        behind->setSize({50, 50});
        behind->setActiveFocusOnTab(true);
        behind->forceActiveFocus();
        QVERIFY(behind->hasActiveFocus());
    }
    void announce(const QByteArray &members = {})
    {
        const UpdateFeed feed(members);
        f.feed = feed.url();
        QCOMPARE(StateFixture::wait(f.state->checkForUpdates(true)), UpdateOutcome::available);
    }
    void ask()
    {
        f.state->askToConfirm({.id = QUuid::createUuid(),
                               .iconImage = {},
                               .symbol = u"trash"_s,
                               .title = u"Remove 3 large files?"_s,
                               .message = u"The selected files will be moved to Trash."_s,
                               .rows = {{u"Total Size"_s, u"5 MB"_s}, {u"Selected Files"_s, u"3"_s}},
                               .confirmTitle = u"Move to Trash"_s,
                               .onConfirm = [this] { ++accepted; }});
    }

    QQuickItem source;
    ViewFixture f;
    QQuickItem *behind = nullptr;
    int accepted = 0;
};

FileURL agent(const PageFixture &f, const QByteArray &name)
{
    return f.startupItem(f.home.appending("Library/LaunchAgents").child(name));
}

void scanApps(ViewFixture &f)
{
    StateFixture::wait(f.state->scanApps());
    QTRY_VERIFY(!f.state->appDetailsLoading());
}

} // namespace

void tst_Views::overviewShowsItsFigures()
{
    ViewFixture f;
    f.showPage(u"OverviewView"_s, f.models.overview());
    QCOMPARE(f.text(u"pageTitle"_s), u"Your Mac, Cleaner and Lighter"_s);
    QCOMPARE(f.item(u"cpuGauge"_s)->property("value").toString(), u"0%"_s);
    QCOMPARE(f.item(u"temperatureGauge"_s)->property("value").toString(), u"--"_s);
    QCOMPARE(f.item(u"temperatureGauge"_s)->property("detail").toString(), u"Unavailable"_s);
    QCOMPARE(f.item(u"freeableGauge"_s)->property("value").toString(), u"Zero KB"_s);
    f.picture(u"overview"_s);
}

void tst_Views::overviewTilesLeadToTheirPages_data()
{
    QTest::addColumn<QString>("tile");
    QTest::addColumn<int>("page");
    QTest::newRow("uninstaller") << u"uninstallerTile"_s << int(Page::uninstaller);
    QTest::newRow("duplicates") << u"duplicatesTile"_s << int(Page::duplicates);
    QTest::newRow("large files") << u"largeFilesTile"_s << int(Page::largeFiles);
    QTest::newRow("junk") << u"junkTile"_s << int(Page::junk);
}

void tst_Views::overviewTilesLeadToTheirPages()
{
    QFETCH(QString, tile);
    QFETCH(int, page);
    ViewFixture f;
    f.showPage(u"OverviewView"_s, f.models.overview());
    f.click(f.item(tile));
    QCOMPARE(int(f.state->selection()), page);
}

void tst_Views::overviewTilesSayThatTheyAreCounted()
{
    ViewFixture f;
    f.showPage(u"OverviewView"_s, f.models.overview());
    QCOMPARE(f.item(u"junkTile"_s)->property("shownValue").toString(), u"Zero KB"_s);
    const StateFixture::Held held(f);
    f.state->scanJunk();
    QCOMPARE(f.item(u"junkTile"_s)->property("shownValue").toString(), u"Calculating…"_s);
    QVERIFY(f.item(u"stopScan"_s));
    f.picture(u"overview-scanning"_s);
    f.click(f.item(u"stopScan"_s));
    QVERIFY(!f.state->junkLoading());
    QCOMPARE(f.item(u"junkTile"_s)->property("shownValue").toString(), u"Zero KB"_s);
}

void tst_Views::overviewTilesWorkFromTheKeyboard()
{
    ViewFixture f;
    f.showPage(u"OverviewView"_s, f.models.overview());
    f.press(Qt::Key_Tab);
    QVERIFY(f.item(u"uninstallerTile"_s)->hasActiveFocus());
    f.press(Qt::Key_Tab);
    f.press(Qt::Key_Return);
    QCOMPARE(f.state->selection(), Page::duplicates);
}

void tst_Views::uninstallerOffersAScan()
{
    ViewFixture f;
    f.showPage(u"UninstallerView"_s, f.models.uninstaller());
    QCOMPARE(f.text(u"emptyTitle"_s), u"No applications found"_s);
    f.picture(u"uninstaller-empty"_s);
    QVERIFY(!f.item(u"moveToTrash"_s)->isEnabled());
    f.app("Editor");
    f.click(f.item(u"scanApps"_s));
    QTRY_COMPARE(f.all(u"app"_s).size(), 1);
    QVERIFY(!f.item(u"scanApps"_s));
}

void tst_Views::uninstallerTicksAndOpensRows()
{
    ViewFixture f;
    ScratchTree::setModified(f.app("Editor"), f.now.addDays(-40));
    f.tree.file("home/Library/Application Support/Editor/data", QByteArray(20'000, 'c'));
    f.app("Player");
    f.app("Viewer");
    f.showPage(u"UninstallerView"_s, f.models.uninstaller());
    scanApps(f);
    QTRY_COMPARE(f.all(u"app"_s).size(), 3);
    f.click(f.all(u"appCheck"_s).value(0));
    QVERIFY(Rows(f.models.uninstaller()->apps()).flag(0, "selected"));
    QTRY_VERIFY(f.all(u"appCheck"_s).value(0)->property("checked").toBool());
    QVERIFY(f.text(u"pageStatus"_s).startsWith(u"1 item selected"_s));
    const qreal closed = f.all(u"app"_s).value(0)->height();
    f.click(f.all(u"appChevron"_s).value(0));
    QTRY_COMPARE(f.all(u"relatedFile"_s).size(), 1);
    QTRY_VERIFY(f.all(u"app"_s).value(0)->height() > closed);
    f.picture(u"uninstaller"_s);
    f.window->theme->setDark(true);
    f.picture(u"uninstaller-dark"_s);
    f.click(f.all(u"appChevron"_s).value(0));
    QTRY_COMPARE(f.all(u"app"_s).value(0)->height(), closed);
    f.click(f.all(u"app"_s).value(0));
    QVERIFY(!Rows(f.models.uninstaller()->apps()).flag(0, "selected"));
}

void tst_Views::uninstallerWorksFromTheKeyboard()
{
    ViewFixture f;
    f.app("Editor");
    f.app("Player");
    f.showPage(u"UninstallerView"_s, f.models.uninstaller());
    scanApps(f);
    QTRY_COMPARE(f.all(u"app"_s).size(), 2);
    f.press(Qt::Key_Tab);
    QVERIFY(f.item(u"apps"_s)->hasFocus());
    f.press(Qt::Key_Down);
    f.press(Qt::Key_Space);
    const Rows rows(f.models.uninstaller()->apps());
    QCOMPARE(rows.column("selected"), (QStringList{u"false"_s, u"true"_s}));
    f.press(Qt::Key_Return);
    QCOMPARE(rows.column("expanded"), (QStringList{u"false"_s, u"true"_s}));
    f.press(Qt::Key_Left);
    QCOMPARE(rows.column("expanded"), (QStringList{u"false"_s, u"false"_s}));
}

void tst_Views::uninstallerShowsTheMenuOfAnItem()
{
    ViewFixture f;
    const FileURL bundle = f.app("Editor");
    f.showPage(u"UninstallerView"_s, f.models.uninstaller());
    scanApps(f);
    QTRY_COMPARE(f.all(u"app"_s).size(), 1);
    f.click(f.item(u"app"_s), Qt::RightButton);
    QTRY_VERIFY(f.item(u"copyPath"_s));
    f.click(f.item(u"copyPath"_s));
    QCOMPARE(f.copied, QStringList{bundle.text()});
    QTRY_VERIFY(!f.item(u"copyPath"_s));
    f.click(f.item(u"app"_s), Qt::RightButton);
    QTRY_VERIFY(f.item(u"showInFileManager"_s));
    f.click(f.item(u"showInFileManager"_s));
    QCOMPARE(f.fakes.workspace->shown, QList<FileURL>{bundle});
}

void tst_Views::uninstallerAsksBeforeItRemoves()
{
    ViewFixture f;
    const FileURL bundle = f.app("Editor");
    f.showPage(u"UninstallerView"_s, f.models.uninstaller());
    scanApps(f);
    QTRY_COMPARE(f.all(u"app"_s).size(), 1);
    f.click(f.item(u"app"_s));
    QTRY_VERIFY(f.item(u"moveToTrash"_s)->isEnabled());
    f.click(f.item(u"moveToTrash"_s));
    QTRY_VERIFY(f.state->confirm());
    QVERIFY(ScratchTree::exists(bundle));
}

void tst_Views::startupListsItems()
{
    ViewFixture f;
    f.showPage(u"StartupView"_s, f.models.startup());
    QTRY_COMPARE(f.text(u"pageStatus"_s), u"No startup items found"_s);
    QCOMPARE(f.text(u"emptyTitle"_s), u"No startup items yet"_s);
    f.picture(u"startup-empty"_s);
    const FileURL file = agent(f, "org.sample.plist");
    agent(f, "org.other.plist");
    f.click(f.item(u"refresh"_s));
    QTRY_COMPARE(f.all(u"startupItem"_s).size(), 2);
    QCOMPARE(f.text(u"pageSubtitle"_s), u"2 items · 2 enabled"_s);
    f.click(f.all(u"removeStartupItem"_s).value(0));
    QVERIFY(f.state->confirm());
    f.state->cancelConfirm();
    f.click(f.all(u"toggleStartupItem"_s).value(0));
    QTRY_COMPARE(f.text(u"pageStatus"_s), u"2 items · 1 enabled"_s);
    f.picture(u"startup"_s);
    QVERIFY(ScratchTree::exists(file));
}

void tst_Views::startupButtonsOfSystemItemsRest()
{
    ViewFixture f;
    f.startupItem(f.tree.at("system/LaunchDaemons/org.system.plist"));
    f.showPage(u"StartupView"_s, f.models.startup());
    QTRY_COMPARE(f.all(u"startupItem"_s).size(), 1);
    QQuickItem *toggle = f.item(u"toggleStartupItem"_s);
    QQuickItem *remove = f.item(u"removeStartupItem"_s);
    QVERIFY(!toggle->isEnabled() && !remove->isEnabled());
    QCOMPARE(toggle->opacity(), 0.3);
    QCOMPARE(remove->opacity(), 0.3);
    f.click(toggle);
    f.click(remove);
    f.settle();
    QVERIFY(!f.state->confirm() && !f.state->toast());
}

void tst_Views::startupSwitchesFromTheKeyboard()
{
    ViewFixture f;
    agent(f, "org.sample.plist");
    f.showPage(u"StartupView"_s, f.models.startup());
    QTRY_COMPARE(f.all(u"startupItem"_s).size(), 1);
    f.press(Qt::Key_Tab);
    f.press(Qt::Key_Space);
    QTRY_COMPARE(f.text(u"pageStatus"_s), u"1 item · 0 enabled"_s);
    f.press(Qt::Key_Delete);
    QVERIFY(f.state->confirm());
}

void tst_Views::settingsSwitchTheLanguage()
{
    ViewFixture f;
    f.state->setLanguage(AppLanguage::en);
    f.showPage(u"SettingsView"_s, f.models.settings());
    auto *texts = f.window->view().engine()->singletonInstance<Texts *>(qmlTypeId("Brisko.Theme", 1, 0, "Texts"));
    QObject::connect(f.state.get(), &AppState::languageChanged, texts, &Texts::followLanguage);
    QCOMPARE(f.text(u"pageTitle"_s), u"Settings"_s);
    f.picture(u"settings"_s);
    f.click(f.item(u"language-de"_s));
    QCOMPARE(f.state->language(), AppLanguage::de);
    QCOMPARE(f.text(u"pageTitle"_s), u"Einstellungen"_s);
    QVERIFY(f.item(u"language-de"_s)->property("checked").toBool());
    QVERIFY(!f.item(u"language-en"_s)->property("checked").toBool());
    f.window->theme->setDark(true);
    f.picture(u"settings-dark"_s);
    f.click(f.item(u"language-en"_s));
    QCOMPARE(f.text(u"pageTitle"_s), u"Settings"_s);
    QVERIFY(!f.item(u"language-de"_s)->property("checked").toBool());
}

void tst_Views::settingsSwitchTheAppearance()
{
    ViewFixture f;
    f.showPage(u"SettingsView"_s, f.models.settings());
    f.click(f.item(u"segment2"_s));
    QCOMPARE(f.state->appearance(), AppearanceOption::dark);
    QVERIFY(f.item(u"segment2"_s)->property("checked").toBool());
    QVERIFY(!f.item(u"segment0"_s)->property("checked").toBool());
    f.click(f.item(u"segment0"_s));
    QCOMPARE(f.state->appearance(), AppearanceOption::system);
    QVERIFY(!f.item(u"segment2"_s)->property("checked").toBool());
    QCOMPARE(f.item(u"segment0"_s)->width(), f.item(u"segment2"_s)->width());
}

void tst_Views::settingsRemoveAndAddFolders()
{
    ViewFixture f;
    f.showPage(u"SettingsView"_s, f.models.settings());
    QCOMPARE(f.all(u"removeFolder"_s).size(), 4);
    while (QQuickItem *first = f.item(u"removeFolder"_s))
        f.click(first);
    QVERIFY(f.state->duplicateFolders().isEmpty());
    f.panel.answer = f.tree.folder("home/Documents");
    f.click(f.item(u"addFolder"_s));
    QTRY_COMPARE(f.all(u"removeFolder"_s).size(), 1);
}

void tst_Views::settingsOpenTheMakersPages()
{
    ViewFixture f;
    f.showPage(u"SettingsView"_s, f.models.settings());
    for (const QString &link : {u"privacyPolicy"_s, u"termsOfService"_s, u"contactUs"_s}) {
        f.item(link)->forceActiveFocus();
        f.press(Qt::Key_Return);
    }
    QCOMPARE(f.fakes.workspace->opened.size(), 3);
    QCOMPARE(f.fakes.workspace->opened.last().scheme(), u"mailto"_s);
}

void tst_Views::panelLeadsToThePages()
{
    ViewFixture f;
    QSignalSpy posted(&f.notifications, &NotificationCenter::posted);
    f.show(u"MenuBarPanel"_s, {{u"panel"_s, QVariant::fromValue(f.models.panel())}});
    f.window->view().resize(300, 480);
    QTRY_COMPARE(f.window->view().rootObject()->width(), 300);
    f.picture(u"panel"_s);
    QCOMPARE(f.item(u"panelTemperature"_s)->property("value").toString(), u"--"_s);
    f.click(f.item(u"panelJunk"_s));
    QCOMPARE(f.state->selection(), Page::junk);
    QCOMPARE(posted.count(), 2);
    f.click(f.item(u"openWindow"_s));
    QCOMPARE(f.state->selection(), Page::junk);
    QCOMPARE(posted.count(), 4);
    f.click(f.item(u"quit"_s));
    QCOMPARE(posted.count(), 5);
    QCOMPARE(f.quits, 1);
}

void tst_Views::confirmationAnswersToReturnAndEscape()
{
    Overlay o;
    o.open();
    o.ask();
    QCOMPARE(o.f.text(u"modalTitle"_s), u"Remove 3 large files?"_s);
    o.f.picture(u"confirm"_s);
    o.f.press(Qt::Key_Escape);
    QVERIFY(!o.f.state->confirm());
    QTRY_VERIFY(!o.f.item(u"confirm"_s));
    QCOMPARE(o.accepted, 0);
    o.ask();
    QVERIFY(o.f.item(u"confirm"_s));
    o.f.press(Qt::Key_Return);
    QCOMPARE(o.accepted, 1);
    QTRY_VERIFY(!o.f.item(u"confirm"_s));
    QVERIFY(!o.f.models.notices()->modalShown());
}

void tst_Views::confirmationKeepsTheKeyboard()
{
    Overlay o;
    o.open();
    o.ask();
    QVERIFY(!o.behind->hasActiveFocus());
    o.f.press(Qt::Key_Tab);
    QVERIFY(o.f.item(u"cancel"_s)->hasActiveFocus());
    o.f.press(Qt::Key_Tab);
    QVERIFY(o.f.item(u"confirm"_s)->hasActiveFocus());
    o.f.press(Qt::Key_Tab);
    QVERIFY(o.f.item(u"cancel"_s)->hasActiveFocus()); // round and round
    o.f.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(o.f.item(u"confirm"_s)->hasActiveFocus());
    o.f.press(Qt::Key_Tab);
    o.f.press(Qt::Key_Space);
    QVERIFY(!o.f.state->confirm());
    QCOMPARE(o.accepted, 0);
}

void tst_Views::confirmationClosesOnItsBackdrop()
{
    Overlay o;
    o.open();
    o.ask();
    QTest::mouseClick(&o.f.window->view(), Qt::LeftButton, {}, QPoint(378, 326)); // the card itself
    QVERIFY(o.f.state->confirm());
    QTest::mouseClick(&o.f.window->view(), Qt::LeftButton, {}, QPoint(20, 20));
    QVERIFY(!o.f.state->confirm());
    QCOMPARE(o.accepted, 0);
}

void tst_Views::confirmationGivesTheKeyboardBack()
{
    Overlay o;
    o.open();
    o.ask();
    QVERIFY(!o.behind->hasActiveFocus());
    o.f.click(o.f.item(u"cancel"_s));
    QTRY_VERIFY(o.behind->hasActiveFocus());
}

void tst_Views::confirmationTakesNoHeldKeyForAnAnswer()
{
    Overlay o;
    o.open();
    o.ask();
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&o.f.window->view(), &repeated);
    QVERIFY(o.f.state->confirm());
    QCOMPARE(o.accepted, 0);
}

void tst_Views::alertClosesWithItsButton()
{
    Overlay o;
    o.open();
    o.f.state->raiseAlert(u"Can't move to Trash"_s, u"No space left on device"_s);
    QCOMPARE(o.f.text(u"modalTitle"_s), u"Can't move to Trash"_s);
    QCOMPARE(o.f.text(u"alertMessage"_s), u"No space left on device"_s);
    o.f.picture(u"alert"_s);
    o.f.click(o.f.item(u"dismissAlert"_s));
    QVERIFY(!o.f.state->alert());
    QTRY_VERIFY(!o.f.item(u"dismissAlert"_s));
    o.f.state->raiseAlert(u"Can't move to Trash"_s, u"No space left on device"_s);
    o.f.press(Qt::Key_Escape);
    QVERIFY(!o.f.state->alert());
}

void tst_Views::toastIsSeenWhileItIsShown()
{
    Overlay o;
    o.open();
    QVERIFY(!o.f.item(u"toastSymbol"_s));
    o.f.state->showToast(u"checkmark.circle.fill"_s, 0xFF0000, u"Scan complete — 12.4 GB can be freed"_s);
    QVERIFY(o.f.item(u"toastSymbol"_s));
    QCOMPARE(o.f.item(u"toastSymbol"_s)->property("color").value<QColor>(), QColor(255, 0, 0));
    o.f.picture(u"toast"_s);
    QVERIFY(o.behind->hasActiveFocus()); // it asks for nothing
}

void tst_Views::updateShowsPillsForWhatIsKnown()
{
    Overlay o;
    o.open();
    o.announce(R"("releaseDate":"2026-03-05T10:00:00Z","fileSizeBytes":12400000,)");
    QTRY_VERIFY(o.f.item(u"downloadUpdate"_s));
    QCOMPARE(o.f.text(u"updateVersion"_s), u"Version 99.1"_s);
    QCOMPARE(o.f.text(u"updateDate"_s), u"Mar 5, 2026"_s);
    QCOMPARE(o.f.text(u"updateSize"_s), u"12.4 MB"_s);
    QCOMPARE(o.f.text(u"updateNotes"_s), u"Better"_s);
    o.f.picture(u"update"_s);
    o.f.click(o.f.item(u"skipUpdate"_s));
    QVERIFY(!o.f.state->updateInfo());
    QTRY_VERIFY(!o.f.item(u"downloadUpdate"_s));
}

void tst_Views::updateIsLeftForLaterByEscape()
{
    Overlay o;
    o.open();
    o.announce();
    QTRY_VERIFY(o.f.item(u"downloadUpdate"_s));
    QVERIFY(!o.f.item(u"updateDate"_s) && !o.f.item(u"updateSize"_s));
    o.f.press(Qt::Key_Escape);
    QVERIFY(!o.f.state->updateInfo());
    QVERIFY(o.f.fakes.workspace->opened.isEmpty());
}

QTEST_MAIN(tst_Views)
#include "tst_Views.moc"
