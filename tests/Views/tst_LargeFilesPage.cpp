// SPDX-License-Identifier: MIT
#include "Views/LargeFilesPage.h"
#include "Views/PageFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// What the page of the large-file finder says, allows and asks.
class tst_LargeFilesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void greetsBeforeTheFirstScan();
    void scansWhenItFirstAppears();
    void doesNotScanOverWhatIsListed();
    void saysThatNothingIsLargeEnough();
    void tellsWhatTheScanDoes();
    void countsOneFileAndSeveral();
    void describesAFile();
    void leavesAnUnknownDateEmpty();
    void labelsThresholds_data();
    void labelsThresholds();
    void marksTheChosenThreshold();
    void onlyRelabelsBeforeTheFirstScan();
    void scansAgainWithANewThreshold();
    void takesAThresholdThatChangesDuringAScan();
    void ignoresAThresholdThatIsNoPreset();
    void countsTheSelection();
    void ignoresStrangers();
    void keepsTheSelectionThatStillExists();
    void asksInTheSingular();
    void asksInThePlural();
    void removesWhatWasAskedAbout();
    void cannotRemoveWhileRemoving();
    void keepsAFileThatCouldNotGo();
    void managesFolders();
    void addsAPickedFolder();
    void addsNothingWhenCancelled();
    void scansTheFoldersThatAreListed();
    void actsOnListedFilesOnly();
    void copesWithNamesThatAreNoText();
    void followsTheLanguage();
};

namespace {

constexpr qint64 kMegabyte = 1'048'576;

struct Fixture : PageFixture {
    LargeFilesPage &open()
    {
        make();
        page = std::make_unique<LargeFilesPage>(*state, actions);
        tester = std::make_unique<QAbstractItemModelTester>(page->files(),
                                                            QAbstractItemModelTester::FailureReportingMode::QtTest);
        return *page;
    }
    ~Fixture() { page.reset(); }
    [[nodiscard]] Rows rows() const { return Rows(page->files()); }
    [[nodiscard]] Rows thresholds() const { return Rows(page->thresholds()); }
    [[nodiscard]] Rows folders() const { return Rows(page->folders()); }
    void scan()
    {
        page->scan();
        settleScan();
    }
    void settleScan() { QTRY_VERIFY(!state->largeFilesLoading()); }
    FileURL large(const QByteArray &name, qint64 size = 200 * kMegabyte) const
    {
        return tree.sparseFile("home/Movies/" + name, size);
    }
    void toggle(const QString &name) { page->toggle(rows().itemId(name)); }

