// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme
import Brisko.Components

// Something that starts with the session or the machine; Space switches it, Delete asks to remove it.
ListRow {
    id: root

    required itemId
    required property string name
    required property string typeLabel
    required property string path
    required property bool switchedOn
    required property string toggleText
    required property bool canToggle
    required property bool canRemove
    required property string toggleTip
    required property string removeTip
    signal toggled(string itemId)
    signal removeRequested(string itemId)

    objectName: "startupItem"
    padding: 14
    Accessible.name: name
    Accessible.description: typeLabel + ", " + (switchedOn ? Texts.of("Enabled") : Texts.of("Disabled")) + ", " + path
    Keys.onSpacePressed: if (canToggle) toggled(itemId)
    Keys.onDeletePressed: if (canRemove) removeRequested(itemId)

    background: CardPiece {
        fill: root.hovered ? Theme.hoverFill : Theme.cardFill
    }
    contentItem: Item {
        implicitHeight: 40

        SymbolIcon {
            id: status
            anchors { left: parent.left; leftMargin: 4; verticalCenter: parent.verticalCenter }
            symbol: "power.circle"
            size: 15
            color: root.switchedOn ? Theme.emerald : Theme.textSecondary
        }
        Column {
            id: names
            anchors { left: status.right; leftMargin: 14; right: toggleBox.left; rightMargin: Theme.gridGap }
            anchors.verticalCenter: parent.verticalCenter
            spacing: 5
            PlainLabel {
                width: Math.min(implicitWidth, names.width)
                text: root.name
                font: Typo.rowTitle
                elide: Text.ElideMiddle
                HelpTip { text: root.path }
            }
            Badge {
                text: root.typeLabel
                leftPadding: 6
                rightPadding: 6
                topPadding: 2
                bottomPadding: 2
            }
        }
        // The tips lie around the buttons: a disabled button takes no hover.
        Item {
            id: toggleBox
            anchors { right: removeBox.left; rightMargin: Theme.rowGap; verticalCenter: parent.verticalCenter }
            width: toggle.implicitWidth
            height: toggle.implicitHeight
            SmallButton {
                id: toggle
                objectName: "toggleStartupItem"
                text: root.toggleText
                enabled: root.canToggle
                Accessible.name: root.toggleText + " " + root.name
                Accessible.description: root.toggleTip
                onClicked: root.toggled(root.itemId)
            }
            HelpTip { text: root.toggleTip }
        }
        Item {
            id: removeBox
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            width: remove.implicitWidth
            height: remove.implicitHeight
            SmallButton {
                id: remove
                objectName: "removeStartupItem"
                symbol: "trash"
                leftPadding: 7
                rightPadding: 7
                labelColor: Theme.textSecondary
                enabled: root.canRemove
                Accessible.name: Texts.fill("Remove %@", root.name)
                Accessible.description: root.removeTip
                onClicked: root.removeRequested(root.itemId)
            }
            HelpTip { text: root.removeTip }
        }
    }
}
