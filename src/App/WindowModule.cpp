// SPDX-License-Identifier: MIT
#include "App/WindowModule.h"

#include "App/BriskoApp.h"
#include "App/Display.h"

#include <type_traits>

extern "C" [[gnu::visibility("default")]] int briskoOpenWindow(int argc, char **argv);

int briskoOpenWindow(int argc, char **argv)
{
    static_assert(std::is_same_v<decltype(briskoOpenWindow), WindowModule::Entry>);
    if (!Display::isReachable())
        return WindowModule::kNoDisplay;
    return BriskoApp::run(argc, argv, {.platform = makePlatform, .appearance = makeDesktopAppearance});
}
