// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme
import Brisko.Components

// A large file: its name over its folder, its size and its date.
ListRow {
    id: root

    required itemId
    required property string name
    required property string folder
    required property string path
    required property string sizeText
    required property string dateText
    required property bool selected
    signal toggled(string itemId)

    objectName: "largeFile"
    leftPadding: Theme.pagePadding
    rightPadding: Theme.pagePadding
    Accessible.name: name
    Accessible.description: sizeText + ", " + dateText + ", " + path
    Accessible.selectable: true
    Accessible.selected: selected
    onClicked: toggled(itemId)

    background: CardPiece {
        fill: root.hovered ? Theme.hoverFill : Theme.cardFill
    }
    contentItem: Item {
        implicitHeight: 36

        CircleCheck {
            id: check
            objectName: "largeFileCheck"
            anchors.verticalCenter: parent.verticalCenter
            focusPolicy: Qt.NoFocus
            label: root.name
            checked: root.selected
            onClicked: root.toggled(root.itemId)
        }
        Column {
            id: names
            anchors { left: check.right; right: size.left; leftMargin: Theme.gridGap; rightMargin: Theme.gridGap }
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.textGap
            PlainLabel {
                width: parent.width
                text: root.name
                font: Typo.rowTitle
                elide: Text.ElideMiddle
            }
            PlainLabel {
                width: parent.width
                text: root.folder
                font: Typo.tiny
                color: Theme.textSecondary
                elide: Text.ElideMiddle
            }
        }
        HelpTip {
            anchors.fill: names
            text: root.path
        }
        PlainLabel {
            id: size
            anchors { right: date.left; verticalCenter: parent.verticalCenter }
            width: 90
            text: root.sizeText
            font: Typo.rowTitle
            horizontalAlignment: Text.AlignRight
        }
        PlainLabel {
            id: date
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            width: 106
            text: root.dateText
            font: Typo.detail
            color: Theme.textSecondary
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideRight
        }
    }
}
