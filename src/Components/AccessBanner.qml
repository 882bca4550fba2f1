// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// Says that parts of the disk stay unseen until the user grants access, and leads to where that is done.
GlassCard {
    id: root

    required property string text
    signal openRequested()

    implicitHeight: Math.max(texts.implicitHeight, button.implicitHeight) + 2 * padding

    SymbolIcon {
        id: icon
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        symbol: "lock.shield.fill"
        size: 18
        color: Theme.amber
    }
    Column {
        id: texts
        anchors { left: icon.right; right: button.left; leftMargin: Theme.cardGap; rightMargin: Theme.gridGap }
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.textGap
        PlainLabel {
            width: parent.width
            text: Texts.of("Full Disk Access Required")
            font: Typo.rowTitle
            elide: Text.ElideRight
        }
        PlainLabel {
            width: parent.width
            text: root.text
            font: Typo.detail
            color: Theme.textSecondary
            wrapMode: Text.WordWrap
        }
    }
    PrimaryButton {
        id: button
        objectName: "openSystemSettings"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        text: Texts.of("Open System Settings")
        symbol: "gear"
        onClicked: root.openRequested()
    }
}
