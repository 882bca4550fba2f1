// SPDX-License-Identifier: MIT
#include "App/TrayHost.h"

#include "App/Linux/XcbReply.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace {

/// A desktop that watches for status items and has somebody who draws them.
bool hasHostOnTheBus()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    QDBusMessage call = QDBusMessage::createMethodCall(u"org.kde.StatusNotifierWatcher"_s, u"/StatusNotifierWatcher"_s,
                                                       u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call << u"org.kde.StatusNotifierWatcher"_s << u"IsStatusNotifierHostRegistered"_s;
    call.setAutoStartService(false);
    constexpr int kPatience = 300; // ms; the bus itself answers when there is no watcher
    const QDBusReply<QDBusVariant> answer = bus.call(call, QDBus::Block, kPatience);
    return answer.isValid() && answer.value().variant().toBool();
}

bool hasOlderTray()
{
    xcb_connection_t *connection = xcbConnection();
    return connection && hasSelectionOwner(connection, "_NET_SYSTEM_TRAY_S0");
}

} // namespace

bool TrayHost::isPresent()
{
    return hasHostOnTheBus() || hasOlderTray();
}
