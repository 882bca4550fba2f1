// SPDX-License-Identifier: MIT
#include "Fakes/PrivateBus.h"
#include "Fakes/ScratchTree.h"
#include "Platform/Linux/LinuxWorkspace.h"
#include "Platform/Linux/PortalAppearance.h"

#include <QDBusContext>
#include <QHash>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A settings portal with what the test puts in.
class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QHash<QString, QVariant> values;
    int asked = 0;

public Q_SLOTS:
    QDBusVariant Read(const QString &group, const QString &key)
    {
        ++asked;
        const QVariant value = values.value(group + u'/' + key);
        if (!value.isValid())
            sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"there is none"_s);
        // Portals wrap the value once more than they need to.
        return QDBusVariant(QVariant::fromValue(QDBusVariant(value)));
    }

Q_SIGNALS:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);
};

class FakeFileManager : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QList<QStringList> shown;
    bool fails = false;

public Q_SLOTS:
    void ShowItems(const QStringList &items, const QString &)
    {
        shown.append(items);
        if (fails)
            sendErrorReply(QDBusError::Failed, u"it does not work"_s);
    }
};

} // namespace

class tst_LinuxDesktop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_bus = std::make_unique<PrivateBus>();
        m_desk.emplace(m_bus->connect(u"desk"_s));
        QVERIFY(m_desk->isConnected());
        QVERIFY(QDBusConnection::sessionBus().isConnected());
    }
    void cleanupTestCase()
    {
        QDBusConnection::disconnectFromBus(u"desk"_s);
        m_desk.reset();
    }

    void readsWhatThePortalSays_data()
    {
        QTest::addColumn<QVariant>("scheme");
        QTest::addColumn<QVariant>("animations");
        QTest::addColumn<int>("expectedScheme");
        QTest::addColumn<bool>("expectedReduced");
        QTest::newRow("dark") << QVariant(1U) << QVariant(true) << int(ColorScheme::dark) << false;
        QTest::newRow("light, no animations") << QVariant(2U) << QVariant(false) << int(ColorScheme::light) << true;
        QTest::newRow("no preference") << QVariant(0U) << QVariant() << int(ColorScheme::noPreference) << false;
        QTest::newRow("a number to come") << QVariant(7U) << QVariant() << int(ColorScheme::noPreference) << false;
        QTest::newRow("of the wrong types")
            << QVariant(u"dark"_s) << QVariant(0U) << int(ColorScheme::noPreference) << false;
    }
    void readsWhatThePortalSays()
    {
        QFETCH(QVariant, scheme);
        QFETCH(QVariant, animations);
        QFETCH(int, expectedScheme);
        QFETCH(bool, expectedReduced);
        FakePortal portal;
        portal.values.insert(u"org.freedesktop.appearance/color-scheme"_s, scheme);
        portal.values.insert(u"org.gnome.desktop.interface/enable-animations"_s, animations);
        const Offer offer(*this, portal);

        const PortalAppearance appearance(QDBusConnection::sessionBus());
        QCOMPARE(appearance.colorScheme(), ColorScheme::noPreference); // nothing waits for the answer
        QTRY_COMPARE(portal.asked, 2);
        QTRY_COMPARE(int(appearance.colorScheme()), expectedScheme);
        QTRY_COMPARE(appearance.reducesMotion(), expectedReduced);
    }

    void followsChanges()
    {
        FakePortal portal;
        const Offer offer(*this, portal);
        const PortalAppearance appearance(QDBusConnection::sessionBus());
        QSignalSpy schemes(&appearance, &DesktopAppearance::colorSchemeChanged);
        QTRY_COMPARE(portal.asked, 2);

        Q_EMIT portal.SettingChanged(u"org.freedesktop.appearance"_s, u"color-scheme"_s, QDBusVariant(1U));
        QTRY_COMPARE(appearance.colorScheme(), ColorScheme::dark);
        Q_EMIT portal.SettingChanged(u"org.freedesktop.appearance"_s, u"accent-color"_s, QDBusVariant(2U));
        Q_EMIT portal.SettingChanged(u"org.example"_s, u"color-scheme"_s, QDBusVariant(2U));
        Q_EMIT portal.SettingChanged(u"org.gnome.desktop.interface"_s, u"enable-animations"_s, QDBusVariant(false));
        QTRY_VERIFY(appearance.reducesMotion());
        QCOMPARE(appearance.colorScheme(), ColorScheme::dark);
        QCOMPARE(schemes.count(), 1);
        Q_EMIT portal.SettingChanged(u"org.freedesktop.appearance"_s, u"color-scheme"_s, QDBusVariant(2U));
        QTRY_COMPARE(appearance.colorScheme(), ColorScheme::light);
    }

    void asksAPortalThatStartsLater()
    {
        const PortalAppearance appearance(QDBusConnection::sessionBus());
        QTest::qWait(1);
        QCOMPARE(appearance.colorScheme(), ColorScheme::noPreference);
        FakePortal portal;
        portal.values.insert(u"org.freedesktop.appearance/color-scheme"_s, 1U);
        const Offer offer(*this, portal);
        QTRY_COMPARE(appearance.colorScheme(), ColorScheme::dark);
    }

    void hasNoWishesWithoutABus()
    {
        const PortalAppearance appearance(QDBusConnection(u"no such connection"_s));
        QCOMPARE(appearance.colorScheme(), ColorScheme::noPreference);
        QCOMPARE(appearance.reducesMotion(), false);
    }

    void theFileManagerShowsTheItem()
    {
        FakeFileManager manager;
        const Manage manage(*this, manager);
        const FileURL item = m_tree.file("folder/a b\xff");
        workspace().showInFileManager(item);
        QVERIFY(manager.shown.isEmpty()); // nothing waits for the answer
        QTRY_COMPARE(manager.shown.size(), 1);
        QCOMPARE(manager.shown.constFirst(), QStringList{QString::fromLatin1(item.encoded())});
        QVERIFY(item.encoded().endsWith("/a%20b%FF"));
        QTest::qWait(50);
        QVERIFY(m_started.isEmpty());
    }

    void theFolderIsOpenedWhereNoFileManagerAnswers()
    {
        const FileURL item = m_tree.file("folder/item");
        workspace().showInFileManager(item);
        QTRY_COMPARE(m_started, (QStringList{u"xdg-open"_s, QString::fromLatin1(item.parent().encoded())}));
    }

    void theFolderIsOpenedWhereTheFileManagerFails()
    {
        FakeFileManager manager;
        manager.fails = true;
        const Manage manage(*this, manager);
        const FileURL item = m_tree.folder("folder/inner");
        workspace().showInFileManager(item);
        QTRY_COMPARE(m_started, (QStringList{u"xdg-open"_s, QString::fromLatin1(item.parent().encoded())}));
        QCOMPARE(manager.shown.size(), 1);
    }

    void nothingButAFolderIsOpened()
    {
        const FileURL file = m_tree.file("file");
        workspace().showInFileManager(file.child("gone"));
        workspace().showInFileManager(m_tree.at("missing/gone"));
        workspace().showInFileManager(m_tree.link("link", "file").child("gone"));
        // What comes last is answered last.
        workspace().showInFileManager(m_tree.file("folder/item"));
        QTRY_COMPARE(m_started, (QStringList{u"xdg-open"_s, QString::fromLatin1(m_tree.at("folder").encoded())}));
    }

    void init() { m_started.clear(); }

