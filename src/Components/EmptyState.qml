// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// What a page shows while it has nothing to list: what this is, and what to do. Buttons may follow.
Item {
    id: root

    required property string symbol
    required property string title
    property string hint: ""
    default property alias actions: row.data

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width, 460)
        spacing: Theme.rowGap

        SymbolIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: root.symbol
            size: 40
            color: Theme.textSecondary
            opacity: 0.6
        }
        Column {
            width: parent.width
            spacing: Theme.textGap
            PlainLabel {
                objectName: "emptyTitle"
                width: parent.width
                text: root.title
                font: Typo.headline
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
            }
            PlainLabel {
                objectName: "emptyHint"
                width: parent.width
                visible: root.hint !== ""
                text: root.hint
                color: Theme.textSecondary
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
            }
        }
        Row {
            id: row
            anchors.horizontalCenter: parent.horizontalCenter
            visible: children.length > 0
            spacing: Theme.rowGap
        }
    }
}
