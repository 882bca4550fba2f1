// SPDX-License-Identifier: MIT
#include "App/ActivationService.h"
#include "App/TrayHost.h"
#include "Fakes/PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// What watches for status items on a desktop.
class FakeWatcher : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER hasHost CONSTANT)

public:
    bool hasHost = true;
};

} // namespace

class tst_DesktopServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_bus = std::make_unique<PrivateBus>();
        m_desk.emplace(m_bus->connect(u"desk"_s));
        QVERIFY(m_desk->isConnected());
    }
    void cleanupTestCase()
    {
        QDBusConnection::disconnectFromBus(u"desk"_s);
        m_desk.reset();
    }

    void launchersBringTheProgramToTheFront_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QVariantList>("arguments");
        QTest::addColumn<QByteArray>("token");
        const QVariantMap token{{u"activation-token"_s, u"t-1"_s}};
        QTest::newRow("Activate") << u"Activate"_s << QVariantList{token} << QByteArray("t-1");
        QTest::newRow("Activate without a token") << u"Activate"_s << QVariantList{QVariantMap()} << QByteArray();
        QTest::newRow("Open") << u"Open"_s << QVariantList{QStringList{u"file:///etc"_s}, token} << QByteArray("t-1");
        QTest::newRow("ActivateAction") << u"ActivateAction"_s << QVariantList{u"quit"_s, QVariantList(), token}
                                        << QByteArray("t-1");
    }
    void launchersBringTheProgramToTheFront()
    {
        QFETCH(QString, method);
        QFETCH(QVariantList, arguments);
        QFETCH(QByteArray, token);
        ActivationService service;
        QVERIFY(service.publish());
        QSignalSpy activated(&service, &ActivationService::activated);
        QDBusMessage call = QDBusMessage::createMethodCall(u"com.brisko.Brisko"_s, u"/com/brisko/Brisko"_s,
                                                           u"org.freedesktop.Application"_s, method);
        call.setArguments(arguments);
        const QDBusPendingCall answer = m_desk->asyncCall(call);
        QTRY_VERIFY(answer.isFinished());
        QVERIFY2(!answer.isError(), qPrintable(answer.error().message()));
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.at(0).at(0).toByteArray(), token);
        QDBusConnection::sessionBus().unregisterService(u"com.brisko.Brisko"_s);
        QDBusConnection::sessionBus().unregisterObject(u"/com/brisko/Brisko"_s);
    }

    void onlyOneProgramIsReached()
    {
        QVERIFY(m_desk->registerService(u"com.brisko.Brisko"_s));
        ActivationService service;
        QVERIFY(!service.publish());
        m_desk->unregisterService(u"com.brisko.Brisko"_s);
        QDBusConnection::sessionBus().unregisterObject(u"/com/brisko/Brisko"_s);
    }

    void aTrayHostIsThereOnceItSaysSo()
    {
        QVERIFY(!TrayHost::isPresent());
        // It answers while this thread waits for it.
        QThread desktop;
        desktop.start();
        FakeWatcher watcher;
        watcher.moveToThread(&desktop);
        watcher.hasHost = false;
        QVERIFY(m_desk->registerObject(u"/StatusNotifierWatcher"_s, &watcher, QDBusConnection::ExportAllProperties));
        QVERIFY(m_desk->registerService(u"org.kde.StatusNotifierWatcher"_s));
        QVERIFY(!TrayHost::isPresent());
        watcher.hasHost = true;
        QVERIFY(TrayHost::isPresent());
        m_desk->unregisterService(u"org.kde.StatusNotifierWatcher"_s);
        QVERIFY(!TrayHost::isPresent());
        m_desk->unregisterObject(u"/StatusNotifierWatcher"_s);
        desktop.quit();
        desktop.wait();
    }

private:
    std::unique_ptr<PrivateBus> m_bus;
    std::optional<QDBusConnection> m_desk;
};

QTEST_MAIN(tst_DesktopServices)
#include "tst_DesktopServices.moc"
