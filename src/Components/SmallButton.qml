// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A small button within a row or a card's header, on a breath of the accent.
ButtonBase {
    id: control

    font: Typo.smallMedium
    labelColor: Theme.accentText
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    leftPadding: 10
    rightPadding: 10
    topPadding: 5
    bottomPadding: 5
    corner: 7
    opacity: enabled ? 1 : 0.3

    background: Rectangle {
        radius: control.corner
        color: Theme.at(Theme.blue, control.enabled && control.hovered ? 0.2 : 0.1)
        Behavior on color { ColorAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
    }
}
