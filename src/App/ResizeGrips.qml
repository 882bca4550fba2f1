// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Window

// The window's edges and corners, to be dragged.
Item {
    id: root

    required property GlassWindow window

    readonly property int edge: 8
    readonly property int corner: 16

    component Grip: MouseArea {
        required property int edges
        acceptedButtons: Qt.LeftButton
        Accessible.ignored: true
        onPressed: root.window.startResize(edges)
    }

    Grip {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: root.edge
        edges: Qt.TopEdge
        cursorShape: Qt.SizeVerCursor
    }
    Grip {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: root.edge
        edges: Qt.BottomEdge
        cursorShape: Qt.SizeVerCursor
    }
    Grip {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: root.edge
        edges: Qt.LeftEdge
        cursorShape: Qt.SizeHorCursor
    }
    Grip {
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        width: root.edge
        edges: Qt.RightEdge
        cursorShape: Qt.SizeHorCursor
    }
    Grip {
        anchors { left: parent.left; top: parent.top }
        width: root.corner
        height: root.corner
        edges: Qt.TopEdge | Qt.LeftEdge
        cursorShape: Qt.SizeFDiagCursor
    }
    Grip {
        anchors { right: parent.right; top: parent.top }
        width: root.corner
        height: root.corner
        edges: Qt.TopEdge | Qt.RightEdge
        cursorShape: Qt.SizeBDiagCursor
    }
    Grip {
        anchors { left: parent.left; bottom: parent.bottom }
        width: root.corner
        height: root.corner
        edges: Qt.BottomEdge | Qt.LeftEdge
        cursorShape: Qt.SizeBDiagCursor
    }
    Grip {
        anchors { right: parent.right; bottom: parent.bottom }
        width: root.corner
        height: root.corner
        edges: Qt.BottomEdge | Qt.RightEdge
        cursorShape: Qt.SizeFDiagCursor
    }
}
