// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// The one prominent button of a page or modal: white on a gradient, in a shadow of blue.
ButtonBase {
    id: control

    property color firstColor: Theme.blue
    property color lastColor: Theme.violet
    property bool busy: false

    labelColor: Theme.onAccent
    font: Typo.button
    symbol: ""
    symbolSize: 13
    turning: busy
    opacity: enabled || busy ? 1 : 0.45
    scale: pressed && !Theme.reducedMotion ? 0.97 : 1
    Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
    Behavior on opacity { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }

    background: Item {
        CardShadow {
            radius: control.corner
            color: Theme.at(Theme.blue, control.enabled && control.hovered ? 0.5 : 0.28)
            blur: 10
            drop: 3
            visible: control.enabled
        }
        Rectangle {
            anchors.fill: parent
            radius: control.corner
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: control.firstColor }
                GradientStop { position: 1; color: control.lastColor }
            }
        }
    }
}
