// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A symbol and a few words in a capsule.
Rectangle {
    id: root

    required property string symbol
    required property string text

    implicitWidth: row.implicitWidth + 20
    implicitHeight: row.implicitHeight + 10
    radius: height / 2
    color: Theme.surfaceAlt
    border.width: 1
    border.color: Theme.border

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 5
        SymbolIcon {
            anchors.verticalCenter: parent.verticalCenter
            symbol: root.symbol
            size: 10
            color: Theme.textSecondary
        }
        PlainLabel {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            font: Typo.tiny
        }
    }
}
