// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Theme

// Lies between a modal and what is behind it: takes every click, and shows that blurred. It is drawn once, at a quarter
// of its size, and again only when it looks different: blurring what moves costs more than all the rest.
Item {
    id: root

    required property Item source
    property int corner: Theme.windowRadius
    /// Whether the blurred picture stands in for what is behind, rather than fading over it.
    property bool covering: true
    // How often what is behind came to look different.
    property int version: 0
    // The modal is seen at once; the first blur of a window takes a while to be made ready.
    property bool waited: false
    signal tapped()

    anchors.fill: parent

    Loader {
        id: blurred
        anchors.fill: parent
        active: root.waited && root.GraphicsInfo.api !== GraphicsInfo.Software
                && root.GraphicsInfo.api !== GraphicsInfo.Unknown
        // By its address, so that what it imports is not loaded when the program starts.
        Component.onCompleted: setSource("BlurredPicture.qml", { source: root.source, covering: root.covering })
    }
    Binding {
        target: blurred.item
        property: "covering"
        value: root.covering
        when: blurred.status === Loader.Ready
    }
    Binding {
        target: blurred.item
        property: "version"
        value: root.version
        when: blurred.status === Loader.Ready
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

    Timer {
        interval: 60
        running: true
        onTriggered: root.waited = true
    }

    function retake() { ++version }
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
