// SPDX-License-Identifier: MIT
#pragma once

/// The window lies in a module of its own, which the program loads when it has one to show: commands work, and fast,
/// without all that draws.
namespace WindowModule {

inline constexpr const char *kFile = BRISKO_WINDOW_MODULE; // searched where the program was told to look
inline constexpr const char *kEntry = "briskoOpenWindow";
inline constexpr int kNoDisplay = -1;

/// What the module offers under the name `kEntry`: opens the window and answers the exit status when the user quits,
/// or `kNoDisplay` at once.
using Entry = int(int argc, char **argv);

} // namespace WindowModule
