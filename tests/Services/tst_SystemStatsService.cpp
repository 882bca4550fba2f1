// SPDX-License-Identifier: MIT
#include "Fakes/FakePlatform.h"
#include "Services/SystemStatsService.h"

#include <QCoro/QCoroCore>
#include <QTest>
#include <QThread>
#include <QThreadPool>

#include <limits>

using namespace Qt::StringLiterals;

class tst_SystemStatsService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstCallAnswersNothing();
    void loadIsBusyOverTotalOfTheInterval_data();
    void loadIsBusyOverTotalOfTheInterval();
    void aFailedSampleKeepsThePreviousOne();
    void memoryIsActiveWiredAndCompressed();
    void memoryThatCannotBeReadIsNothing();
    void asksForTheDisksSensorFirst();
    void asksForEveryTemperatureSensorNext();
    void takesTheFirstFlashStorageInTheOrderReturned();
    void aMachineWithoutFlashStorageShowsNoTemperature();
    void asksForNoSensorsWhereTheyCannotBeRead();
    void readingsAreBounded_data();
    void readingsAreBounded();
    void theTemperatureIsReadOnThePool();
};

namespace {

Sensor sensor(const QString &product)
{
    return {.product = product, .handle = product};
}

} // namespace

void tst_SystemStatsService::theFirstCallAnswersNothing()
{
    FakeFigures fake;
    fake.ticks = ProcessorTicks{.user = 100, .system = 100, .idle = 0, .nice = 0};
    std::optional<ProcessorTicks> previous;
    QCOMPARE(SystemStatsService::cpuUsage(fake, previous), 0.0);
    QCOMPARE(previous, fake.ticks);
}

void tst_SystemStatsService::loadIsBusyOverTotalOfTheInterval_data()
{
    QTest::addColumn<ProcessorTicks>("before");
    QTest::addColumn<ProcessorTicks>("now");
    QTest::addColumn<double>("load");
    const ProcessorTicks base{.user = 1000, .system = 2000, .idle = 3000, .nice = 4000};
    const auto after = [&base](qint64 user, qint64 system, qint64 idle, qint64 nice) {
        return ProcessorTicks{.user = base.user + static_cast<quint64>(user),
                              .system = base.system + static_cast<quint64>(system),
                              .idle = base.idle + static_cast<quint64>(idle),
                              .nice = base.nice + static_cast<quint64>(nice)};
    };
    QTest::newRow("a quarter") << base << after(10, 10, 75, 5) << 0.25;
    QTest::newRow("all busy") << base << after(1, 1, 0, 1) << 1.0;
    QTest::newRow("all idle") << base << after(0, 0, 100, 0) << 0.0;
    QTest::newRow("no ticks elapsed") << base << base << 0.0;
    QTest::newRow("all counters ran backwards") << base << after(-10, -10, -10, -10) << 0.0;
    QTest::newRow("idle ran backwards") << base << after(50, 0, -10, 0) << 1.0;
    QTest::newRow("idle ran backwards as far") << base << after(50, 0, -50, 0) << 0.0;
    QTest::newRow("busy ran backwards") << base << after(-10, 0, 100, 0) << 0.0;
    constexpr quint64 most = std::numeric_limits<quint64>::max();
    QTest::newRow("counters wrap") << ProcessorTicks{.user = most - 4, .system = 0, .idle = most - 9, .nice = 0}
                                   << ProcessorTicks{.user = 5, .system = 0, .idle = 20, .nice = 0} << 0.25;
}

void tst_SystemStatsService::loadIsBusyOverTotalOfTheInterval()
{
    QFETCH(const ProcessorTicks, before);
    QFETCH(const ProcessorTicks, now);
    FakeFigures fake;
    std::optional<ProcessorTicks> previous = before;
    fake.ticks = now;
    QTEST(SystemStatsService::cpuUsage(fake, previous), "load");
    QCOMPARE(previous, now);
}

void tst_SystemStatsService::aFailedSampleKeepsThePreviousOne()
{
    FakeFigures fake;
    const ProcessorTicks first{.user = 1, .system = 1, .idle = 1, .nice = 1};
    std::optional<ProcessorTicks> previous = first;
    QCOMPARE(SystemStatsService::cpuUsage(fake, previous), 0.0);
    QCOMPARE(previous, first);
}