    std::unique_ptr<LargeFilesPage> page;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

} // namespace

void tst_LargeFilesPage::greetsBeforeTheFirstScan()
{
    Fixture f;
    const LargeFilesPage &page = f.open();
    QCOMPARE(page.subtitle(), u"Set threshold and press Scan"_s);
    QCOMPARE(page.emptyTitle(), u"No large files yet"_s);
    QCOMPARE(page.emptyHint(), u"Press Scan to search your folders for large files"_s);
    QCOMPARE(page.status(), u"Select files to remove"_s);
    QCOMPARE(page.threshold(), u"≥ 100 MB"_s);
    QCOMPARE(page.minSizeBytes(), 104'857'600);
    QVERIFY(page.isEmpty() && page.canScan() && !page.canRemove());
}

void tst_LargeFilesPage::scansWhenItFirstAppears()
{
    Fixture f;
    f.large("exactly", 100 * kMegabyte);
    f.large("less", 100 * kMegabyte - 1);
    LargeFilesPage &page = f.open();
    {
        const StateFixture::Held held(f);
        page.appeared();
        QVERIFY(page.isLoading());
    }
    f.settleScan();
    QCOMPARE(f.rows().column("name"), QStringList{u"exactly"_s});
    QSignalSpy loading(f.state.get(), &AppState::largeFilesLoadingChanged);
    page.appeared();
    QCOMPARE(loading.count(), 0);
}

void tst_LargeFilesPage::doesNotScanOverWhatIsListed()
{
    Fixture f;
    f.large("film");
    LargeFilesPage &page = f.open();
    StateFixture::wait(f.state->scanLargeFilesAsync());
    QSignalSpy loading(f.state.get(), &AppState::largeFilesLoadingChanged);
    page.appeared();
    QCOMPARE(loading.count(), 0);
    QVERIFY(!page.isEmpty());
}

void tst_LargeFilesPage::saysThatNothingIsLargeEnough()
{
    Fixture f;
    const LargeFilesPage &page = f.open();
    f.scan();
    QCOMPARE(page.subtitle(), u"No large files found above threshold"_s);
}

void tst_LargeFilesPage::tellsWhatTheScanDoes()
{
    Fixture f;
    LargeFilesPage &page = f.open();
    {
        const StateFixture::Held held(f);
        page.scan();
        QCOMPARE(page.subtitle(), u"Scanning for large files…"_s);
        QCOMPARE(page.emptyTitle(), u"Scanning for large files…"_s);
        QCOMPARE(page.emptyHint(), QString());
        QVERIFY(page.isLoading() && !page.canScan());
        page.stopScan();
        QVERIFY(!page.isLoading() && page.canScan());
    }
    f.settle();
}

void tst_LargeFilesPage::countsOneFileAndSeveral()
{
    Fixture f;
    f.large("one", 150'000'000);
    const LargeFilesPage &page = f.open();
    f.scan();
    QCOMPARE(page.subtitle(), u"1 file · 150 MB total"_s);
    f.large("two", 250'000'000);
    f.scan();
    QCOMPARE(page.subtitle(), u"2 files · 400 MB total"_s);
}

void tst_LargeFilesPage::describesAFile()
{
    Fixture f;
    const FileURL film = f.large("A film.mov", 150'000'000);
    ScratchTree::setModified(film, QDateTime({2024, 3, 5}, {12, 0}, Qt::UTC));
    f.open();
    f.scan();
    const Rows rows = f.rows();
    QCOMPARE(rows.count(), 1);
    QCOMPARE(rows.text(0, "name"), u"A film.mov"_s);
    QCOMPARE(rows.text(0, "folder"), f.home.child("Movies").text());
    QCOMPARE(rows.text(0, "path"), film.text());
    QCOMPARE(rows.text(0, "sizeText"), u"150 MB"_s);
    QCOMPARE(rows.text(0, "dateText"), u"Mar 5, 2024"_s);
    QVERIFY(!rows.flag(0, "selected"));
}

void tst_LargeFilesPage::leavesAnUnknownDateEmpty()
{
    const SelectionSet<FileURL> selection;
    LargeFilesModel model(selection);
    model.setRecords({LargeFile{.url = FileURL::fromCleanPath("/a/b"), .size = 5, .modified = {}}});
    QCOMPARE(Rows(&model).text(0, "dateText"), QString());
    QCOMPARE(Rows(&model).text(0, "folder"), u"/a"_s);
}

void tst_LargeFilesPage::labelsThresholds_data()
{
    QTest::addColumn<int>("megabytes");
    QTest::addColumn<QString>("label");
    QTest::addColumn<qint64>("bytes");
    QTest::newRow("10") << 10 << u"10 MB"_s << qint64(10'485'760);
    QTest::newRow("50") << 50 << u"50 MB"_s << qint64(52'428'800);
    QTest::newRow("100") << 100 << u"100 MB"_s << qint64(104'857'600);
    QTest::newRow("200") << 200 << u"200 MB"_s << qint64(209'715'200);
    QTest::newRow("500") << 500 << u"500 MB"_s << qint64(524'288'000);
    QTest::newRow("1024") << 1024 << u"1 GB"_s << qint64(1'073'741'824);
}

void tst_LargeFilesPage::labelsThresholds()
{
    QFETCH(const int, megabytes);
    QFETCH(const QString, label);
    QFETCH(const qint64, bytes);
    Fixture f;
    f.large("exactly", bytes);
    f.large("less", bytes - 1);
    LargeFilesPage &page = f.open();
    page.applyThreshold(megabytes);
    QCOMPARE(page.threshold(), u"≥ "_s + label);
    QCOMPARE(page.minSizeBytes(), bytes);
    f.scan();
    QCOMPARE(f.rows().column("name"), QStringList{u"exactly"_s});
}

void tst_LargeFilesPage::marksTheChosenThreshold()
{
    Fixture f;
    LargeFilesPage &page = f.open();
    QCOMPARE(f.thresholds().column("label"),
             (QStringList{u"10 MB"_s, u"50 MB"_s, u"100 MB"_s, u"200 MB"_s, u"500 MB"_s, u"1 GB"_s}));
    QCOMPARE(f.thresholds().column("chosen"),
             (QStringList{u"false"_s, u"false"_s, u"true"_s, u"false"_s, u"false"_s, u"false"_s}));
    page.applyThreshold(f.thresholds().value(5, "megabytes").toInt());
    QCOMPARE(f.thresholds().column("chosen"),
             (QStringList{u"false"_s, u"false"_s, u"false"_s, u"false"_s, u"false"_s, u"true"_s}));
}

void tst_LargeFilesPage::onlyRelabelsBeforeTheFirstScan()
{
    Fixture f;
    LargeFilesPage &page = f.open();
    QSignalSpy loading(f.state.get(), &AppState::largeFilesLoadingChanged);
    page.applyThreshold(500);
    QCOMPARE(page.threshold(), u"≥ 500 MB"_s);
    QCOMPARE(page.subtitle(), u"Set threshold and press Scan"_s);
    QCOMPARE(loading.count(), 0);
}

void tst_LargeFilesPage::scansAgainWithANewThreshold()
{
    Fixture f;
    f.large("small", 20 * kMegabyte);
    f.large("big", 300 * kMegabyte);
    LargeFilesPage &page = f.open();
    f.scan();
    QCOMPARE(f.rows().count(), 1);
    page.applyThreshold(10);
    f.settleScan();
    QCOMPARE(f.rows().column("name"), (QStringList{u"big"_s, u"small"_s}));
    page.applyThreshold(500);
    f.settleScan();
    QCOMPARE(f.rows().count(), 0);
}

void tst_LargeFilesPage::takesAThresholdThatChangesDuringAScan()
{
    Fixture f;
    f.large("small", 20 * kMegabyte);
    LargeFilesPage &page = f.open();
    {
        const StateFixture::Held held(f);
        page.scan();
        page.applyThreshold(10);
    }
    f.settleScan();
    QCOMPARE(f.rows().column("name"), QStringList{u"small"_s});
}

void tst_LargeFilesPage::ignoresAThresholdThatIsNoPreset()
{
    Fixture f;
    LargeFilesPage &page = f.open();
    for (const int megabytes : {0, -10, 99, 2048}) {
        page.applyThreshold(megabytes);
        QCOMPARE(page.minSizeBytes(), 104'857'600);
    }
}

void tst_LargeFilesPage::countsTheSelection()
{
    Fixture f;
    f.large("a", 150'000'000);
    f.large("b", 250'000'000);
    const LargeFilesPage &page = f.open();
    f.scan();
    f.toggle(u"a"_s);
    QCOMPARE(page.status(), u"1 file selected · 150 MB"_s);
    f.toggle(u"b"_s);
    QCOMPARE(page.status(), u"2 files selected · 400 MB"_s);
    QVERIFY(page.canRemove() && f.rows().flag(0, "selected") && f.rows().flag(1, "selected"));
    f.toggle(u"a"_s);
    f.toggle(u"b"_s);
    QCOMPARE(page.status(), u"Select files to remove"_s);
    QVERIFY(!page.canRemove());
}

void tst_LargeFilesPage::ignoresStrangers()
{
    Fixture f;
    f.large("a");
    LargeFilesPage &page = f.open();
    f.scan();
    page.toggle(u"file:///etc/passwd"_s);
    page.toggle(u"nonsense"_s);
    page.toggle(QString());
    QVERIFY(!page.canRemove());
    page.remove();
    QVERIFY(!f.state->confirm());
}

void tst_LargeFilesPage::keepsTheSelectionThatStillExists()
{
    Fixture f;
    f.large("stays", 150'000'000);
    const FileURL goes = f.large("goes", 250'000'000);
    const LargeFilesPage &page = f.open();
    f.scan();
    f.toggle(u"stays"_s);
    f.toggle(u"goes"_s);
    QCOMPARE(::unlink(goes.path().constData()), 0);
    f.scan();
    QCOMPARE(page.status(), u"1 file selected · 150 MB"_s);
    f.large("goes", 250'000'000);
    f.scan();
    QVERIFY2(!f.rows().flag(f.rows().find("name", u"goes"_s), "selected"), "what is new was never ticked");
    QVERIFY(f.rows().flag(f.rows().find("name", u"stays"_s), "selected"));
}

void tst_LargeFilesPage::asksInTheSingular()
{
    Fixture f;
    f.large("a", 150'000'000);
    LargeFilesPage &page = f.open();
    f.scan();
    f.toggle(u"a"_s);
    page.remove();
    QVERIFY(f.state->confirm());
    QCOMPARE(f.state->confirm()->title, u"Remove 1 large file?"_s);
    QCOMPARE(f.state->confirm()->message, u"The selected files will be moved to Trash."_s);
    QCOMPARE(f.state->confirm()->rows, (QList<std::pair<QString, QString>>{{u"Total Size"_s, u"150 MB"_s}}));
    QCOMPARE(f.state->confirm()->confirmTitle, u"Move to Trash"_s);
}

void tst_LargeFilesPage::asksInThePlural()
{
    Fixture f;
    f.large("a", 150'000'000);
    f.large("b", 250'000'000);
    LargeFilesPage &page = f.open();
    f.scan();
    f.toggle(u"a"_s);
    f.toggle(u"b"_s);
    page.remove();
    QCOMPARE(f.state->confirm()->title, u"Remove 2 large files?"_s);
    QCOMPARE(f.state->confirm()->rows.first().second, u"400 MB"_s);
}

void tst_LargeFilesPage::removesWhatWasAskedAbout()
{
    Fixture f;
    const FileURL asked = f.large("asked");
    const FileURL later = f.large("later");
    LargeFilesPage &page = f.open();
    f.scan();
    f.toggle(u"asked"_s);
    page.remove();
    QVERIFY(ScratchTree::exists(asked));
    f.toggle(u"later"_s);
    f.state->acceptConfirm();
    QCOMPARE(page.status(), u"Select files to remove"_s);
    QTRY_VERIFY(!page.isRemoving());
    QVERIFY(!ScratchTree::exists(asked) && ScratchTree::exists(later));
    QCOMPARE(f.rows().column("name"), QStringList{u"later"_s});
}

void tst_LargeFilesPage::cannotRemoveWhileRemoving()
{
    Fixture f;
    f.large("a");
    f.large("b");
    LargeFilesPage &page = f.open();
    f.scan();
    f.toggle(u"a"_s);
    page.remove();
    {
        const StateFixture::Held held(f);
        f.state->acceptConfirm();
        f.toggle(u"b"_s);
        QVERIFY(page.isRemoving() && !page.canRemove());
        page.remove();
        QVERIFY(!f.state->confirm());
    }
    QTRY_VERIFY(!page.isRemoving());
    QVERIFY2(page.canRemove(), "what was ticked meanwhile stays ticked");
}

void tst_LargeFilesPage::keepsAFileThatCouldNotGo()
{
    Fixture f;
    const FileURL held = f.large("held");
    f.large("free");
    f.fakes.trashCan->refuse(held);
    LargeFilesPage &page = f.open();
    f.scan();
    f.toggle(u"held"_s);
    f.toggle(u"free"_s);
    page.remove();
    f.state->acceptConfirm();
    QTRY_VERIFY(!page.isRemoving());
    QCOMPARE(f.rows().column("name"), QStringList{u"held"_s});
    QVERIFY(f.state->alert());
}

void tst_LargeFilesPage::managesFolders()
{
    Fixture f;
    LargeFilesPage &page = f.open();
    QCOMPARE(f.folders().column("path"), QStringList{f.home.text()});
    QVERIFY(page.hasFolders());
    f.state->addLargeFileFolder(f.tree.folder("other disk"));
    QCOMPARE(f.folders().column("name"), (QStringList{u"home"_s, u"other disk"_s}));
    page.removeFolder(f.folders().itemId(u"home"_s));
    QCOMPARE(f.folders().column("name"), QStringList{u"other disk"_s});
    page.removeFolder(u"nonsense"_s);
    QCOMPARE(f.folders().count(), 1);
    page.removeFolder(f.folders().itemId(u"other disk"_s));
    QVERIFY(!page.hasFolders());
    QVERIFY(f.state->largeFileFolders().isEmpty());
}

void tst_LargeFilesPage::addsAPickedFolder()
{
    Fixture f;
    f.panel.answer = f.tree.folder("films");
    LargeFilesPage &page = f.open();
    page.addFolder();
    QTRY_COMPARE(f.folders().column("name"), (QStringList{u"home"_s, u"films"_s}));
    QCOMPARE(f.panel.lastMessage, u"Choose a folder to scan for large files."_s);
}

void tst_LargeFilesPage::addsNothingWhenCancelled()
{
    Fixture f;
    LargeFilesPage &page = f.open();
    page.addFolder();
    f.settle();
    QCOMPARE(f.panel.asked, 1);
    QCOMPARE(f.folders().count(), 1);
}

void tst_LargeFilesPage::scansTheFoldersThatAreListed()
{
    Fixture f;
    f.large("at home");
    f.tree.sparseFile("films/elsewhere", 200 * kMegabyte);
    LargeFilesPage &page = f.open();
    f.state->addLargeFileFolder(f.tree.at("films"));
    page.removeFolder(f.folders().itemId(u"home"_s));
    f.scan();
    QCOMPARE(f.rows().column("name"), QStringList{u"elsewhere"_s});
}

void tst_LargeFilesPage::actsOnListedFilesOnly()
{
    Fixture f;
    const FileURL film = f.large("film");
    LargeFilesPage &page = f.open();
    f.scan();
    page.showInFileManager(f.rows().itemId(u"film"_s));
    page.copyPath(f.rows().itemId(u"film"_s));
    page.showInFileManager(u"file:///etc/passwd"_s);
    page.copyPath(u"file:///etc/passwd"_s);
    QCOMPARE(f.fakes.workspace->shown, QList<FileURL>{film});
    QCOMPARE(f.copied, QStringList{film.text()});
}

void tst_LargeFilesPage::copesWithNamesThatAreNoText()
{
    Fixture f;
    const FileURL odd = f.large("odd \xff 100%\n.bin");
    LargeFilesPage &page = f.open();
    f.scan();
    page.toggle(f.rows().text(0, "itemId"));
    QVERIFY(f.rows().flag(0, "selected"));
    page.remove();
    f.state->acceptConfirm();
    QTRY_VERIFY(!page.isRemoving());
    QVERIFY(!ScratchTree::exists(odd));
}

void tst_LargeFilesPage::followsTheLanguage()
{
    Fixture f;
    f.large("film", 1'500'000'000);
    LargeFilesPage &page = f.open();
    f.scan();
    QCOMPARE(f.rows().text(0, "sizeText"), u"1.5 GB"_s);
    QSignalSpy touched(page.files(), &QAbstractItemModel::dataChanged);
    f.state->setLanguage(AppLanguage::de);
    QCOMPARE(f.rows().text(0, "sizeText"), u"1,5 GB"_s);
    QVERIFY(page.subtitle().contains(u"1,5 GB"_s));
    QVERIFY(!touched.isEmpty());
    f.state->setLanguage(AppLanguage::en);
}

QTEST_GUILESS_MAIN(tst_LargeFilesPage)
#include "tst_LargeFilesPage.moc"
