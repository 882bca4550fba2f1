// SPDX-License-Identifier: MIT
#include "State/StateFixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The statistics loop and its schedule, and the update check.
class tst_AppStateStats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheTemperatureEveryFifthTick();
    void keepsTheScheduleWhenTheLoopIsStartedAgain();
    void keepsMemoryFiguresWhenASampleFails();
    void clearsTheTemperatureWhenTheSensorIsGone();
    void loopsAtItsInterval();
    void saysWhenTheUpdateServerCannotBeReached();
    void staysQuietAboutItWhenSilent();
    void checksOnceAtATime();
};

namespace {

void giveASensor(const StateFixture &f, std::atomic<int> &reads)
{
    f.fakes.figures->findSensors = [](const SensorMatch &) {
        return QList<Sensor>{{.product = u"NAND CH0 temp"_s, .handle = u"0"_s}};
    };
    f.fakes.figures->readSensor = [&reads](const Sensor &) {
        ++reads;
        return std::optional{41.5};
    };
}

} // namespace

void tst_AppStateStats::readsTheTemperatureEveryFifthTick()
{
    StateFixture f;
    std::atomic<int> reads = 0;
    giveASensor(f, reads);
    AppState &state = f.make();
    QList<int> readAt;
    for (int tick = 0; tick <= 10; ++tick) {
        const int before = reads;
        state.refreshSystemStats();
        f.settle();
        if (reads > before)
            readAt.append(tick);
    }
    QCOMPARE(readAt, (QList<int>{0, 5, 10}));
    QCOMPARE(state.diskTemperature(), std::optional{41.5});
}

void tst_AppStateStats::keepsTheScheduleWhenTheLoopIsStartedAgain()
{
    StateFixture f;
    std::atomic<int> reads = 0;
    giveASensor(f, reads);
    AppState &state = f.make();
    state.startStatsMonitoring();
    state.startStatsMonitoring();
    f.settle();
    QCOMPARE(state.statsTick(), 2);
    QCOMPARE(reads.load(), 1);
}

void tst_AppStateStats::keepsMemoryFiguresWhenASampleFails()
{
    StateFixture f;
    f.fakes.figures->pages = MemoryPages{.active = 2, .wired = 3, .compressed = 5, .pageSize = 4'096};
    AppState &state = f.make();
    state.refreshSystemStats();
    QCOMPARE(state.memoryUsed(), 40'960);
    QCOMPARE(state.memoryTotal(), 16'000'000'000);
    QCOMPARE(state.memoryUsageRatio(), 40'960 / 16e9);
    f.fakes.figures->pages.reset();
    state.refreshSystemStats();
    QCOMPARE(state.memoryUsed(), 40'960);
}

void tst_AppStateStats::clearsTheTemperatureWhenTheSensorIsGone()
{
    StateFixture f;
    std::atomic<int> reads = 0;
    giveASensor(f, reads);
    AppState &state = f.make();
    state.refreshSystemStats();
    f.settle();
    QVERIFY(state.diskTemperature());
    f.fakes.figures->findSensors = [](const SensorMatch &) { return QList<Sensor>{}; };
    for (int i = 0; i < 5; ++i)
        state.refreshSystemStats();
    f.settle();
    QVERIFY(!state.diskTemperature());
}

void tst_AppStateStats::loopsAtItsInterval()
{
    StateFixture f;
    f.statsInterval = 5ms;
    f.fakes.figures->ticks = ProcessorTicks{.user = 10, .system = 10, .idle = 80, .nice = 0};
    AppState &state = f.make();
    state.startStatsMonitoring();
    QCOMPARE(state.cpuUsage(), 0);
    f.fakes.figures->ticks = ProcessorTicks{.user = 30, .system = 15, .idle = 155, .nice = 0};
    QSignalSpy load(&state, &AppState::cpuUsageChanged);
    QTRY_VERIFY(state.statsTick() >= 3);
    QVERIFY(load.count() >= 1);
    QCOMPARE(state.cpuUsage(), 0); // no ticks passed since
}

void tst_AppStateStats::saysWhenTheUpdateServerCannotBeReached()
{
    StateFixture f;
    AppState &state = f.make();
    QSignalSpy checking(&state, &AppState::isCheckingForUpdatesChanged);
    QCOMPARE(StateFixture::wait(state.checkForUpdates(false)), UpdateOutcome::unreachable);
    QCOMPARE(state.toast(), (ToastData{.symbol = u"wifi.exclamationmark"_s,
                                       .tintHex = 0xF59E0B,
                                       .message = u"Can't reach the update server. Check your network and try again."_s}));
    QCOMPARE(checking.count(), 2);
    QVERIFY(!state.updateInfo());
}

void tst_AppStateStats::staysQuietAboutItWhenSilent()
{
    StateFixture f;
    AppState &state = f.make();
    QCOMPARE(StateFixture::wait(state.checkForUpdates(true)), UpdateOutcome::unreachable);
    QVERIFY(!state.toast());
}

void tst_AppStateStats::checksOnceAtATime()
{
    StateFixture f;
    AppState &state = f.make();
    QCoro::Task<UpdateOutcome> first = state.checkForUpdates(false);
    QVERIFY(state.isCheckingForUpdates());
    QCOMPARE(StateFixture::wait(state.checkForUpdates(false)), UpdateOutcome::alreadyChecking);
    QCOMPARE(QCoro::waitFor(first), UpdateOutcome::unreachable);
    QVERIFY(!state.isCheckingForUpdates());
}

QTEST_GUILESS_MAIN(tst_AppStateStats)
#include "tst_AppStateStats.moc"
