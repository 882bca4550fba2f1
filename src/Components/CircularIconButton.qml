// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A round button with a symbol alone; `label` is what it is called.
ButtonBase {
    id: control

    required property string label
    property int size: 28

    Accessible.name: label
    implicitWidth: size
    implicitHeight: size
    padding: 0
    leftPadding: 0
    rightPadding: 0
    topPadding: 0
    bottomPadding: 0
    corner: size / 2
    labelColor: enabled && hovered ? Theme.blue : Theme.textSecondary
    opacity: enabled ? 1 : 0.3

    background: Rectangle {
        radius: control.corner
        color: Theme.surfaceAlt
        border.width: 1
        border.color: Theme.border
    }
    HelpTip {
        text: control.label
    }
}
