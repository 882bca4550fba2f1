// SPDX-License-Identifier: MIT
#include "Services/UpdateService.h"
#include "State/StateFixture.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
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
    void offersANewerVersion();
    void saysWhenThereIsNoNewerVersion();
    void keepsASkippedVersionHidden();
    void handsTheDownloadToTheDesktop();
};

namespace {

/// A true server on the loopback that answers every request with one body.
class FeedServer : public QTcpServer
{
public:
    explicit FeedServer(const QString &version)
    {
        const QByteArray body = QStringLiteral(R"({"latestVersion":"%1","downloadURL":"https://example.org/b.dmg",)"
                                               R"("releaseNotes":{"en":"New"},"criticalUpdate":false})")
                                    .arg(version)
                                    .toUtf8();
        m_answer = "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + QByteArray::number(body.size()) +
                   "\r\n\r\n" + body;
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                m_asked += socket->readAll();
                if (!m_asked.endsWith("\r\n\r\n"))
                    return;
                socket->write(m_answer);
                socket->disconnectFromHost();
            });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        });
        listen(QHostAddress::LocalHost);
    }
    [[nodiscard]] std::function<std::expected<QUrl, QString>()> address() const
    {
        const QUrl url(QStringLiteral("http://127.0.0.1:%1/appcast.json").arg(serverPort()));
        return [url] { return std::expected<QUrl, QString>(url); };
    }

private:
    QByteArray m_answer;
    QByteArray m_asked; // what came of the request so far
};

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
    QCOMPARE(state.toast(),
             (ToastData{.symbol = u"wifi.exclamationmark"_s,
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

void tst_AppStateStats::offersANewerVersion()
{
    StateFixture f;
    const FeedServer server(u"99.0.10"_s);
    f.appcastURL = server.address();
    AppState &state = f.make();
    QCOMPARE(StateFixture::wait(state.checkForUpdates(true)), UpdateOutcome::available);
    QCOMPARE(state.updateInfo()->latestVersion, u"99.0.10"_s);
    QVERIFY(!state.toast());
}

void tst_AppStateStats::saysWhenThereIsNoNewerVersion()
{
    StateFixture f;
    const FeedServer server(UpdateService::currentVersion());
    f.appcastURL = server.address();
    AppState &state = f.make();
    QCOMPARE(StateFixture::wait(state.checkForUpdates(true)), UpdateOutcome::upToDate);
    QVERIFY2(!state.toast(), "a silent check says nothing");
    QCOMPARE(StateFixture::wait(state.checkForUpdates(false)), UpdateOutcome::upToDate);
    QCOMPARE(state.toast(),
             (ToastData{.symbol = u"checkmark.seal.fill"_s, .tintHex = 0x22C55E, .message = u"You're up to date!"_s}));
}

void tst_AppStateStats::keepsASkippedVersionHidden()
{
    StateFixture f;
    const FeedServer server(u"99.1"_s);
    f.appcastURL = server.address();
    AppState &state = f.make();
    StateFixture::wait(state.checkForUpdates(false));
    state.skipUpdate();
    QVERIFY(!state.updateInfo());
    QCOMPARE(f.defaults.text(DefaultsKey::skippedUpdateVersion), u"99.1"_s);
    QCOMPARE(StateFixture::wait(state.checkForUpdates(false)), UpdateOutcome::skipped);
    QVERIFY(!state.updateInfo() && !state.toast());
}

void tst_AppStateStats::handsTheDownloadToTheDesktop()
{
    StateFixture f;
    const FeedServer server(u"99.2"_s);
    f.appcastURL = server.address();
    AppState &state = f.make();
    StateFixture::wait(state.checkForUpdates(true));
    state.downloadUpdate();
    QCOMPARE(f.fakes.workspace->opened, QList<QUrl>{QUrl(u"https://example.org/b.dmg"_s)});
    QVERIFY(!state.updateInfo());
    state.downloadUpdate();
    QCOMPARE(f.fakes.workspace->opened.size(), 1);
}

QTEST_GUILESS_MAIN(tst_AppStateStats)
#include "tst_AppStateStats.moc"
