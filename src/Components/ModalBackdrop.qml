// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Qt5Compat.GraphicalEffects
import Brisko.Theme

// Lies between a modal and what is behind it: takes every click, and shows that blurred. It is drawn once, at a quarter
// of its size, and again only when it looks different: blurring what moves costs more than all the rest.
Item {
    id: root

    required property Item source
    property int corner: Theme.windowRadius
    /// Whether the blurred picture stands in for what is behind, rather than fading over it.
    property bool covering: true
    signal tapped()

    anchors.fill: parent

    Loader {
        id: blurred
        anchors.fill: parent
        active: root.GraphicsInfo.api !== GraphicsInfo.Software && root.GraphicsInfo.api !== GraphicsInfo.Unknown
        sourceComponent: Item {
            property alias snapshot: picture
            ShaderEffectSource {
                id: picture
                width: root.width
                height: root.height
                visible: false
                sourceItem: root.source
                live: false
                hideSource: root.covering
                textureSize: Qt.size(Math.max(1, Math.ceil(root.width / 4)), Math.max(1, Math.ceil(root.height / 4)))
            }
            FastBlur {
                anchors.fill: parent
                source: picture
                radius: 40
                cached: true
            }
        }
    }
    Rectangle {
        anchors.fill: parent
        radius: root.corner
        color: Theme.at(Theme.backgroundBottom, blurred.active ? 0.45 : 0.72)
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onClicked: root.tapped()
        onWheel: wheel => wheel.accepted = true
    }

    function retake() {
        const picture = blurred.item
        if (picture)
            picture.snapshot.scheduleUpdate()
    }
    onWidthChanged: retake()
    onHeightChanged: retake()
    Connections {
        target: Theme
        function onDarkChanged() { root.retake() }
    }
    Connections {
        target: Texts
        function onChanged() { root.retake() }
    }
}
