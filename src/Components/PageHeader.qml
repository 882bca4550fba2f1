// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// The top of a page: its title over one line that says how things stand; buttons at the right.
Item {
    id: root

    required property string title
    property string subtitle: ""
    default property alias trailing: row.data

    implicitHeight: Math.max(texts.implicitHeight, row.implicitHeight)

    Column {
        id: texts
        anchors { left: parent.left; right: row.left; verticalCenter: parent.verticalCenter }
        anchors.rightMargin: row.width > 0 ? Theme.gridGap : 0
        spacing: Theme.textGap
        Heading {
            objectName: "pageTitle"
            width: parent.width
            text: root.title
            elide: Text.ElideRight
        }
        PlainLabel {
            objectName: "pageSubtitle"
            width: parent.width
            text: root.subtitle
            color: Theme.textSecondary
            elide: Text.ElideMiddle
        }
    }
    Row {
        id: row
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: Theme.rowGap
    }
}
