// SPDX-License-Identifier: MIT
#include "Views/OverviewPage.h"

#include "Theme/Format.h"
#include "Views/PageFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

class tst_OverviewPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesPercents_data();
    void writesPercents();
    void writesDegrees();
    void saysThatThereIsNoReading();
    void showsAReadingAndItsRing();
    void capsTheTemperatureRing();
    void showsZeroAndAnEmptyRingForNothing();
    void showsTheProcessorAndTheMemory();
    void keepsStillWhileTheFiguresLookTheSame();
    void addsUpWhatCanBeFreed();
    void followsEachScan();
    void saysWhatIsScannedOnlyWhileSomethingIs();
    void leadsToEachPage();
    void listsThePagesInTheirOrder();
    void translatesThePages();
    void ignoresAPageThatIsNone();
};

void tst_OverviewPage::writesPercents_data()
{
    QTest::addColumn<double>("fraction");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << 0.0 << u"0%"_s;
    QTest::newRow("rounds down") << 0.384 << u"38%"_s;
    QTest::newRow("rounds up") << 0.385001 << u"39%"_s;
    QTest::newRow("all") << 1.0 << u"100%"_s;
    QTest::newRow("more than all") << 1.2 << u"120%"_s;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << u"--"_s;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << u"--"_s;
    QTest::newRow("too large") << 1e30 << u"--"_s;
    QTest::newRow("just too large") << 92'233'720'368'547'758.08 << u"--"_s;
    QTest::newRow("far below zero") << -1e30 << u"--"_s;
}

void tst_OverviewPage::writesPercents()
{
    QFETCH(double, fraction);
    const StateFixture f; // sets the language
    QTEST(Figures::percent(fraction), "text");
}

void tst_OverviewPage::writesDegrees()
{
    QCOMPARE(Figures::degrees(std::nullopt), u"--"_s);
    QCOMPARE(Figures::degrees(41.4), u"41°"_s);
    QCOMPARE(Figures::degrees(41.6), u"42°"_s);
    QCOMPARE(Figures::degrees(std::nan("")), u"--"_s);
}

namespace {

/// Has the state read this temperature of the disk.
void read(PageFixture &f, AppState &state, double celsius)
{
    f.fakes.figures->findSensors = [](const SensorMatch &) {
        return QList<Sensor>{{.product = u"NAND CH0 temp"_s, .handle = u"0"_s}};
    };
    f.fakes.figures->readSensor = [celsius](const Sensor &) { return std::optional(celsius); };
    state.refreshSystemStats();
    QTRY_VERIFY(state.diskTemperature());
}

} // namespace

void tst_OverviewPage::saysThatThereIsNoReading()
{
    PageFixture f;
    const Figures figures(f.make());
    QCOMPARE(figures.temperature(), u"--"_s);
    QCOMPARE(figures.temperatureDetail(), u"Unavailable"_s);
    QVERIFY(!figures.hasTemperature());
    QCOMPARE(figures.temperatureProgress(), 0.0);
}

void tst_OverviewPage::showsAReadingAndItsRing()
{
    PageFixture f;
    AppState &state = f.make();
    const Figures figures(state);
    read(f, state, 41.2);
    QCOMPARE(figures.temperature(), u"41°"_s);
    QCOMPARE(figures.temperatureDetail(), u"NAND flash"_s);
    QVERIFY(figures.hasTemperature());
    QCOMPARE(figures.temperatureProgress(), 0.41);
}

void tst_OverviewPage::capsTheTemperatureRing()
{
    PageFixture f;
    AppState &state = f.make();
    const Figures figures(state);
    read(f, state, 107);
    QCOMPARE(figures.temperature(), u"107°"_s);
    QCOMPARE(figures.temperatureProgress(), 1.0);
}

