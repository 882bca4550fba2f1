// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Components
import Brisko.Theme

// One of the title bar's three round buttons.
ButtonBase {
    id: control

    required property string label
    required property color color
    property bool symbolShown: false

    Accessible.name: label
    implicitWidth: 12
    implicitHeight: 12
    leftPadding: 0
    rightPadding: 0
    topPadding: 0
    bottomPadding: 0
    corner: 6
    contentItem: Item {
        SymbolIcon {
            anchors.centerIn: parent
            visible: control.symbolShown || control.visualFocus
            symbol: control.symbol
            size: 8
            color: Theme.at("#000000", 0.6)
        }
    }
    background: Rectangle {
        radius: 6
        color: control.down ? Qt.darker(control.color, 1.2) : control.color
        border.width: 0.5
        border.color: Theme.at("#000000", 0.15)
    }
    HelpTip { text: control.label }
}
