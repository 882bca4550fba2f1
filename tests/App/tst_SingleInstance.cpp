// SPDX-License-Identifier: MIT
#include "App/SingleInstance.h"
#include "Fakes/ScratchTree.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>

#include <sys/socket.h>
#include <sys/un.h>

using namespace Qt::StringLiterals;

namespace {

/// A second start, which waits for its answer while the first one goes on working.
class SecondStart
{
public:
    SecondStart(const QString &folder, const QByteArray &token)
        : m_thread(QThread::create([this, folder, token] {
            SingleInstance second(folder);
            m_isFirst = second.begin();
            if (!m_isFirst)
                m_wasHeard = second.handOver(token);
            m_isDone = true;
        }))
    {
        m_thread->start();
    }
    ~SecondStart() { m_thread->wait(); }
    Q_DISABLE_COPY_MOVE(SecondStart)

    [[nodiscard]] bool isDone() const { return m_isDone; }
    [[nodiscard]] bool isFirst() const { return m_isFirst; }
    [[nodiscard]] bool wasHeard() const { return m_wasHeard; }

private:
    std::atomic_bool m_isDone = false;
    std::atomic_bool m_isFirst = false;
    std::atomic_bool m_wasHeard = false;
    std::unique_ptr<QThread> m_thread;
};

} // namespace

class tst_SingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tree = std::make_unique<ScratchTree>(); }

    void theFirstStartIsTheOne()
    {
        SingleInstance first(folder());
        QVERIFY(first.begin());
        QVERIFY(ScratchTree::exists(socket()));
        struct stat status {
        };
        QCOMPARE(::stat(socket().path().constData(), &status), 0);
        QCOMPARE(status.st_mode & 0077U, 0U); // nobody else's to use
    }

    void aSecondStartHandsOver()
    {
        SingleInstance first(folder());
        QVERIFY(first.begin());
        QSignalSpy activated(&first, &SingleInstance::activated);
        const SecondStart second(folder(), "a-token_42");
        QTRY_VERIFY(second.isDone());
        QVERIFY(!second.isFirst());
        QVERIFY(second.wasHeard());
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.at(0).at(0).toByteArray(), "a-token_42");
    }

    void aSecondStartWithoutATokenHandsOverToo()
    {
        SingleInstance first(folder());
        QVERIFY(first.begin());
        QSignalSpy activated(&first, &SingleInstance::activated);
        const SecondStart second(folder(), {});
        QTRY_VERIFY(second.isDone());
        QVERIFY(second.wasHeard());
        QCOMPARE(activated.at(0).at(0).toByteArray(), QByteArray());
    }

    void manyStartsAreAllHeard()
    {
        SingleInstance first(folder());
        QVERIFY(first.begin());
        QSignalSpy activated(&first, &SingleInstance::activated);
        std::vector<std::unique_ptr<SecondStart>> starts;
        for (int i = 0; i < 8; ++i)
            starts.push_back(std::make_unique<SecondStart>(folder(), QByteArray::number(i)));
        for (const auto &start : starts) {
            QTRY_VERIFY(start->isDone());
            QVERIFY(start->wasHeard());
        }
        QCOMPARE(activated.count(), 8);
    }

    void whatACrashLeftStandsInNobodysWay()
    {
        // A socket that nobody listens on any more, as it stays behind.
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, socket().path().constData(), sizeof address.sun_path);
        const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        QCOMPARE(::bind(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
        ::close(fd);
        QVERIFY(ScratchTree::exists(socket()));

        SingleInstance first(folder());
        QVERIFY(first.begin());
        const SecondStart second(folder(), {});
        QTRY_VERIFY(second.isDone());
        QVERIFY(second.wasHeard());
    }

    void theNextStartIsTheFirstAgainOnceThatHasEnded()
    {
        {
            SingleInstance first(folder());
            QVERIFY(first.begin());
        }
        SingleInstance next(folder());
        QVERIFY(next.begin());
    }

    void aStartThatIsNotHeardSaysSo()
    {
        // The lock is held but nobody listens: as a program that hangs.
        QLockFile held(m_tree->at("com.brisko.Brisko.lock").text());
        held.setStaleLockTime(0);
        QVERIFY(held.tryLock(0));
        SingleInstance second(folder());
        QVERIFY(!second.begin());
        QVERIFY(!second.handOver({}));
    }

    void whoeverSaysSomethingElseIsTurnedAway_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("another word") << QByteArray("remove everything\n");
        QTest::newRow("an empty line") << QByteArray("\n");
        QTest::newRow("no end") << QByteArray(100'000, 'x');
    }
    void whoeverSaysSomethingElseIsTurnedAway()
    {
        QFETCH(QByteArray, line);
        SingleInstance first(folder());
        QVERIFY(first.begin());
        QSignalSpy activated(&first, &SingleInstance::activated);
        QLocalSocket client;
        client.connectToServer(socket().text());
        QVERIFY(client.waitForConnected());
        client.write(line);
        QTRY_COMPARE(client.state(), QLocalSocket::UnconnectedState);
        QCOMPARE(client.readAll(), QByteArray());
        QCOMPARE(activated.count(), 0);
    }

private:
    [[nodiscard]] QString folder() const { return m_tree->root().text(); }
    [[nodiscard]] FileURL socket() const { return m_tree->at("com.brisko.Brisko.socket"); }

    std::unique_ptr<ScratchTree> m_tree;
};

QTEST_GUILESS_MAIN(tst_SingleInstance)
#include "tst_SingleInstance.moc"
