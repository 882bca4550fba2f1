// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Components
import Brisko.Theme
import Brisko.Window

// Close, minimise and zoom, where the title bar's layout puts them.
Item {
    id: root

    required property GlassWindow window
    required property point origin

    readonly property bool hovering: hover.hovered

    HoverHandler { id: hover; margin: 6 }

    WindowButton {
        objectName: "closeWindow"
        x: root.window.closePosition.x - root.origin.x
        y: root.window.closePosition.y - root.origin.y
        label: Texts.of("Close")
        symbol: "xmark"
        color: "#FF5F57"
        symbolShown: root.hovering
        onClicked: root.window.closeRequested()
    }
    WindowButton {
        objectName: "minimiseWindow"
        x: root.window.minimisePosition.x - root.origin.x
        y: root.window.minimisePosition.y - root.origin.y
        label: Texts.of("Minimize")
        symbol: "minus"
        color: "#FEBC2E"
        symbolShown: root.hovering
        onClicked: root.window.minimise()
    }
    WindowButton {
        objectName: "zoomWindow"
        x: root.window.zoomPosition.x - root.origin.x
        y: root.window.zoomPosition.y - root.origin.y
        label: root.window.maximised ? Texts.of("Restore") : Texts.of("Zoom")
        symbol: "plus"
        color: "#28C840"
        symbolShown: root.hovering
        onClicked: root.window.toggleZoom()
    }
}
