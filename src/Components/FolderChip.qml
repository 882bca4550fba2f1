// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A folder by its name; with a button that takes it off its list.
Rectangle {
    id: root

    required property string name
    property string path: ""
    property bool removable: true
    signal removeRequested()

    /// Whether the keyboard is at its button.
    readonly property bool focused: remove.activeFocus

    implicitWidth: row.implicitWidth + 16
    implicitHeight: 32
    radius: 9
    color: Theme.surfaceAlt
    border.width: 1
    border.color: Theme.border

    HelpTip { text: root.path } // below the button, which has to feel the pointer
    Row {
        id: row
        anchors { left: parent.left; leftMargin: 8; verticalCenter: parent.verticalCenter }
        spacing: 6
        SymbolIcon {
            anchors.verticalCenter: parent.verticalCenter
            symbol: "folder.fill"
            size: 13
            color: Theme.blue
        }
        PlainLabel {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, 180)
            text: root.name
            font: Typo.detail
            elide: Text.ElideMiddle
            Accessible.description: root.path
        }
        ButtonBase {
            id: remove
            anchors.verticalCenter: parent.verticalCenter
            objectName: "removeFolder"
            visible: root.removable
            implicitWidth: 18
            implicitHeight: 18
            leftPadding: 0
            rightPadding: 0
            topPadding: 0
            bottomPadding: 0
            corner: 9
            symbol: "xmark"
            symbolSize: 9
            labelColor: Theme.textSecondary
            Accessible.name: Texts.fill("Remove folder %@", root.name)
            background: Rectangle {
                radius: 9
                color: Theme.at(Theme.textSecondary, remove.hovered ? 0.12 : 0)
            }
            onClicked: root.removeRequested()
        }
    }
}
