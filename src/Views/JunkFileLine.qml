// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme
import Brisko.Components

// One file of an opened junk category.
ListRow {
    id: root

    required itemId
    required property string name
    required property string sizeText
    required property string path

    objectName: "junkFile"
    padding: 0
    corner: 6
    focusPolicy: Qt.TabFocus
    Accessible.name: name
    Accessible.description: sizeText + ", " + path

    contentItem: Item {
        implicitHeight: label.implicitHeight
        PlainLabel {
            id: label
            anchors { left: parent.left; right: size.left; rightMargin: Theme.gridGap }
            text: root.name
            font: Typo.detail
            elide: Text.ElideMiddle
            Accessible.ignored: true
            HelpTip { text: root.path }
        }
        PlainLabel {
            id: size
            anchors.right: parent.right
            text: root.sizeText
            font: Typo.detail
            color: Theme.textSecondary
            Accessible.ignored: true
        }
    }
}
