// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Places;

/// The settings file, as window and command line know it.
namespace SettingsFile {

/// Where it lies, in the local encoding.
[[nodiscard]] QString path(const Places &places);
/// What people are told when it was damaged: where the damaged one is kept.
[[nodiscard]] QString damageNotice(const QString &brokenCopy);

} // namespace SettingsFile
