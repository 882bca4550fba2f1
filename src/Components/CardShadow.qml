// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Painted
import Brisko.Theme

// The soft shadow around a rounded rectangle; its inside stays clear. Lies under its parent's fill.
Item {
    id: root

    property color color: Theme.cardShadow
    property int radius: Theme.cardRadius
    property int blur: 22
    property int drop: 5

    anchors.fill: parent

    Image {
        id: picture
        readonly property string rgb: root.color.toString().slice(-6)
        visible: false
        source: "image://shadow/" + rgb + "-" + Math.round(root.color.a * 100) + "-" + root.radius + "-" + root.blur
                + "-" + root.drop
        onStatusChanged: frame.update()
        onSourceChanged: frame.update()
    }
    ShadowFrame {
        id: frame
        anchors.fill: parent
        anchors.margins: -root.blur
        picture: picture
        corner: root.radius + 2 * root.blur
        depth: root.blur + 2
    }
}
