// SPDX-License-Identifier: MIT
#include "App/Display.h"

#include <QByteArray>

#include <sys/stat.h>
#include <xcb/xcb.h>

namespace {

bool reachesX()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

bool hasWaylandSocket()
{
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    if (name.isEmpty())
        return false;
    const QByteArray path = name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name;
    struct stat status {
    };
    return ::stat(path.constData(), &status) == 0 && S_ISSOCK(status.st_mode);
}

} // namespace

bool Display::isReachable()
{
    // Whoever names the toolkit's platform knows why.
    return !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || hasWaylandSocket() || reachesX();
}
