// SPDX-License-Identifier: MIT
#pragma once

#include "Models/StartupItem.h"
#include "Platform/Platform.h"

#include <QList>

#include <expected>
#include <system_error>

/// Lists launch agents and daemons and switches or removes the user's own. Nothing here talks to a service manager:
/// what is switched takes effect when the item is next loaded.
namespace StartupScanService {

using ::StartupItem;
using ::StartupType;

/// The errors of this service: domain "StartupScanService"; code 1 is the refusal to remove a system-level item.
[[nodiscard]] const std::error_category &errorCategory();
inline constexpr int kSystemLevelCode = 1;

/// The items of one folder, in listing order; empty when it cannot be listed. Any thread.
[[nodiscard]] QList<StartupItem> scanPlistDirectory(const Platform &platform, const FileURL &folder, StartupType type);
/// All items, sorted by file name in plain string order. Any thread.
[[nodiscard]] QList<StartupItem> scanSync(const Platform &platform);
/// Switches a user-level item and answers whether it is enabled now; a system-level or unreadable one stays as it is.
bool toggleItem(const Platform &platform, const StartupItem &item);
/// Moves a user-level item's file to the Trash; an error for a system-level one.
[[nodiscard]] std::expected<void, std::error_code> removeItem(const Platform &platform, const StartupItem &item);

} // namespace StartupScanService
