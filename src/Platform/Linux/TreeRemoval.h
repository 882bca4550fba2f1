// SPDX-License-Identifier: MIT
#pragma once

#include "Support/CancelToken.h"

#include <QByteArray>

#include <expected>
#include <system_error>

/// Deletes by directory descriptors: never through a link, never beyond the mount that the entry lies on, to any
/// depth, with a bounded number of descriptors and without recursion.
namespace TreeRemoval {

/// Deletes one entry of an open folder, a folder with all below it. Ends at the first error, with what was deleted by
/// then gone; ends with `operation_canceled` between two entries once `cancel` is cancelled. Permissions are not
/// changed to make a deletion possible. Any thread.
[[nodiscard]] std::error_code remove(int folder, const QByteArray &name, const CancelToken &cancel);

} // namespace TreeRemoval
