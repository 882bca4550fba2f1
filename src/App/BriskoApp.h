// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/DesktopAppearance.h"
#include "Platform/Platform.h"

#include <functional>
#include <memory>

namespace BriskoApp {

/// Where the window gets the system from; each is called once.
struct Makers {
    std::function<std::shared_ptr<const Platform>()> platform;
    std::function<std::unique_ptr<DesktopAppearance>()> appearance;
};

/// Opens the window and answers the exit status when the user quits; where a window runs already, brings that to the
/// front and answers at once. Makes the application object, so that it serves a whole process.
[[nodiscard]] int run(int argc, char **argv, const Makers &makers);

} // namespace BriskoApp