private:
    /// While it lives the desktop has a portal.
    struct Offer {
        Offer(const tst_LinuxDesktop &test, FakePortal &portal)
            : bus(*test.m_desk)
        {
            bus.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal, QDBusConnection::ExportAllContents);
            bus.registerService(u"org.freedesktop.portal.Desktop"_s);
        }
        ~Offer()
        {
            bus.unregisterService(u"org.freedesktop.portal.Desktop"_s);
            bus.unregisterObject(u"/org/freedesktop/portal/desktop"_s);
        }
        Q_DISABLE_COPY_MOVE(Offer)
        QDBusConnection bus;
    };
    /// While it lives the desktop has a file manager.
    struct Manage {
        Manage(const tst_LinuxDesktop &test, FakeFileManager &manager)
            : bus(*test.m_desk)
        {
            bus.registerObject(u"/org/freedesktop/FileManager1"_s, &manager, QDBusConnection::ExportAllSlots);
            bus.registerService(u"org.freedesktop.FileManager1"_s);
        }
        ~Manage()
        {
            bus.unregisterService(u"org.freedesktop.FileManager1"_s);
            bus.unregisterObject(u"/org/freedesktop/FileManager1"_s);
        }
        Q_DISABLE_COPY_MOVE(Manage)
        QDBusConnection bus;
    };

    /// Notes what it is to start, and starts nothing.
    LinuxWorkspace workspace()
    {
        return LinuxWorkspace([this](const QString &program, const QStringList &arguments) {
            m_started += QStringList{program} + arguments;
            return true;
        });
    }

    std::unique_ptr<PrivateBus> m_bus;
    std::optional<QDBusConnection> m_desk;
    ScratchTree m_tree;
    QStringList m_started;
};

QTEST_GUILESS_MAIN(tst_LinuxDesktop)
#include "tst_LinuxDesktop.moc"
