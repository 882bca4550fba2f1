// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Theme
import Brisko.Components

// An application: ticked by a click anywhere, opened by its chevron to show what it has left in the Library.
ListRow {
    id: root

    required itemId
    required expanded
    required property string name
    required property string version
    required property string path
    required property string iconSource
    required property bool unused
    required property string sizeText
    required property string summary
    required property bool selected
    required property list<string> fileIds
    required property list<string> filePaths
    required property list<string> fileSizes
    required property list<string> fileSymbols
    required property string emptyText
    signal toggled(string itemId)

    readonly property int indent: 68

    objectName: "app"
    expandable: true
    padding: 14
    Accessible.name: name
    Accessible.description: (unused ? Texts.of("Unused") + ", " : "") + sizeText + ", " + path
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
            height: 44
            CircleCheck {
                id: check
                objectName: "appCheck"
                anchors.verticalCenter: parent.verticalCenter
                focusPolicy: Qt.NoFocus
                label: root.name
                checked: root.selected
                onClicked: root.toggled(root.itemId)
            }
            AppIcon {
                id: icon
                anchors { left: check.right; leftMargin: 14; verticalCenter: parent.verticalCenter }
                source: root.iconSource
                size: 44
            }
            Column {
                anchors { left: icon.right; leftMargin: 14; right: size.left; rightMargin: Theme.gridGap }
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.textGap
                Row {
                    id: line
                    width: parent.width
                    spacing: 8
                    PlainLabel {
                        anchors.verticalCenter: parent.verticalCenter
                        width: Math.min(implicitWidth, line.width - edition.width - badge.width - 2 * line.spacing)
                        text: root.name
                        font: Typo.rowTitle
                        elide: Text.ElideMiddle
                        HelpTip { text: root.path }
                    }
                    PlainLabel {
                        id: edition
                        anchors.verticalCenter: parent.verticalCenter
                        width: Math.min(implicitWidth, 110)
                        text: root.version
                        font: Typo.detail
                        color: Theme.textSecondary
                        elide: Text.ElideRight
                    }
                    Badge {
                        id: badge
                        anchors.verticalCenter: parent.verticalCenter
                        width: root.unused ? implicitWidth : 0
                        visible: root.unused
                        text: Texts.of("Unused")
                        tint: Theme.amber
                        color: Theme.dark ? Theme.amber : Theme.textPrimary
                    }
                }
                PlainLabel {
                    width: parent.width
                    text: root.summary
                    font: Typo.detail
                    color: Theme.textSecondary
                    elide: Text.ElideRight
                }
            }
            PlainLabel {
                id: size
                anchors { right: chevron.left; rightMargin: Theme.rowGap; verticalCenter: parent.verticalCenter }
                text: root.sizeText
                font: Typo.rowTitle
                horizontalAlignment: Text.AlignRight
            }
            ChevronButton {
                id: chevron
                objectName: "appChevron"
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
            anchors { left: parent.left; right: parent.right; top: head.bottom }
            anchors { leftMargin: root.indent; rightMargin: chevron.width + Theme.rowGap }
            height: root.expanded && lines.item ? lines.implicitHeight : 0
            clip: true
            Behavior on height { NumberAnimation { duration: Theme.gentle; easing.type: Easing.OutQuad } }
            Loader {
                id: lines
                width: parent.width
                active: root.expanded || files.height > 0
                sourceComponent: Column {
                    topPadding: 12
                    bottomPadding: 2
                    spacing: 8
                    PlainLabel {
                        visible: root.filePaths.length === 0
                        text: root.emptyText
                        font: Typo.detail
                        color: Theme.textSecondary
                    }
                    Repeater {
                        model: root.filePaths
                        delegate: RelatedFileLine {
                            required property int index
                            required property string modelData
                            width: lines.width
                            // The lists change one after the other: for a moment one may be the longer.
                            itemId: root.fileIds[index] ?? ""
                            path: modelData
                            sizeText: root.fileSizes[index] ?? ""
                            symbol: root.fileSymbols[index] ?? ""
                            onClicked: root.toggled(root.itemId)
                            onMenuRequested: (itemId, row, x, y) => root.menuRequested(itemId, row, x, y)
                        }
                    }
                }
            }
        }
    }
}
