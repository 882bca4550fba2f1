// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme
import Brisko.Components

// The head of a group of identical files.
Item {
    id: root

    required property string itemId
    required property string name
    required property string path
    required property string detail
    required property bool collapsed
    signal toggleRequested()
    signal keepFirstRequested()

    implicitHeight: 38

    ChevronButton {
        id: chevron
        objectName: "duplicateGroupChevron"
        anchors { left: parent.left; leftMargin: -6; verticalCenter: parent.verticalCenter }
        focusPolicy: Qt.NoFocus
        label: root.collapsed ? Texts.fill("Show files of %@", root.name) : Texts.fill("Hide files of %@", root.name)
        open: !root.collapsed
        onClicked: root.toggleRequested()
    }
    SymbolIcon {
        id: icon
        anchors { left: chevron.right; leftMargin: 6; verticalCenter: parent.verticalCenter }
        symbol: "doc.fill"
        size: 15
        color: Theme.blue
    }
    Column {
        id: names
        anchors { left: icon.right; right: keep.left; leftMargin: Theme.rowGap; rightMargin: Theme.gridGap }
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
            text: root.detail
            font: Typo.detail
            color: Theme.textSecondary
            elide: Text.ElideRight
        }
    }
    HelpTip {
        anchors.fill: names
        text: root.path
    }
    SmallButton {
        id: keep
        objectName: "keepFirst"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        text: Texts.of("Keep First")
        Accessible.description: root.name
        onClicked: root.keepFirstRequested()
    }
}
