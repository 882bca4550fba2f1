// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Theme
import Brisko.Components

// A category of junk: ticked by a click anywhere, opened by its chevron to show its first files.
ListRow {
    id: root

    required itemId
    required expanded
    required property string name
    required property string symbol
    required property string detail
    required property bool selected
    required property list<string> fileNames
    required property list<string> fileSizes
    required property list<string> filePaths
    required property list<string> fileIds
    required property string more
    signal toggled(string itemId)

    objectName: "junkCategory"
    expandable: true
    hasMenu: false // a category is many folders; its files have one each
    leftPadding: Theme.pagePadding
    rightPadding: Theme.pagePadding
    topPadding: 14
    bottomPadding: 14
    Accessible.name: name
    Accessible.description: detail
    Accessible.selectable: true
    Accessible.selected: selected
    onClicked: toggled(itemId)

    background: CardPiece {
        fill: root.hovered ? Theme.hoverFill : Theme.cardFill
    }
    contentItem: Item {
        implicitHeight: head.height + files.height

        Item {
            id: head
            width: parent.width
            height: 38
            CircleCheck {
                id: check
                objectName: "junkCategoryCheck"
                anchors.verticalCenter: parent.verticalCenter
                focusPolicy: Qt.NoFocus
                label: root.name
                checked: root.selected
                onClicked: root.toggled(root.itemId)
            }
            Rectangle {
                id: tile
                anchors { left: check.right; leftMargin: Theme.gridGap; verticalCenter: parent.verticalCenter }
                width: 24
                height: 24
                radius: 7
                color: Theme.surfaceAlt
                SymbolIcon {
                    anchors.centerIn: parent
                    symbol: root.symbol
                    size: 15
                    color: Theme.blue
                }
            }
            Column {
                anchors { left: tile.right; right: chevron.left; leftMargin: 14; rightMargin: Theme.rowGap }
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.textGap
                PlainLabel {
                    width: parent.width
                    text: root.name
                    font: Typo.headline
                    elide: Text.ElideRight
                }
                PlainLabel {
                    width: parent.width
                    text: root.detail
                    color: Theme.textSecondary
                    elide: Text.ElideRight
                }
            }
            ChevronButton {
                id: chevron
                objectName: "junkCategoryChevron"
                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                focusPolicy: Qt.NoFocus
                label: root.expanded ? Texts.fill("Hide files of %@", root.name)
                                     : Texts.fill("Show files of %@", root.name)
                open: root.expanded
                onClicked: root.expandRequested(root.itemId)
            }
        }
        Item {
            id: files
            anchors { left: parent.left; right: parent.right; top: head.bottom; leftMargin: 16 }
            height: root.expanded && lines.item ? lines.implicitHeight : 0
            clip: true
            Behavior on height { NumberAnimation { duration: Theme.gentle; easing.type: Easing.OutQuad } }
            Loader {
                id: lines
                width: parent.width
                active: root.expanded || files.height > 0
                sourceComponent: Column {
                    topPadding: 12
                    spacing: 6
                    Repeater {
                        model: root.fileNames
                        delegate: JunkFileLine {
                            required property int index
                            required property string modelData
                            width: lines.width
                            // The lists change one after the other: for a moment one may be the longer.
                            itemId: root.fileIds[index] ?? ""
                            name: modelData
                            sizeText: root.fileSizes[index] ?? ""
                            path: root.filePaths[index] ?? ""
                            onClicked: root.toggled(root.itemId)
                            onMenuRequested: (itemId, row, x, y) => root.menuRequested(itemId, row, x, y)
                        }
                    }
                    PlainLabel {
                        visible: root.more !== ""
                        text: root.more
                        font: Typo.detail
                        color: Theme.textSecondary
                    }
                }
            }
        }
    }
}
