// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/DesktopAppearance.h"

/// A desktop whose wishes the test decides.
class FakeDesktop : public DesktopAppearance
{
public:
    using DesktopAppearance::setColorScheme;
    using DesktopAppearance::setReducesMotion;
};
