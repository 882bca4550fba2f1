// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme
import Brisko.Components

// A file or folder that belongs to an application: where it is, and how large.
ListRow {
    id: root

    required itemId
    required property string path
    required property string sizeText
    required property string symbol

    objectName: "relatedFile"
    padding: 0
    corner: 6
    focusPolicy: Qt.TabFocus
    Accessible.name: path
    Accessible.description: sizeText

    contentItem: Item {
        implicitHeight: label.implicitHeight
        PlainLabel {
            id: label
            anchors { left: parent.left; right: lock.left; rightMargin: Theme.gridGap }
            text: root.path
            font: Typo.detail
            color: Theme.textSecondary
            elide: Text.ElideMiddle
            Accessible.ignored: true
            HelpTip { text: root.path }
        }
        SymbolIcon {
            id: lock
            anchors { right: size.left; rightMargin: 6; verticalCenter: parent.verticalCenter }
            visible: root.symbol !== ""
            symbol: root.symbol
            size: 11
            color: Theme.amber
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
