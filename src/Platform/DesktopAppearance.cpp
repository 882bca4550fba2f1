// SPDX-License-Identifier: MIT
#include "Platform/DesktopAppearance.h"

void DesktopAppearance::setColorScheme(ColorScheme scheme)
{
    if (m_colorScheme == scheme)
        return;
    m_colorScheme = scheme;
    Q_EMIT colorSchemeChanged();
}

void DesktopAppearance::setReducesMotion(bool reduces)
{
    if (m_reducesMotion == reduces)
        return;
    m_reducesMotion = reduces;
    Q_EMIT reducesMotionChanged();
}
