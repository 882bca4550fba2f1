// SPDX-License-Identifier: MIT
#include "Views/JunkPage.h"
#include "Views/PageFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// What the page of the junk cleaner says, allows and asks.
class tst_JunkPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void greetsBeforeTheFirstScan();
    void scansWhenItFirstAppears();
    void doesNotScanOverWhatIsListed();
    void saysThatNothingWasFound();
    void tellsWhatTheScanDoes();
    void stopsAScan();
    void countsOneCategory();
    void countsSeveralCategories();
    void describesACategory();
    void showsTenFilesWithoutALineOfMore();
    void showsALineOfMoreForTheEleventh();
    void keepsCardsOpenOverScans();
    void togglesByIdAndIgnoresStrangers();
    void forgetsTheSelectionWithANewScan();
    void cannotCleanWhileScanning();
    void asksInTheSingular();
    void asksInThePlural();
    void asksForGoodWhenOneIsDeletedDirectly();
    void cleansWhatWasAskedAbout();
    void cancellingKeepsEverything();
    void cannotCleanWhileRemoving();
    void showsTheBannerOnlyWithoutAccess();
    void actsOnListedFilesOnly();
    void followsTheLanguage();
    void notifiesOnlyOfDifferences();
};

namespace {

struct Fixture : PageFixture {
    JunkPage &open()
    {
        make();
        page = std::make_unique<JunkPage>(*state, actions);
        tester = std::make_unique<QAbstractItemModelTester>(page->categories(),
                                                            QAbstractItemModelTester::FailureReportingMode::QtTest);
        return *page;
    }
    ~Fixture() { page.reset(); }
    [[nodiscard]] Rows rows() const { return Rows(page->categories()); }
    void scan()
    {
        page->scan();
        QTRY_VERIFY(!state->junkLoading());
    }
    FileURL cache(const QByteArray &name, qsizetype size = 1'000) const
    {
        return tree.file("home/Library/Caches/" + name, QByteArray(size, 'c'));
    }
    void toggle(const QString &name) { page->toggle(rows().itemId(name)); }

    std::unique_ptr<JunkPage> page;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

} // namespace

void tst_JunkPage::greetsBeforeTheFirstScan()
{
    Fixture f;
    const JunkPage &page = f.open();
    QCOMPARE(page.subtitle(), u"Press Scan to find junk files"_s);
    QCOMPARE(page.emptyTitle(), u"No junk found yet"_s);
    QCOMPARE(page.emptyHint(), u"Press Scan to search for caches, logs, and temporary files"_s);
    QCOMPARE(page.status(), u"Select categories to clean"_s);
    QVERIFY(page.isEmpty() && page.canScan() && !page.canClean() && !page.isLoading());
}

void tst_JunkPage::scansWhenItFirstAppears()
{
    Fixture f;
    f.cache("a");
    JunkPage &page = f.open();
    {
        const StateFixture::Held held(f);
        page.appeared();
        QVERIFY(f.state->junkLoading());
    }
    QTRY_VERIFY(!f.state->junkLoading());
    QCOMPARE(f.rows().count(), 1);
    QSignalSpy loading(f.state.get(), &AppState::junkLoadingChanged);
    page.appeared();
    QCOMPARE(loading.count(), 0);
}

void tst_JunkPage::doesNotScanOverWhatIsListed()
{
    Fixture f;
    f.cache("a");
    JunkPage &page = f.open();
    StateFixture::wait(f.state->scanJunkAsync());
    QSignalSpy loading(f.state.get(), &AppState::junkLoadingChanged);
    page.appeared();
    QCOMPARE(loading.count(), 0);
    QCOMPARE(page.subtitle(), u"1 category · 1 KB reclaimable"_s);
}

void tst_JunkPage::saysThatNothingWasFound()
{
    Fixture f;
    JunkPage &page = f.open();
    f.scan();
    QCOMPARE(page.subtitle(), u"No junk found — your Mac is clean"_s);
    QVERIFY(page.isEmpty());
    QSignalSpy loading(f.state.get(), &AppState::junkLoadingChanged);
    page.appeared();
    QVERIFY2(loading.isEmpty(), "an empty result is no reason to scan at every visit");
}

void tst_JunkPage::tellsWhatTheScanDoes()
{
    Fixture f;
    JunkPage &page = f.open();
    QStringList said;
    connect(&page, &JunkPage::changed, this, [&] {
        if (said.isEmpty() || said.constLast() != page.subtitle())
            said.append(page.subtitle());
    });
    {
        const StateFixture::Held held(f);
        page.scan();
        QCOMPARE(page.subtitle(), u"Scanning…"_s);
        QCOMPARE(page.emptyTitle(), u"Scanning system caches…"_s);
        QCOMPARE(page.emptyHint(), QString());
        QVERIFY(page.isLoading() && !page.canScan());
    }
    QTRY_VERIFY(!page.isLoading());
    QVERIFY(page.canScan());
    QVERIFY2(said.contains(u"Scanning Trash…"_s), qPrintable(said.join(u'|')));
}

void tst_JunkPage::stopsAScan()
{
    Fixture f;
    f.cache("a");
    JunkPage &page = f.open();
    {
        const StateFixture::Held held(f);
        page.scan();
        page.stopScan();
        QVERIFY(!page.isLoading());
    }
    f.settle();
    QVERIFY2(page.isEmpty(), "nothing of a stopped scan is shown");
}

void tst_JunkPage::countsOneCategory()
{
    Fixture f;
    f.cache("a", 1'200);
    const JunkPage &page = f.open();
    f.scan();
    QCOMPARE(page.subtitle(), u"1 category · 1 KB reclaimable"_s);
    QVERIFY(!page.isEmpty());
}

void tst_JunkPage::countsSeveralCategories()
{
    Fixture f;
    f.cache("a", 1'200);
    f.oldDownload("b.zip", 700);
    const JunkPage &page = f.open();
    f.scan();
    QCOMPARE(page.subtitle(), u"2 categories · 2 KB reclaimable"_s);
    f.toggle(u"App Caches"_s);
    QCOMPARE(page.status(), u"1 selected · 1 KB"_s);
    f.toggle(u"Old Downloads"_s);
    QCOMPARE(page.status(), u"2 selected · 2 KB"_s);
    QVERIFY(page.canClean());
    f.toggle(u"App Caches"_s);
    QCOMPARE(page.status(), u"1 selected · 700 bytes"_s);
}

void tst_JunkPage::describesACategory()
{
    Fixture f;
    f.cache("only", 1'000);
    f.oldDownload("a.zip", 1'000);
    f.oldDownload("b.zip", 2'000);
    f.open();
    f.scan();
    const Rows rows = f.rows();
    QCOMPARE(rows.column("name"), (QStringList{u"Old Downloads"_s, u"App Caches"_s}));
    QCOMPARE(rows.column("detail"), (QStringList{u"2 files · 3 KB"_s, u"1 file · 1 KB"_s}));
    QCOMPARE(rows.column("symbol"), (QStringList{u"arrow.down.circle"_s, u"archivebox"_s}));
    QCOMPARE(rows.texts(1, "fileNames"), QStringList{u"only"_s});
    QCOMPARE(rows.texts(1, "fileSizes"), QStringList{u"1 KB"_s});
    QCOMPARE(rows.texts(1, "filePaths"), QStringList{f.home.appending("Library/Caches/only").text()});
    QVERIFY(!rows.flag(0, "selected") && !rows.flag(0, "expanded"));
}

void tst_JunkPage::showsTenFilesWithoutALineOfMore()
{
    Fixture f;
    for (int i = 0; i < 10; ++i)
        f.cache("file" + QByteArray::number(i));
    f.open();
    f.scan();
    QCOMPARE(f.rows().texts(0, "fileNames").size(), 10);
    QCOMPARE(f.rows().texts(0, "fileSizes").size(), 10);
    QCOMPARE(f.rows().texts(0, "filePaths").size(), 10);
    QCOMPARE(f.rows().texts(0, "fileIds").size(), 10);
    QCOMPARE(f.rows().text(0, "more"), QString());
}

void tst_JunkPage::showsALineOfMoreForTheEleventh()
{
    Fixture f;
    for (int i = 0; i < 11; ++i)
        f.cache("file" + QByteArray::number(i));
    f.open();
    f.scan();
    QCOMPARE(f.rows().texts(0, "fileNames").size(), 10);
    QCOMPARE(f.rows().text(0, "more"), u"… and 1 more"_s);
}

void tst_JunkPage::keepsCardsOpenOverScans()
{
    Fixture f;
    f.cache("a");
    f.oldDownload("b.zip", 700);
    JunkPage &page = f.open();
    f.scan();
    page.toggleExpanded(f.rows().itemId(u"App Caches"_s));
    QVERIFY(f.rows().flag(1, "expanded") && !f.rows().flag(0, "expanded"));
    const QPersistentModelIndex card(page.categories()->index(1, 0));
    f.cache("another");
    f.scan();
    QVERIFY2(card.isValid(), "the card stays the same row");
    QVERIFY(f.rows().flag(card.row(), "expanded"));
    QCOMPARE(f.rows().text(card.row(), "detail"), u"2 files · 2 KB"_s);
    page.toggleExpanded(f.rows().itemId(u"App Caches"_s));
    QVERIFY(!f.rows().flag(1, "expanded"));
}

void tst_JunkPage::togglesByIdAndIgnoresStrangers()
{
    Fixture f;
    f.cache("a");
    JunkPage &page = f.open();
    f.scan();
    f.toggle(u"App Caches"_s);
    QVERIFY(f.rows().flag(0, "selected"));
    f.toggle(u"App Caches"_s);
    QVERIFY(!f.rows().flag(0, "selected"));
    page.toggle(QUuid::createUuid().toString());
    page.toggle(u"no id at all"_s);
    page.toggle(QString());
    page.toggleExpanded(u"no id at all"_s);
    QCOMPARE(page.status(), u"Select categories to clean"_s);
    page.clean();
    QVERIFY2(!f.state->confirm(), "nothing is selected, so nothing is asked");
}

void tst_JunkPage::forgetsTheSelectionWithANewScan()
{
    Fixture f;
    f.cache("a");
    const JunkPage &page = f.open();
    f.scan();
    f.toggle(u"App Caches"_s);
    QVERIFY(page.canClean());
    f.scan();
    QCOMPARE(page.status(), u"Select categories to clean"_s);
    QVERIFY(!page.canClean() && !f.rows().flag(0, "selected"));
}

void tst_JunkPage::cannotCleanWhileScanning()
{
    Fixture f;
    f.cache("a");
    JunkPage &page = f.open();
    f.scan();
    f.toggle(u"App Caches"_s);
    {
        const StateFixture::Held held(f);
        page.scan();
        QVERIFY(!page.canClean());
        page.clean();
        QVERIFY(!f.state->confirm());
    }
    QTRY_VERIFY(!page.isLoading());
}

void tst_JunkPage::asksInTheSingular()
{
    Fixture f;
    f.cache("a", 1'200);
    JunkPage &page = f.open();
    f.scan();
    f.toggle(u"App Caches"_s);
    page.clean();
    QVERIFY(f.state->confirm());
    const ConfirmData question = *f.state->confirm();
    QCOMPARE(question.title, u"Clean 1 category?"_s);
    QCOMPARE(question.message, u"This will move 1 file to Trash."_s);
    QCOMPARE(question.rows, (QList<std::pair<QString, QString>>{{u"Total Size"_s, u"1 KB"_s}}));
    QCOMPARE(question.confirmTitle, u"Clean Selected"_s);
}

void tst_JunkPage::asksInThePlural()
{
    Fixture f;
    f.cache("a", 1'000);
    f.cache("b", 1'000);
    f.oldDownload("c.zip", 1'000);
    JunkPage &page = f.open();
    f.scan();
    f.toggle(u"App Caches"_s);
    f.toggle(u"Old Downloads"_s);
    page.clean();
    QCOMPARE(f.state->confirm()->title, u"Clean 2 categories?"_s);
    QCOMPARE(f.state->confirm()->message, u"This will move 3 files to Trash."_s);
    QCOMPARE(f.state->confirm()->rows.first().second, u"3 KB"_s);
}

void tst_JunkPage::asksForGoodWhenOneIsDeletedDirectly()
{
    Fixture f;
    f.cache("a");
    f.tree.file("home/.Trash/b", "12345");
    JunkPage &page = f.open();
    f.scan();
    f.toggle(u"App Caches"_s);
    f.toggle(u"Trash"_s);
    page.clean();
    QCOMPARE(f.state->confirm()->message, u"This will permanently delete 2 files."_s);
    f.toggle(u"App Caches"_s);
    page.clean();
    QCOMPARE(f.state->confirm()->message, u"This will permanently delete 1 file."_s);
}

void tst_JunkPage::cleansWhatWasAskedAbout()
{
    Fixture f;
    const FileURL cache = f.cache("a");
    const FileURL download = f.oldDownload("b.zip", 700);
    const FileURL log = f.tree.file("home/Library/Logs/c.log", "log");
    JunkPage &page = f.open();
    f.scan();
    f.toggle(u"App Caches"_s);
    f.toggle(u"Old Downloads"_s);
    page.clean();
    QVERIFY2(ScratchTree::exists(cache), "nothing goes before the question is answered");
    f.toggle(u"System Logs"_s); // too late for this question
    {
        const StateFixture::Held held(f);
        f.state->acceptConfirm();
        QVERIFY(page.isRemoving());
        QCOMPARE(page.status(), u"Select categories to clean"_s);
    }
    QTRY_VERIFY(!page.isRemoving());
    QVERIFY(!ScratchTree::exists(cache) && !ScratchTree::exists(download));
    QVERIFY(ScratchTree::exists(log));
    QCOMPARE(f.rows().column("name"), QStringList{u"System Logs"_s});
    QCOMPARE(f.state->activities().size(), 2);
    QCOMPARE(f.state->activities().last().title, u"Old Downloads cleaned"_s); // first in the list, so the older record
}

void tst_JunkPage::cancellingKeepsEverything()
{
    Fixture f;
    const FileURL cache = f.cache("a");
    JunkPage &page = f.open();
    f.scan();
    f.toggle(u"App Caches"_s);
    page.clean();
    f.state->cancelConfirm();
    f.settle();
    QVERIFY(ScratchTree::exists(cache));
    QCOMPARE(page.status(), u"1 selected · 1 KB"_s);
}

void tst_JunkPage::cannotCleanWhileRemoving()
{
    Fixture f;
    f.cache("a");
    f.oldDownload("b.zip", 700);
    JunkPage &page = f.open();
    f.scan();
    f.toggle(u"App Caches"_s);
    page.clean();
    {
        const StateFixture::Held held(f);
        f.state->acceptConfirm();
        f.toggle(u"Old Downloads"_s);
        QVERIFY(page.isRemoving() && !page.canClean());
    }
    QTRY_VERIFY(!page.isRemoving());
    QVERIFY(page.canClean());
    QCOMPARE(page.status(), u"1 selected · 700 bytes"_s);
}

void tst_JunkPage::showsTheBannerOnlyWithoutAccess()
{
    Fixture f;
    // A database that is there and cannot be read: a folder in its place.
    const FileURL database = f.tree.folder("home/Library/Application Support/com.apple.TCC/TCC.db");
    JunkPage &page = f.open();
    QVERIFY(!page.needsAccess());
    f.scan();
    QTRY_VERIFY(page.needsAccess());
    QCOMPARE(::rmdir(database.path().constData()), 0);
    f.scan();
    QTRY_VERIFY(!page.needsAccess());
    page.openAccessSettings();
    QCOMPARE(f.fakes.workspace->opened.size(), 1);
    QCOMPARE(f.fakes.workspace->opened.first().scheme(), u"x-apple.systempreferences"_s);
}

void tst_JunkPage::actsOnListedFilesOnly()
{
    Fixture f;
    const FileURL cache = f.cache("a b");
    const FileURL elsewhere = f.tree.file("home/Documents/letter");
    JunkPage &page = f.open();
    f.scan();
    const QString id = f.rows().texts(0, "fileIds").first();
    page.showInFileManager(id);
    page.copyPath(id);
    QCOMPARE(f.fakes.workspace->shown, QList<FileURL>{cache});
    QCOMPARE(f.copied, QStringList{cache.text()});
    page.showInFileManager(ItemId::of(elsewhere));
    page.copyPath(ItemId::of(elsewhere));
    page.copyPath(u"nonsense"_s);
    QCOMPARE(f.fakes.workspace->shown.size(), 1);
    QCOMPARE(f.copied.size(), 1);
}

void tst_JunkPage::followsTheLanguage()
{
    Fixture f;
    f.cache("a");
    JunkPage &page = f.open();
    f.scan();
    const QString english = page.subtitle();
    QSignalSpy touched(page.categories(), &QAbstractItemModel::dataChanged);
    f.state->setLanguage(AppLanguage::de);
    QVERIFY(page.subtitle() != english);
    QVERIFY(!touched.isEmpty());
    f.state->setLanguage(AppLanguage::en);
    QCOMPARE(page.subtitle(), english);
}

void tst_JunkPage::notifiesOnlyOfDifferences()
{
    Fixture f;
    f.cache("a");
    JunkPage &page = f.open();
    f.scan();
    QSignalSpy changed(&page, &JunkPage::changed);
    page.toggle(u"nobody"_s);
    Q_EMIT f.state->scanDetailChanged();
    Q_EMIT f.state->removingChanged();
    QCOMPARE(changed.count(), 0);
    f.toggle(u"App Caches"_s);
    QCOMPARE(changed.count(), 1);
}

QTEST_GUILESS_MAIN(tst_JunkPage)
#include "tst_JunkPage.moc"
