// SPDX-License-Identifier: MIT
#include "Views/SettingsPage.h"

#include "Views/PageFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_SettingsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesLanguagesInThemselves();
    void switchesTheLanguageAtOnce();
    void changesNothingForTheActiveLanguage();
    void ignoresALanguageThatIsNone();
    void switchesTheAppearance();
    void listsAndRemovesFolders();
    void keepsTheLastFolderRemoved();
    void addsAChosenFolder();
    void addsNothingWhenTheChooserIsCancelled();
    void ignoresAFolderThatIsNotListed();
    void namesTheVersion();
    void saysThatItChecksForUpdates();
    void opensTheMakersPages();
    void hasHarmlessAddresses();
};

void tst_SettingsPage::namesLanguagesInThemselves()
{
    PageFixture f;
    SettingsPage page(f.make());
    const QAbstractItemModelTester tester(page.languages(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(Rows(page.languages()).column("name"),
             (QStringList{u"System"_s, u"English"_s, u"日本語"_s, u"한국어"_s, u"简体中文"_s, u"繁體中文"_s,
                          u"Deutsch"_s, u"Français"_s, u"Español"_s, u"Italiano"_s, u"Türkçe"_s, u"ไทย"_s}));
    QCOMPARE(Rows(page.languages()).value(0, "languageId").toString(), u"system"_s);
    QCOMPARE(Rows(page.languages()).value(4, "languageId").toString(), u"zh-Hans"_s);
}

void tst_SettingsPage::switchesTheLanguageAtOnce()
{
    PageFixture f;
    AppState &state = f.make();
    state.setLanguage(AppLanguage::en);
    SettingsPage page(state);
    page.chooseLanguage(u"de"_s);
    QCOMPARE(state.language(), AppLanguage::de);
    QCOMPARE(page.updateButton(), u"Nach Updates suchen"_s);
    QCOMPARE(Rows(page.languages()).value(6, "chosen").toBool(), true);
    QCOMPARE(Rows(page.languages()).column("chosen").count(u"true"_s), 1);
    page.chooseLanguage(u"en"_s);
    QCOMPARE(page.updateButton(), u"Check for Updates"_s);
}

void tst_SettingsPage::changesNothingForTheActiveLanguage()
{
    PageFixture f;
    AppState &state = f.make();
    state.setLanguage(AppLanguage::en);
    SettingsPage page(state);
    QSignalSpy changed(&state, &AppState::languageChanged);
    page.chooseLanguage(u"en"_s);
    QCOMPARE(changed.count(), 0);
}

void tst_SettingsPage::ignoresALanguageThatIsNone()
{
    PageFixture f;
    AppState &state = f.make();
    state.setLanguage(AppLanguage::en);
    SettingsPage page(state);
    page.chooseLanguage(u"tlh"_s);
    QCOMPARE(state.language(), AppLanguage::en);
}

void tst_SettingsPage::switchesTheAppearance()
{
    PageFixture f;
    AppState &state = f.make();
    SettingsPage page(state);
    QCOMPARE(page.appearance(), SettingsPage::System);
    page.chooseAppearance(SettingsPage::Dark);
    QCOMPARE(state.appearance(), AppearanceOption::dark);
    QCOMPARE(page.appearance(), SettingsPage::Dark);
    page.chooseAppearance(SettingsPage::Light);
    QCOMPARE(state.appearance(), AppearanceOption::light);
}

void tst_SettingsPage::listsAndRemovesFolders()
{
    PageFixture f;
    AppState &state = f.make();
    SettingsPage page(state);
    const QAbstractItemModelTester tester(page.duplicateFolders(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(Rows(page.duplicateFolders()).column("name"),
             (QStringList{u"Downloads"_s, u"Pictures"_s, u"Movies"_s, u"Music"_s}));
    QCOMPARE(Rows(page.duplicateFolders()).value(1, "path").toString(), f.home.child("Pictures").text());
    page.removeFolder(ItemId::of(f.home.child("Pictures")));
    QCOMPARE(Rows(page.duplicateFolders()).column("name"), (QStringList{u"Downloads"_s, u"Movies"_s, u"Music"_s}));
    QCOMPARE(state.duplicateFolders().size(), 3);
}

void tst_SettingsPage::keepsTheLastFolderRemoved()
{
    PageFixture f;
    AppState &state = f.make();
    SettingsPage page(state);
    for (const FileURL &folder : QList<FileURL>(state.duplicateFolders()))
        page.removeFolder(ItemId::of(folder));
    QCOMPARE(page.duplicateFolders()->rowCount(), 0);
    QVERIFY(state.duplicateFolders().isEmpty());
}

void tst_SettingsPage::addsAChosenFolder()
{
    PageFixture f;
    AppState &state = f.make();
    SettingsPage page(state);
    f.panel.answer = f.tree.folder("home/Documents");
    page.addFolder();
    QTRY_COMPARE(page.duplicateFolders()->rowCount(), 5);
    QCOMPARE(Rows(page.duplicateFolders()).value(4, "name").toString(), u"Documents"_s);
    QCOMPARE(f.panel.lastMessage, u"Choose a folder to scan for duplicate files."_s);
    page.addFolder();
    f.settle();
    QCOMPARE(f.panel.asked, 2);
    QCOMPARE(page.duplicateFolders()->rowCount(), 5);
}

void tst_SettingsPage::addsNothingWhenTheChooserIsCancelled()
{
    PageFixture f;
    AppState &state = f.make();
    SettingsPage page(state);
    page.addFolder();
    f.settle();
    QCOMPARE(f.panel.asked, 1);
    QCOMPARE(page.duplicateFolders()->rowCount(), 4);
    page.addFolder(); // and can be asked again
    QCOMPARE(f.panel.asked, 2);
}

void tst_SettingsPage::ignoresAFolderThatIsNotListed()
{
    PageFixture f;
    AppState &state = f.make();
    SettingsPage page(state);
    QSignalSpy changed(&state, &AppState::duplicateFoldersChanged);
    page.removeFolder(u"file:///elsewhere"_s);
    page.removeFolder(u"nonsense"_s);
    QCOMPARE(changed.count(), 0);
}

void tst_SettingsPage::namesTheVersion()
{
    PageFixture f;
    const SettingsPage page(f.make());
    QCOMPARE(page.version(), u"Brisko "_s + AppState::version());
    QVERIFY(page.version().contains(u'.'));
}

void tst_SettingsPage::saysThatItChecksForUpdates()
{
    PageFixture f;
    AppState &state = f.make();
    SettingsPage page(state);
    QCOMPARE(page.updateButton(), u"Check for Updates"_s);
    QSignalSpy checks(&state, &AppState::isCheckingForUpdatesChanged);
    page.checkForUpdates();
    QVERIFY(page.checkingForUpdates());
    QCOMPARE(page.updateButton(), u"Checking for updates…"_s);
    page.checkForUpdates();
    QTRY_VERIFY(!page.checkingForUpdates());
    QCOMPARE(page.updateButton(), u"Check for Updates"_s);
    QCOMPARE(checks.count(), 2);
    QVERIFY(state.toast()); // the check was not silent
}

void tst_SettingsPage::opensTheMakersPages()
{
    PageFixture f;
    const SettingsPage page(f.make(), {.privacyPolicy = QUrl(u"https://example.org/privacy"_s),
                                       .termsOfService = QUrl(u"https://example.org/terms"_s),
                                       .feedback = u"maker@example.org"_s});
    page.openPrivacyPolicy();
    page.openTermsOfService();
    page.writeToMaker();
    QCOMPARE(f.fakes.workspace->opened,
             (QList<QUrl>{QUrl(u"https://example.org/privacy"_s), QUrl(u"https://example.org/terms"_s),
                          QUrl(u"mailto:maker@example.org?subject=Brisko%20Feedback"_s)}));
    QCOMPARE(f.fakes.workspace->opened.last().toEncoded(), "mailto:maker@example.org?subject=Brisko%20Feedback"_ba);
}

void tst_SettingsPage::hasHarmlessAddresses()
{
    const MakersAddresses built = builtInAddresses();
    QCOMPARE(built.privacyPolicy.scheme(), u"https"_s);
    QCOMPARE(built.termsOfService.scheme(), u"https"_s);
    QVERIFY(built.privacyPolicy != built.termsOfService);
    QVERIFY(built.feedback.contains(u'@'));
}

QTEST_GUILESS_MAIN(tst_SettingsPage)
#include "tst_SettingsPage.moc"
