// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <memory>

/// What the desktop wishes windows to look like.
enum class ColorScheme { noPreference, dark, light };

/// The desktop's wishes, followed while the program runs. Nothing is known at first; what the desktop says arrives
/// later, and a desktop that says nothing has no wishes. Main thread.
class DesktopAppearance : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] ColorScheme colorScheme() const { return m_colorScheme; }
    /// Whether transitions are to be left out.
    [[nodiscard]] bool reducesMotion() const { return m_reducesMotion; }

Q_SIGNALS:
    void colorSchemeChanged();
    void reducesMotionChanged();

protected:
    void setColorScheme(ColorScheme scheme);
    void setReducesMotion(bool reduces);

private:
    ColorScheme m_colorScheme = ColorScheme::noPreference;
    bool m_reducesMotion = false;
};

/// The appearance of the system that the program was built for; defined by the folder that the build picked.
[[nodiscard]] std::unique_ptr<DesktopAppearance> makeDesktopAppearance();
