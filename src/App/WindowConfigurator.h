// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Preferences.h"
#include "Platform/DesktopAppearance.h"
#include "Support/Scheduler.h"

#include <QObject>

class GlassWindow;
class Theme;

/// Whether transitions are left out only where the desktop wishes it, or always.
enum class Motion { asTheDesktop, reduced };

/// Sets the main window up, and decides from the chosen appearance and the desktop's wishes how every window looks:
/// all of them draw with the one theme. Follows the desktop while it lives. Main thread.
class WindowConfigurator final : public QObject
{
    Q_OBJECT

public:
    /// `theme` and `desktop` outlive this.
    WindowConfigurator(Theme &theme, const DesktopAppearance &desktop, Scheduler schedule, Motion motion,
                       QObject *parent = nullptr);

    /// Sets up the window and applies the appearance, now and after 120 and 350 ms: the system's own set-up after
    /// showing would win otherwise.
    void configure(GlassWindow &window, AppearanceOption option);
    /// Has every window take the appearance; `system` follows the desktop.
    void applyAppearance(AppearanceOption option);

    [[nodiscard]] static bool isDark(AppearanceOption option, ColorScheme desktop);

private:
    void follow();

    Theme &m_theme;
    const DesktopAppearance &m_desktop;
    Scheduler m_schedule;
    Motion m_motion;
    AppearanceOption m_option = AppearanceOption::system;
};
