// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme
import Brisko.Components

// A section of the settings: a symbol and a title over what belongs to it.
GlassCard {
    id: root

    required property string symbol
    required property string title
    default property alias rows: column.data

    implicitHeight: column.implicitHeight + 2 * padding

    Column {
        id: column
        width: parent.width
        spacing: Theme.cardGap

        Item {
            width: parent.width
            height: 24
            Rectangle {
                anchors { fill: parent; margins: -4 }
                radius: 8
                color: Theme.at(Theme.hoverFill, hover.hovered ? 0.55 : 0)
                Behavior on color { ColorAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
            }
            HoverHandler { id: hover }
            SymbolIcon {
                id: icon
                anchors { left: parent.left; leftMargin: 2; verticalCenter: parent.verticalCenter }
                symbol: root.symbol
                size: 13
                color: Theme.blue
            }
            Heading {
                anchors { left: icon.right; leftMargin: 8; right: parent.right; verticalCenter: parent.verticalCenter }
                text: root.title
                font: Typo.headline
                elide: Text.ElideRight
            }
        }
    }
}
