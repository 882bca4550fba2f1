// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// The ring around the control that the keyboard is at. Lies over its parent.
Rectangle {
    required property bool shown
    property int gap: 2

    anchors.fill: parent
    anchors.margins: -gap
    visible: shown
    color: "transparent"
    border.color: Theme.focusRing
    border.width: 2
    radius: Theme.controlRadius + gap
}
