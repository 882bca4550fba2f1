// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A translucent card with an edge of light and a soft shadow; pads what it holds. Its size is its user's affair.
Item {
    id: root

    default property alias content: holder.data
    property int radius: Theme.cardRadius
    property int padding: Theme.pagePadding
    property color fill: Theme.cardFill
    property bool lifted: false

    CardShadow {
        radius: root.radius
        opacity: root.lifted ? 0 : 1
        visible: opacity > 0
        Behavior on opacity { NumberAnimation { duration: Theme.gentle; easing.type: Easing.OutQuad } }
    }
    CardShadow {
        radius: root.radius
        color: Theme.hoverShadow
        opacity: root.lifted ? 1 : 0
        visible: opacity > 0
        Behavior on opacity { NumberAnimation { duration: Theme.gentle; easing.type: Easing.OutQuad } }
    }
    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: root.fill
        border.color: Theme.glassEdge
        border.width: 1
        Behavior on color { ColorAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
    }
    Item {
        id: holder
        anchors.fill: parent
        anchors.margins: root.padding
    }
}
