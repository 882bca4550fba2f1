// SPDX-License-Identifier: MIT
#include "App/WindowConfigurator.h"

#include "App/GlassWindow.h"
#include "Theme/Theme.h"

#include <QPointer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

void setUp(GlassWindow &window)
{
    window.setTitle(u"Brisko"_s);
    window.setMinimumSize(GlassWindow::kMinimumSize);
    window.applyCompositing();
}

} // namespace

WindowConfigurator::WindowConfigurator(Theme &theme, const DesktopAppearance &desktop, Scheduler schedule,
                                       Motion motion, QObject *parent)
    : QObject(parent)
    , m_theme(theme)
    , m_desktop(desktop)
    , m_schedule(std::move(schedule))
    , m_motion(motion)
{
    connect(&desktop, &DesktopAppearance::colorSchemeChanged, this, &WindowConfigurator::follow);
    connect(&desktop, &DesktopAppearance::reducesMotionChanged, this, &WindowConfigurator::follow);
    follow();
}

void WindowConfigurator::configure(GlassWindow &window, AppearanceOption option)
{
    m_option = option;
    setUp(window);
    follow();
    for (const auto delay : {120ms, 350ms}) {
        // The appearance is the one that is chosen by then.
        m_schedule(delay, [self = QPointer(this), shown = QPointer(&window)] {
            if (!self || !shown)
                return;
            setUp(*shown);
            self->follow();
        });
    }
}

void WindowConfigurator::applyAppearance(AppearanceOption option)
{
    m_option = option;
    follow();
}

bool WindowConfigurator::isDark(AppearanceOption option, ColorScheme desktop)
{
    if (option == AppearanceOption::system)
        return desktop == ColorScheme::dark;
    return option == AppearanceOption::dark;
}

void WindowConfigurator::follow()
{
    m_theme.setDark(isDark(m_option, m_desktop.colorScheme()));
    m_theme.setReducedMotion(m_motion == Motion::reduced || m_desktop.reducesMotion());
}
