// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme
import Brisko.Components

// The folders that a page searches, in one line of chips.
Item {
    id: root

    property alias folders: chips.model
    required property bool hasFolders
    signal removeRequested(string itemId)

    implicitHeight: 32

    PlainLabel {
        id: label
        objectName: "foldersLabel"
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        text: root.hasFolders ? Texts.of("Folders:") : Texts.of("Add folders to scan")
        color: Theme.textSecondary
    }
    SingleLineScroll {
        id: line
        anchors { left: label.right; right: parent.right; leftMargin: Theme.rowGap; verticalCenter: parent.verticalCenter }
        height: 32
        visible: root.hasFolders
        Repeater {
            id: chips
            delegate: FolderChip {
                required property string itemId
                onRemoveRequested: root.removeRequested(itemId)
                onFocusedChanged: if (focused) line.show(this)
            }
        }
    }
}