void tst_OverviewPage::showsZeroAndAnEmptyRingForNothing()
{
    PageFixture f;
    const Figures figures(f.make());
    QCOMPARE(figures.freeable(), u"Zero KB"_s);
    QCOMPARE(figures.freeableProgress(), 0.0);
    for (const QString &size : {figures.unusedApps(), figures.duplicates(), figures.largeFiles(), figures.junk()})
        QCOMPARE(size, u"Zero KB"_s);
}

void tst_OverviewPage::showsTheProcessorAndTheMemory()
{
    PageFixture f;
    AppState &state = f.make();
    const Figures figures(state);
    f.fakes.figures->ticks = ProcessorTicks{.user = 100, .idle = 100};
    state.refreshSystemStats();
    f.fakes.figures->ticks = ProcessorTicks{.user = 138, .idle = 162};
    f.fakes.figures->pages =
        MemoryPages{.active = 1'000'000, .wired = 500'000, .compressed = 500'000, .pageSize = 4'000};
    state.refreshSystemStats();
    QCOMPARE(figures.cpu(), u"38%"_s);
    QCOMPARE(figures.cpuProgress(), 0.38);
    QCOMPARE(figures.memory(), u"50%"_s);
    QCOMPARE(figures.memoryDetail(), u"8 GB / 16 GB"_s);
    QCOMPARE(figures.memoryProgress(), 0.5);
}

void tst_OverviewPage::keepsStillWhileTheFiguresLookTheSame()
{
    PageFixture f;
    AppState &state = f.make();
    const Figures figures(state);
    f.fakes.figures->ticks = ProcessorTicks{.user = 0, .idle = 10'000};
    state.refreshSystemStats();
    f.fakes.figures->ticks = ProcessorTicks{.user = 3'801, .idle = 16'199};
    state.refreshSystemStats();
    QCOMPARE(figures.cpu(), u"38%"_s);
    QSignalSpy sampled(&state, &AppState::cpuUsageChanged);
    QSignalSpy changed(&figures, &Figures::changed);
    f.fakes.figures->ticks = ProcessorTicks{.user = 7'611, .idle = 22'389};
    state.refreshSystemStats();
    QCOMPARE(sampled.count(), 1); // another sample, which reads the same
    QCOMPARE(changed.count(), 0);
}

void tst_OverviewPage::addsUpWhatCanBeFreed()
{
    PageFixture f;
    f.oldDownload("old.bin", 7'000);
    const FileURL unused = f.app("Idle");
    ScratchTree::setModified(unused, f.now.addDays(-40));
    f.tree.file("home/Pictures/a.bin", QByteArray(8'000, 'd'));
    f.tree.file("home/Pictures/b.bin", QByteArray(8'000, 'd'));
    AppState &state = f.make();
    const Figures figures(state);
    StateFixture::wait(state.scanJunkAsync());
    StateFixture::wait(state.scanDuplicates({f.home.child("Pictures")}));
    StateFixture::wait(state.scanApps());
    QTRY_VERIFY(!state.appDetailsLoading());
    QCOMPARE(figures.duplicates(), u"8 KB"_s);
    QVERIFY(state.junkReclaimable() >= 7'000);
    QVERIFY(state.unusedAppsSize() >= 5'000);
    const qint64 sum = state.unusedAppsSize() + state.duplicateReclaimable() + state.junkReclaimable();
    QCOMPARE(figures.freeable(), Format::bytes(sum));
    QCOMPARE(figures.junk(), Format::bytes(state.junkReclaimable()));
    QCOMPARE(figures.unusedApps(), Format::bytes(state.unusedAppsSize()));
    QCOMPARE(figures.freeableProgress(), state.freeableProgress());
}

void tst_OverviewPage::followsEachScan()
{
    PageFixture f;
    AppState &state = f.make();
    Figures figures(state);
    const OverviewPage page(state, figures);
    QVERIFY(!page.appsLoading() && !page.duplicatesLoading() && !page.largeFilesLoading() && !page.junkLoading());
    {
        const StateFixture::Held held(f);
        state.scanJunk();
        QVERIFY(page.loading() && page.junkLoading() && !page.appsLoading() && !page.scanning());
        state.scanLargeFiles(QList<FileURL>{f.home}, 1'000);
        QVERIFY(page.largeFilesLoading());
        state.rescanDuplicates();
        QVERIFY(page.duplicatesLoading());
        state.rescanAll();
        QVERIFY(page.scanning());
    }
    QTRY_VERIFY(!page.scanning() && !page.junkLoading() && !page.largeFilesLoading() && !page.duplicatesLoading());
}

void tst_OverviewPage::saysWhatIsScannedOnlyWhileSomethingIs()
{
    PageFixture f;
    AppState &state = f.make();
    Figures figures(state);
    OverviewPage page(state, figures);
    {
        const StateFixture::Held held(f);
        state.rescanAll();
        QCOMPARE(page.scanDetail(), u"Scanning applications…"_s);
        page.stopScan();
        QVERIFY(!page.scanning() && !page.loading());
        QCOMPARE(page.scanDetail(), QString());
    }
}

void tst_OverviewPage::leadsToEachPage()
{
    PageFixture f;
    AppState &state = f.make();
    Figures figures(state);
    OverviewPage page(state, figures);
    page.open(Navigation::Uninstaller);
    QCOMPARE(state.selection(), Page::uninstaller);
    page.open(Navigation::Duplicates);
    QCOMPARE(state.selection(), Page::duplicates);
    page.open(Navigation::LargeFiles);
    QCOMPARE(state.selection(), Page::largeFiles);
    page.open(Navigation::Junk);
    QCOMPARE(state.selection(), Page::junk);
}

void tst_OverviewPage::listsThePagesInTheirOrder()
{
    PageFixture f;
    AppState &state = f.make();
    Navigation navigation(state);
    const QAbstractItemModelTester tester(navigation.pages(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(Rows(navigation.pages()).column("title"),
             (QStringList{u"Overview"_s, u"Uninstaller"_s, u"Duplicates"_s, u"Large Files"_s, u"Junk Cleaner"_s,
                          u"Startup"_s, u"Settings"_s}));
    QCOMPARE(Rows(navigation.pages()).column("symbol"),
             (QStringList{u"house"_s, u"trash"_s, u"square.stack.3d.up"_s, u"doc.text.magnifyingglass"_s, u"sparkles"_s,
                          u"power"_s, u"gearshape"_s}));
    QCOMPARE(navigation.current(), Navigation::Overview);
    for (int row = 0; row < navigation.pages()->rowCount(); ++row) {
        const int page = Rows(navigation.pages()).value(row, "page").toInt();
        navigation.select(static_cast<Navigation::Target>(page));
        QCOMPARE(navigation.current(), page);
        QCOMPARE(navigation.currentTitle(), Rows(navigation.pages()).value(row, "title").toString());
    }
    QCOMPARE(state.selection(), Page::settings);
}

void tst_OverviewPage::translatesThePages()
{
    PageFixture f;
    AppState &state = f.make();
    Navigation navigation(state);
    const QAbstractItemModelTester tester(navigation.pages(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    navigation.select(Navigation::Duplicates);
    state.setLanguage(AppLanguage::de);
    QCOMPARE(navigation.language(), u"de"_s);
    QCOMPARE(navigation.currentTitle(), u"Duplikate"_s);
    QCOMPARE(navigation.current(), Navigation::Duplicates);
    state.setLanguage(AppLanguage::en);
    QCOMPARE(navigation.currentTitle(), u"Duplicates"_s);
}

void tst_OverviewPage::ignoresAPageThatIsNone()
{
    PageFixture f;
    AppState &state = f.make();
    Navigation navigation(state);
    navigation.select(static_cast<Navigation::Target>(7));
    QCOMPARE(state.selection(), Page::overview);
}

QTEST_GUILESS_MAIN(tst_OverviewPage)
#include "tst_OverviewPage.moc"
