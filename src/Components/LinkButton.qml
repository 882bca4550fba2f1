// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A button that reads like a text.
ButtonBase {
    id: control

    labelColor: enabled ? Theme.accentText : Theme.textSecondary
    font: Typo.prominent
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    leftPadding: 10
    rightPadding: 10
    topPadding: 6
    bottomPadding: 6
    corner: 8
    opacity: enabled ? 1 : 0.4

    background: Rectangle {
        radius: control.corner
        color: Theme.at(Theme.blue, control.enabled && control.hovered ? 0.1 : 0)
        Behavior on color { ColorAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
    }
}
