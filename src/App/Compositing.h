// SPDX-License-Identifier: MIT
#pragma once

namespace Compositing {

/// Whether windows can be translucent at this moment. Asks the display each time: a compositor may come and go.
/// Main thread.
[[nodiscard]] bool isActive();

} // namespace Compositing
