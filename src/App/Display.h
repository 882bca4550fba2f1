// SPDX-License-Identifier: MIT
#pragma once

namespace Display {

/// Whether a window can be opened here. Asked before there is an application object, which would end the program where
/// there is no display.
[[nodiscard]] bool isReachable();

} // namespace Display
