// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// The bar at the bottom of a page: what is selected, and the buttons that act on it.
GlassCard {
    id: root

    required property string status
    default property alias buttons: row.data

    padding: Theme.cardGap
    implicitHeight: Theme.controlHeight + 2 * padding

    PlainLabel {
        objectName: "pageStatus"
        anchors { left: parent.left; right: row.left; leftMargin: 8; rightMargin: Theme.gridGap }
        anchors.verticalCenter: parent.verticalCenter
        text: root.status
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        elide: Text.ElideRight
    }
    Row {
        id: row
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: Theme.rowGap
    }
}
