// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme
import Brisko.Components

// One of several identical files.
Item {
    id: root

    required property string name
    required property string path
    required property string detail
    required property bool original
    required property bool selected
    required property bool selectable
    signal toggled()

    implicitHeight: 26

    Item {
        id: box
        anchors { left: parent.left; leftMargin: 16; verticalCenter: parent.verticalCenter }
        width: check.implicitWidth
        height: check.implicitHeight
        CircleCheck {
            id: check
            objectName: "duplicateFileCheck"
            anchors.fill: parent
            focusPolicy: Qt.NoFocus
            label: root.name
            checked: root.selected
            enabled: root.selectable
            Accessible.description: root.selectable ? root.path : Texts.of("At least one copy is kept")
            onClicked: root.toggled()
        }
        // Over the check, which keeps the pointer to itself even where it is disabled.
        HelpTip { text: root.selectable ? "" : Texts.of("At least one copy is kept") }
    }
    PlainLabel {
        id: path
        anchors { left: box.right; leftMargin: Theme.cardGap; verticalCenter: parent.verticalCenter }
        width: Math.min(implicitWidth, root.width - x - info.width - Theme.gridGap
                                       - (badge.visible ? badge.width + 8 : 0))
        text: root.path
        elide: Text.ElideMiddle
        HelpTip { text: root.path }
    }
    Badge {
        id: badge
        anchors { left: path.right; leftMargin: 8; verticalCenter: parent.verticalCenter }
        visible: root.original
        text: Texts.of("Original")
    }
    PlainLabel {
        id: info
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        text: root.detail
        font: Typo.detail
        color: Theme.textSecondary
    }
}
