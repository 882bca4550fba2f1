// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QString>

enum class StartupType { launchAgent, launchDaemon, loginItem };

/// The type's documented English name, which is also its lookup key.
[[nodiscard]] QString rawValue(StartupType type);

/// Something that starts with the session or the machine. Identity is `path`, its definition file.
struct StartupItem {
    QString name; // the file's name, extension included
    FileURL path;
    StartupType type = StartupType::launchAgent;
    bool isEnabled = true;
    bool isUserLevel = false; // only such items can be switched or removed
    friend bool operator==(const StartupItem &, const StartupItem &) = default;
};
