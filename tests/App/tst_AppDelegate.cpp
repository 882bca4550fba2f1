// SPDX-License-Identifier: MIT
#include "App/AppDelegate.h"
#include "Fakes/FakeDesktop.h"
#include "Fakes/FakeScheduler.h"
#include "Fakes/Warnings.h"
#include "State/StateFixture.h"
#include "Theme/Texts.h"
#include "Theme/Theme.h"
#include "Theme/Typo.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A program over a fake platform, with a clock and a desktop of the test's own.
struct Program {
    Program()
    {
        fixture.appcastURL = [this] {
            ++updateChecks;
            return std::expected<QUrl, QString>(QUrl(u"http://127.0.0.1:1/appcast.json"_s));
        };
    }
    ~Program()
    {
        delegate.reset();
        fixture.settle();
    }
    Q_DISABLE_COPY_MOVE(Program)

    /// The environment of a delegate whose windows show as little as can be.
    WindowEnvironment environment()
    {
        WindowEnvironment made;
        made.state = fixture.environment();
        made.desktop = &desktop;
        made.schedule = clock.scheduler();
        made.isComposited = [] { return true; };
        made.hasTrayHost = [this] { return hasTray; };
        const FileURL root =
            fixture.tree.file("Root.qml", "import QtQuick\n"
                                          "Item { required property var window; required property var pages }\n");
        const FileURL panel =
            fixture.tree.file("Panel.qml", "import QtQuick\n"
                                           "Item { width: 300; height: 200; required property var panel }\n");
        made.rootView = QUrl::fromEncoded(root.encoded());
        made.panelRoot = QUrl::fromEncoded(panel.encoded());
        return made;
    }
    AppDelegate &make()
    {
        delegate = std::make_unique<AppDelegate>(environment());
        return *delegate;
    }
    AppDelegate &launch()
    {
        make().applicationDidFinishLaunching();
        return *delegate;
    }
    template <typename T>
    T *shared(const char *name) const
    {
        return qmlEngine(delegate->window()->rootObject())
            ->singletonInstance<T *>(qmlTypeId("Brisko.Theme", 1, 0, name));
    }

    StateFixture fixture;
    FakeDesktop desktop;
    FakeScheduler clock;
    bool hasTray = true;
    int updateChecks = 0;
    std::unique_ptr<AppDelegate> delegate;
};

} // namespace

