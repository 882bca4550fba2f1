// SPDX-License-Identifier: MIT
#pragma once

namespace TrayHost {

/// Whether something on this desktop shows status items at this moment. The toolkit asks once and keeps its answer, so
/// it must not be asked before there is one. Main thread.
[[nodiscard]] bool isPresent();

} // namespace TrayHost
