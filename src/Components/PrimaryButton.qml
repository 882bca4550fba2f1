// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A secondary action: quiet, with an edge; blue under the pointer.
ButtonBase {
    id: control

    readonly property bool warm: enabled && hovered

    labelColor: warm ? Theme.blue : Theme.textPrimary
    opacity: enabled ? 1 : 0.45

    background: Rectangle {
        radius: control.corner
        color: control.down ? Theme.hoverFill : Theme.surfaceAlt
        border.width: 1
        border.color: control.warm ? Theme.blue : Theme.border
        Behavior on border.color { ColorAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
    }
}