class tst_AppDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnWarnings(); }

    void launchesInTheDocumentedOrder()
    {
        Program program;
        AppDelegate &delegate = program.make();
        QList<LaunchStep> steps;
        connect(&delegate, &AppDelegate::launchStepDone, this, [&](LaunchStep step) {
            steps.append(step);
            QCOMPARE(delegate.window() != nullptr, step >= LaunchStep::storeWindow);
            QCOMPARE(delegate.statusItem() != nullptr, step >= LaunchStep::setUpStatusItem);
        });
        delegate.applicationDidFinishLaunching();
        using enum LaunchStep;
        QCOMPARE(steps, (QList<LaunchStep>{activateLanguage, buildRootView, createWindow, configureWindow, hostRootView,
                                           showWindow, storeWindow, applyAppearance, removeDefaultSettingsMenuItem,
                                           setUpStatusItem, setUpReopenObserver, scheduleUpdateCheck}));
        QVERIFY(delegate.window()->isVisible());
        QCOMPARE(delegate.window()->title(), u"Brisko"_s);
        QCOMPARE(delegate.window()->minimumSize(), QSize(1'000, 680));
        QVERIFY(delegate.statusItem()->isShown());
    }

    void theStoredLanguageHoldsBeforeAnyTextIsBuilt()
    {
        Program program;
        program.fixture.defaults.setText(DefaultsKey::appLanguage, u"de"_s);
        AppDelegate &delegate = program.make();
        std::optional<AppLanguage> atFirst;
        connect(&delegate, &AppDelegate::launchStepDone, this, [&](LaunchStep step) {
            if (step == LaunchStep::activateLanguage)
                atFirst = LanguageManager::current();
        });
        delegate.applicationDidFinishLaunching();
        QCOMPARE(atFirst, AppLanguage::de);
        QCOMPARE(delegate.state().language(), AppLanguage::de);
    }

    void everyTextIsLookedUpAgainInAnotherLanguage()
    {
        Program program;
        AppDelegate &delegate = program.launch();
        QSignalSpy texts(program.shared<Texts>("Texts"), &Texts::changed);
        delegate.state().setLanguage(AppLanguage::ja);
        QCOMPARE(texts.count(), 1);
        QCOMPARE(program.shared<Typo>("Typo")->families(), Typo().families()); // the language's own
    }

    void theStoredAppearanceIsAppliedAndFollowed()
    {
        Program program;
        program.fixture.defaults.setInteger(DefaultsKey::appearance, int(AppearanceOption::dark));
        AppDelegate &delegate = program.launch();
        const auto *theme = program.shared<Theme>("Theme");
        QVERIFY(theme->dark());
        delegate.state().setAppearance(AppearanceOption::light);
        QVERIFY(!theme->dark());
        delegate.state().setAppearance(AppearanceOption::system);
        QVERIFY(!theme->dark());
        program.desktop.setColorScheme(ColorScheme::dark);
        QVERIFY(theme->dark());
        program.clock.advance(1s); // late passes change nothing
        QVERIFY(theme->dark());
    }

    void theScanStartsWhenTheWindowAppears()
    {
        Program program;
        AppDelegate &delegate = program.make();
        QSignalSpy scanning(&delegate.state(), &AppState::scanningChanged);
        delegate.applicationDidFinishLaunching();
        QTRY_VERIFY(scanning.count() > 0);
        QTRY_VERIFY(!delegate.state().scanning());
        QCOMPARE(scanning.count(), 2);
        // Coming back is no first appearance.
        delegate.window()->close();
        delegate.handleOpenMainWindow();
        QVERIFY(QTest::qWaitForWindowExposed(delegate.window()));
        QCOMPARE(scanning.count(), 2);
    }

    void closingOnlyHidesTheWindow()
    {
        Program program;
        AppDelegate &delegate = program.launch();
        GlassWindow *window = delegate.window();
        delegate.state().setSelection(Page::junk);
        QVERIFY(!window->close());
        QVERIFY(!window->isVisible());
        QVERIFY(delegate.statusItem()->isShown());
        QVERIFY(!delegate.windowShouldClose());
        delegate.activate({});
        QCOMPARE(delegate.window(), window);
        QVERIFY(window->isVisible());
        QCOMPARE(delegate.state().selection(), Page::junk);
    }

    void becomingActiveBringsTheHiddenWindowBack()
    {
        Program program;
        AppDelegate &delegate = program.launch();
        delegate.window()->close();
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
        QCoreApplication::processEvents();
        QVERIFY(!delegate.window()->isVisible());
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QVERIFY(!delegate.window()->isVisible()); // a little later
        QTRY_VERIFY(delegate.window()->isVisible());
    }

    void becomingActiveLeavesAVisibleWindowAlone()
    {
        Program program;
        AppDelegate &delegate = program.launch();
        QVERIFY(QTest::qWaitForWindowActive(delegate.window()));
        QSignalSpy visible(delegate.window(), &QWindow::visibleChanged);
        QSignalSpy state(delegate.window(), &QWindow::windowStateChanged);
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QCoreApplication::processEvents();
        QCOMPARE(visible.count(), 0);
        QCOMPARE(state.count(), 0);
    }

    void thePanelDoesNotBringTheWindowBack()
    {
        Program program;
        AppDelegate &delegate = program.launch();
        delegate.window()->close();
        delegate.toggleStatusPopover();
        QVERIFY(delegate.statusPopover().isVisible());
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QCoreApplication::processEvents();
        QVERIFY(!delegate.window()->isVisible());
    }

    void theStatusItemTogglesThePanel()
    {
        Program program;
        AppDelegate &delegate = program.launch();
        Q_EMIT delegate.statusItem()->activated();
        QVERIFY(delegate.statusPopover().isVisible());
        Q_EMIT delegate.statusItem()->activated();
        QVERIFY(!delegate.statusPopover().isVisible());
    }

    void thePanelsNotificationsAreHeard()
    {
        Program program;
        AppDelegate &delegate = program.launch();
        delegate.window()->close();
        delegate.toggleStatusPopover();
        delegate.notifications().post(u"something else"_s);
        QVERIFY(delegate.statusPopover().isVisible());
        QVERIFY(!delegate.window()->isVisible());
        delegate.notifications().post(Notification::openMainWindow);
        QVERIFY(delegate.window()->isVisible());
        delegate.notifications().post(Notification::closeMenuPopover);
        QVERIFY(!delegate.statusPopover().isVisible());
    }

    void commandAndCommaShowTheSettingsInTheWindow()
    {
        Program program;
        AppDelegate &delegate = program.launch();
        QTest::keyClick(delegate.window(), Qt::Key_Comma, Qt::ControlModifier);
        QCOMPARE(delegate.state().selection(), Page::settings);
    }

    void commandAndCommaInThePanelShowTheHiddenWindow()
    {
        Program program;
        AppDelegate &delegate = program.launch();
        delegate.window()->close();
        delegate.toggleStatusPopover();
        QTest::keyClick(&delegate.statusPopover(), Qt::Key_Comma);
        QVERIFY(!delegate.window()->isVisible());
        QTest::keyClick(&delegate.statusPopover(), Qt::Key_Comma, Qt::ControlModifier);
        QCOMPARE(delegate.state().selection(), Page::settings);
        QVERIFY(delegate.window()->isVisible());
    }

    void theUpdateCheckRunsOnceAfterThreeSecondsAndSilently()
    {
        Program program;
        AppDelegate &delegate = program.launch();
        program.clock.advance(2'999ms);
        QCOMPARE(program.updateChecks, 0);
        program.clock.advance(1ms);
        QCOMPARE(program.updateChecks, 1);
        QVERIFY(delegate.state().isCheckingForUpdates());
        QTRY_VERIFY(!delegate.state().isCheckingForUpdates());
        QTRY_VERIFY(!delegate.state().scanning());
        // The server is not there, which is nobody's concern: the toast is the scan's.
        QVERIFY(!delegate.state().toast() || delegate.state().toast()->symbol == u"checkmark.circle.fill"_s);
        program.clock.advance(24h);
        QCOMPARE(program.updateChecks, 1);
    }

    void nothingIsCheckedOnceTheDelegateIsGone()
    {
        Program program;
        program.launch();
        program.delegate.reset();
        program.clock.advance(10s);
        QCOMPARE(program.updateChecks, 0);
    }

    void damagedSettingsAreToldOnce()
    {
        Program program;
        const FileURL file = program.fixture.tree.file("broken/Brisko.conf", "[General\n\x01\x02 not a setting");
        UserDefaults defaults(file.text());
        QVERIFY(defaults.brokenCopy());
        WindowEnvironment environment = program.environment();
        environment.state.defaults = &defaults;
        AppDelegate delegate(environment);
        QStringList messages;
        connect(&delegate.state(), &AppState::toastChanged, this, [&] {
            if (delegate.state().toast())
                messages.append(delegate.state().toast()->message);
        });
        delegate.applicationDidFinishLaunching();
        QVERIFY(delegate.state().toast());
        QCOMPARE(delegate.state().toast()->tintHex, Tint::paused);
        QCOMPARE(messages.filter(*defaults.brokenCopy()).size(), 1);
    }

    void soundSettingsAreNoNews()
    {
        Program program;
        const AppDelegate &delegate = program.launch();
        Q_UNUSED(delegate)
        QVERIFY(!program.delegate->state().toast());
    }

    void quittingEndsTheProgramThoughItsWindowOnlyHides()
    {
        Program program;
        AppDelegate &delegate = program.launch();
        bool gaveUp = false;
        QTimer::singleShot(0, this, [] { QCoreApplication::quit(); });
        QTimer::singleShot(10s, this, [&gaveUp] {
            gaveUp = true;
            QCoreApplication::exit(1);
        });
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(!gaveUp);
        QVERIFY(delegate.window());
    }

    void theProgramsOwnViewsAreDrawn()
    {
        Program program;
        WindowEnvironment environment = program.environment();
        const WindowEnvironment own;
        environment.rootView = own.rootView;
        environment.panelRoot = own.panelRoot;
        program.delegate = std::make_unique<AppDelegate>(environment);
        program.delegate->applicationDidFinishLaunching();
        GlassWindow *window = program.delegate->window();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QCOMPARE(window->rootObject()->size(), QSizeF(window->size()));
        const QImage picture = window->grabWindow();
        QVERIFY(picture.pixelColor(picture.width() / 2, picture.height() - 40).alpha() > 100);
        program.delegate->toggleStatusPopover();
        QVERIFY(QTest::qWaitForWindowExposed(&program.delegate->statusPopover()));
        QVERIFY(!program.delegate->statusPopover().size().isEmpty());
    }
};

QTEST_MAIN(tst_AppDelegate)
#include "tst_AppDelegate.moc"
