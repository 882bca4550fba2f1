// SPDX-License-Identifier: MIT
#include "App/GlassWindow.h"
#include "App/WindowConfigurator.h"
#include "Fakes/FakeDesktop.h"
#include "Fakes/FakeScheduler.h"
#include "Theme/Theme.h"

#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class tst_WindowConfigurator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theChosenAppearanceWinsOverTheDesktops_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<int>("desktop");
        QTest::addColumn<bool>("dark");
        const auto row = [](const char *tag, AppearanceOption option, ColorScheme desktop, bool dark) {
            QTest::newRow(tag) << int(option) << int(desktop) << dark;
        };
        row("system, dark desktop", AppearanceOption::system, ColorScheme::dark, true);
        row("system, light desktop", AppearanceOption::system, ColorScheme::light, false);
        row("system, no wish", AppearanceOption::system, ColorScheme::noPreference, false);
        row("light, dark desktop", AppearanceOption::light, ColorScheme::dark, false);
        row("dark, light desktop", AppearanceOption::dark, ColorScheme::light, true);
        row("dark, no wish", AppearanceOption::dark, ColorScheme::noPreference, true);
    }
    void theChosenAppearanceWinsOverTheDesktops()
    {
        QFETCH(int, option);
        QFETCH(int, desktop);
        QFETCH(bool, dark);
        m_desktop.setColorScheme(static_cast<ColorScheme>(desktop));
        Theme theme;
        theme.setDark(!dark);
        WindowConfigurator configurator(theme, m_desktop, m_clock.scheduler(), Motion::asTheDesktop);
        configurator.applyAppearance(static_cast<AppearanceOption>(option));
        QCOMPARE(theme.dark(), dark);
    }

    void aChangeOfTheDesktopIsFollowedOnlyBySystem()
    {
        m_desktop.setColorScheme(ColorScheme::light);
        Theme theme;
        WindowConfigurator configurator(theme, m_desktop, m_clock.scheduler(), Motion::asTheDesktop);
        m_desktop.setColorScheme(ColorScheme::dark);
        QVERIFY(theme.dark());
        configurator.applyAppearance(AppearanceOption::light);
        QVERIFY(!theme.dark());
        m_desktop.setColorScheme(ColorScheme::noPreference);
        m_desktop.setColorScheme(ColorScheme::dark);
        QVERIFY(!theme.dark());
    }

    void motionIsReducedByTheDesktopOrByForce()
    {
        m_desktop.setReducesMotion(false);
        Theme theme;
        Theme forced;
        const WindowConfigurator configurator(theme, m_desktop, m_clock.scheduler(), Motion::asTheDesktop);
        const WindowConfigurator forcing(forced, m_desktop, m_clock.scheduler(), Motion::reduced);
        QVERIFY(!theme.reducedMotion());
        QVERIFY(forced.reducedMotion());
        m_desktop.setReducesMotion(true);
        QVERIFY(theme.reducedMotion());
        m_desktop.setReducesMotion(false);
        QVERIFY(!theme.reducedMotion());
        QVERIFY(forced.reducedMotion());
    }

    void configuresAtOnceAndAfter120And350Milliseconds()
    {
        Theme theme;
        WindowConfigurator configurator(theme, m_desktop, m_clock.scheduler(), Motion::asTheDesktop);
        int asked = 0;
        QQmlEngine engine;
        FakeScheduler unused;
        GlassWindow window(&engine, unused.scheduler(), [&asked] {
            ++asked;
            return true;
        });
        configurator.configure(window, AppearanceOption::dark);
        QCOMPARE(window.title(), u"Brisko"_s);
        QCOMPARE(window.minimumSize(), QSize(1'000, 680));
        QVERIFY(theme.dark());
        QCOMPARE(asked, 1);
        const QList<std::pair<std::chrono::milliseconds, int>> expected{
            {119ms, 1}, {1ms, 2}, {229ms, 2}, {1ms, 3}, {10s, 3}};
        for (const auto &[wait, passes] : expected) {
            const int before = asked;
            theme.setDark(false);
            m_clock.advance(wait);
            QCOMPARE(asked, passes);
            QCOMPARE(theme.dark(), passes > before);
        }
    }

    void aLaterPassAppliesTheAppearanceOfThatMoment()
    {
        Theme theme;
        WindowConfigurator configurator(theme, m_desktop, m_clock.scheduler(), Motion::asTheDesktop);
        QQmlEngine engine;
        FakeScheduler unused;
        GlassWindow window(&engine, unused.scheduler(), [] { return true; });
        configurator.configure(window, AppearanceOption::dark);
        configurator.applyAppearance(AppearanceOption::light);
        m_clock.advance(1s);
        QVERIFY(!theme.dark());
    }

    void laterPassesDoNothingOnceTheWindowIsGone()
    {
        Theme theme;
        auto configurator =
            std::make_unique<WindowConfigurator>(theme, m_desktop, m_clock.scheduler(), Motion::asTheDesktop);
        QQmlEngine engine;
        FakeScheduler unused;
        auto window = std::make_unique<GlassWindow>(&engine, unused.scheduler(), [] { return true; });
        configurator->configure(*window, AppearanceOption::dark);
        window.reset();
        m_clock.advance(200ms);
        configurator.reset();
        theme.setDark(false);
        m_clock.advance(1s);
        QVERIFY(!theme.dark());
    }

    void cleanup()
    {
        m_clock.advance(1h);
        m_desktop.setColorScheme(ColorScheme::noPreference);
        m_desktop.setReducesMotion(false);
    }

private:
    FakeDesktop m_desktop;
    FakeScheduler m_clock;
};

QTEST_MAIN(tst_WindowConfigurator)
#include "tst_WindowConfigurator.moc"