void tst_SystemStatsService::memoryIsActiveWiredAndCompressed()
{
    FakeFigures fake;
    fake.pages = MemoryPages{.active = 1, .wired = 20, .compressed = 300, .pageSize = 16384};
    fake.physical = 8'000'000'000;
    QCOMPARE(SystemStatsService::memoryUsage(fake),
             (SystemStatsService::Memory{.used = 321 * 16384, .total = 8'000'000'000}));
}

void tst_SystemStatsService::memoryThatCannotBeReadIsNothing()
{
    FakeFigures fake;
    fake.physical = 8'000'000'000;
    QCOMPARE(SystemStatsService::memoryUsage(fake), SystemStatsService::Memory{});
}

void tst_SystemStatsService::asksForTheDisksSensorFirst()
{
    FakeFigures fake;
    QList<SensorMatch> asked;
    fake.findSensors = [&asked](const SensorMatch &match) {
        asked.append(match);
        return QList<Sensor>{sensor(u"NAND CH0 temp"_s)};
    };
    fake.readSensor = [](const Sensor &) { return 41.5; };
    QCOMPARE(SystemStatsService::diskTemperature(fake), std::optional(41.5));
    QCOMPARE(asked, (QList<SensorMatch>{{.product = u"NAND CH0 temp"_s, .usagePage = 0, .usage = 0}}));
}

void tst_SystemStatsService::asksForEveryTemperatureSensorNext()
{
    FakeFigures fake;
    QList<SensorMatch> asked;
    fake.findSensors = [&asked](const SensorMatch &match) {
        asked.append(match);
        return match.product.isEmpty() ? QList<Sensor>{sensor(u"NAND other"_s)} : QList<Sensor>{};
    };
    fake.readSensor = [](const Sensor &) { return 20.0; };
    QCOMPARE(SystemStatsService::diskTemperature(fake), std::optional(20.0));
    QCOMPARE(asked, (QList<SensorMatch>{{.product = u"NAND CH0 temp"_s, .usagePage = 0, .usage = 0},
                                        {.product = {}, .usagePage = 65280, .usage = 5}}));
}

void tst_SystemStatsService::takesTheFirstFlashStorageInTheOrderReturned()
{
    FakeFigures fake;
    QStringList read;
    fake.findSensors = [](const SensorMatch &match) {
        return match.product.isEmpty()
                   ? QList<Sensor>{sensor(u""_s), sensor(u"CPU die"_s), sensor(u"my NAND B"_s), sensor(u"NAND A"_s)}
                   : QList<Sensor>{};
    };
    fake.readSensor = [&read](const Sensor &asked) -> std::optional<double> {
        read.append(asked.product);
        return std::nullopt;
    };
    // Without a reading there is none: no other sensor is tried.
    QCOMPARE(SystemStatsService::diskTemperature(fake), std::nullopt);
    QCOMPARE(read, QStringList{u"my NAND B"_s});
}

void tst_SystemStatsService::aMachineWithoutFlashStorageShowsNoTemperature()
{
    FakeFigures fake;
    fake.readSensor = [](const Sensor &) { return 20.0; };
    QCOMPARE(SystemStatsService::diskTemperature(fake), std::nullopt);
    fake.findSensors = [](const SensorMatch &) { return QList<Sensor>{sensor(u"CPU"_s), sensor(u"nand"_s)}; };
    QCOMPARE(SystemStatsService::diskTemperature(fake), std::nullopt);
}

void tst_SystemStatsService::asksForNoSensorsWhereTheyCannotBeRead()
{
    FakeFigures fake;
    fake.sensorsReadable = false;
    bool isAsked = false;
    fake.findSensors = [&isAsked](const SensorMatch &) {
        isAsked = true;
        return QList<Sensor>{sensor(u"NAND"_s)};
    };
    fake.readSensor = [](const Sensor &) { return 20.0; };
    QCOMPARE(SystemStatsService::diskTemperature(fake), std::nullopt);
    QVERIFY(!isAsked);
}

void tst_SystemStatsService::readingsAreBounded_data()
{
    QTest::addColumn<double>("reading");
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("0") << 0.0 << false;
    QTest::newRow("just above 0") << 0.001 << true;
    QTest::newRow("109.9") << 109.9 << true;
    QTest::newRow("110") << 110.0 << false;
    QTest::newRow("negative") << -1.0 << false;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << false;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << false;
}

void tst_SystemStatsService::readingsAreBounded()
{
    QFETCH(const double, reading);
    QFETCH(const bool, isAccepted);
    FakeFigures fake;
    fake.findSensors = [](const SensorMatch &) { return QList<Sensor>{sensor(u"NAND"_s)}; };
    fake.readSensor = [reading](const Sensor &) { return reading; };
    QCOMPARE(SystemStatsService::diskTemperature(fake), isAccepted ? std::optional(reading) : std::nullopt);
}

void tst_SystemStatsService::theTemperatureIsReadOnThePool()
{
    const ScratchTree tree;
    const FakePlatform fake(tree.folder("home"), tree.folder("trash"));
    QThread *readOn = nullptr;
    fake.figures->findSensors = [](const SensorMatch &) { return QList<Sensor>{sensor(u"NAND"_s)}; };
    fake.figures->readSensor = [&readOn](const Sensor &) {
        readOn = QThread::currentThread();
        return 33.0;
    };
    QThreadPool pool;
    const auto found = QCoro::waitFor(SystemStatsService::diskTemperatureAsync(fake.platform, &pool));
    QCOMPARE(found, std::optional(33.0));
    QVERIFY(readOn != nullptr);
    QVERIFY(readOn != QThread::currentThread());
}

QTEST_GUILESS_MAIN(tst_SystemStatsService)
#include "tst_SystemStatsService.moc"
