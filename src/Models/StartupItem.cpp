// SPDX-License-Identifier: MIT
#include "Models/StartupItem.h"

#include "Models/TextKey.h"

QString rawValue(StartupType type)
{
    switch (type) {
    case StartupType::launchAgent:
        return textKey(u"Launch Agent").toString();
    case StartupType::launchDaemon:
        return textKey(u"Launch Daemon").toString();
    case StartupType::loginItem:
        return textKey(u"Login Item").toString();
    }
    Q_UNREACHABLE();
}
