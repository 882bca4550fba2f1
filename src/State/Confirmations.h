// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Duplicates.h"
#include "Models/InstalledApp.h"
#include "Models/Junk.h"
#include "Models/LargeFile.h"
#include "Models/Notices.h"
#include "Models/StartupItem.h"

#include <QList>

/// What is asked before anything is removed, by the pages and by the command line alike: texts in the interface
/// language, from the very list that will be removed. The action is the caller's to add. Lists are not empty.
namespace Confirmations {

[[nodiscard]] ConfirmData cleanJunk(const QList<JunkCategory> &categories);
[[nodiscard]] ConfirmData removeLargeFiles(const QList<LargeFile> &files);
[[nodiscard]] ConfirmData removeDuplicates(const QList<DuplicateFile> &files);
[[nodiscard]] ConfirmData uninstall(const QList<InstalledApp> &apps);
[[nodiscard]] ConfirmData removeStartupItem(const StartupItem &item);

/// The name under which a startup item is shown: without ".plist".
[[nodiscard]] QString displayName(const StartupItem &item);

} // namespace Confirmations
