// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Window

// Empty background: dragging it moves the window, a double click maximises it.
MouseArea {
    required property GlassWindow window

    acceptedButtons: Qt.LeftButton
    onPressed: mouse => mouse.accepted = true
    onPositionChanged: if (pressed) window.startMove()
    onDoubleClicked: window.toggleZoom()
    Accessible.ignored: true
}
