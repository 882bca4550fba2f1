// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Theme
import Brisko.Components

// One row of a group of identical files: its head or one of its files. The rows of a group follow each other and look
// like one card.
ListRow {
    id: root

    required itemId
    required property int index
    required property bool isHead
    required property string name
    required property string path
    required property string detail
    required property bool original
    required property bool last
    required property bool collapsed
    required property bool selected
    required property bool selectable
    signal toggled(string itemId)
    signal keepFirstRequested(string itemId)

    readonly property int gap: isHead && index > 0 ? Theme.cardGap : 0

    objectName: isHead ? "duplicateGroup" : "duplicateFile"
    expandable: isHead
    hasMenu: !isHead
    expanded: isHead && !collapsed
    corner: isHead && last ? Theme.cardRadius : 8
    leftPadding: Theme.pagePadding
    rightPadding: Theme.pagePadding
    topInset: gap
    topPadding: (isHead ? 10 : 5) + gap
    bottomPadding: isHead ? 10 : last ? 12 : 5
    Accessible.name: name
    Accessible.description: isHead ? detail : detail + ", " + path
    Accessible.selectable: !isHead
    Accessible.selected: selected
    onClicked: if (isHead) expandRequested(itemId); else toggled(itemId)

    background: CardPiece {
        first: root.isHead
        last: root.last
    }
    contentItem: Loader {
        sourceComponent: root.isHead ? head : file
    }

    Component {
        id: head
        DuplicateGroupHead {
            itemId: root.itemId
            name: root.name
            path: root.path
            detail: root.detail
            collapsed: root.collapsed
            onToggleRequested: root.expandRequested(root.itemId)
            onKeepFirstRequested: root.keepFirstRequested(root.itemId)
        }
    }
    Component {
        id: file
        DuplicateFileRow {
            name: root.name
            path: root.path
            detail: root.detail
            original: root.original
            selected: root.selected
            selectable: root.selectable
            onToggled: root.toggled(root.itemId)
        }
    }
}
