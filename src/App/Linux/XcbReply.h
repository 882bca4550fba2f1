// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QGuiApplication>
#include <QtGui/qguiapplication_platform.h>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

/// What the X server answers is the asker's to free.
struct XcbFree {
    void operator()(void *reply) const { std::free(reply); } // NOLINT: allocated with malloc by the library
};
template <typename Reply>
using XcbReply = std::unique_ptr<Reply, XcbFree>;

/// The connection to the X server; null on every other display.
inline xcb_connection_t *xcbConnection()
{
    // Platforms that merely know X answer an interface too, without a connection.
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

/// Whether any client owns the selection of this name.
inline bool hasSelectionOwner(xcb_connection_t *connection, const QByteArray &name)
{
    const XcbReply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.constData()), nullptr));
    if (!atom)
        return false;
    const XcbReply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_NONE;
}
