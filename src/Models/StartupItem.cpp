// SPDX-License-Identifier: MIT
#include "Models/StartupItem.h"

using namespace Qt::StringLiterals;

QString rawValue(StartupType type)
{
    switch (type) {
    case StartupType::launchAgent:
        return u"Launch Agent"_s;
    case StartupType::launchDaemon:
        return u"Launch Daemon"_s;
    case StartupType::loginItem:
        return u"Login Item"_s;
    }
    Q_UNREACHABLE();
}
