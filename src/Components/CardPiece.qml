// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// The background of one row of a card that several rows of a list make up: its top, its middle, its bottom, or all of
// it. A long list stays virtual, and still looks like cards.
Item {
    id: root

    property bool first: true
    property bool last: true
    property int radius: Theme.cardRadius
    property color fill: Theme.cardFill

    readonly property int reach: 32 // how far the shadow spreads

    Item {
        anchors.fill: parent
        anchors { leftMargin: -root.reach; rightMargin: -root.reach }
        anchors { topMargin: root.first ? -root.reach : 0; bottomMargin: root.last ? -root.reach : 0 }
        clip: true

        Item {
            // The whole card's outline, as seen from this row: it runs on behind the edge where it is cut.
            anchors.fill: parent
            anchors { leftMargin: root.reach; rightMargin: root.reach }
            anchors { topMargin: root.first ? root.reach : -2 * root.reach }
            anchors { bottomMargin: root.last ? root.reach : -2 * root.reach }

            CardShadow { radius: root.radius }
            Rectangle {
                anchors.fill: parent
                radius: root.radius
                color: root.fill
                border.color: Theme.glassEdge
                border.width: 1
                Behavior on color { ColorAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
            }
        }
    }
}
