// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// The soft shadow around a rounded rectangle; its inside stays clear. Lies under its parent's fill.
Item {
    id: root

    property color color: Theme.cardShadow
    property int radius: Theme.cardRadius
    property int blur: 22
    property int drop: 5

    anchors.fill: parent

    BorderImage {
        readonly property string rgb: root.color.toString().slice(-6)
        readonly property int edge: root.radius + 2 * root.blur

        anchors.fill: parent
        anchors.margins: -root.blur
        source: "image://shadow/" + rgb + "-" + Math.round(root.color.a * 100) + "-" + root.radius + "-" + root.blur
                + "-" + root.drop
        border { left: edge; top: edge; right: edge; bottom: edge }
    }
}
