// SPDX-License-Identifier: MIT
#include "App/Compositing.h"

#include "App/Linux/XcbReply.h"

#include <QGuiApplication>
#include <QtGui/qguiapplication_platform.h>

bool Compositing::isActive()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Every other display of this system composites always.
    return !x11 || hasSelectionOwner(x11->connection(), "_NET_WM_CM_S0");
}
