// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// Opens and closes what it stands beside: points right, and down while that is open. `label` is what it is called.
ButtonBase {
    id: control

    required property string label
    property bool open: false

    Accessible.name: label
    implicitWidth: 26
    implicitHeight: 26
    leftPadding: 0
    rightPadding: 0
    topPadding: 0
    bottomPadding: 0
    corner: 8

    contentItem: Item {
        SymbolIcon {
            anchors.centerIn: parent
            symbol: "chevron.right"
            size: 11
            color: control.hovered ? Theme.blue : Theme.textSecondary
            rotation: control.open ? 90 : 0
            Behavior on rotation { NumberAnimation { duration: Theme.gentle; easing.type: Easing.OutQuad } }
        }
    }
    background: Rectangle {
        radius: control.corner
        color: Theme.at(Theme.blue, control.hovered ? 0.1 : 0)
    }
}
