// SPDX-License-Identifier: MIT
#include "App/Compositing.h"

#include "App/Linux/XcbReply.h"

bool Compositing::isActive()
{
    xcb_connection_t *connection = xcbConnection();
    // Every other display of this system composites always.
    return !connection || hasSelectionOwner(connection, "_NET_WM_CM_S0");
}
