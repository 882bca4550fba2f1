// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// Lifts its parent's `target` by two points while the pointer is over it.
Item {
    id: root

    required property Item target
    property bool lifting: true

    readonly property bool hovering: lifting && hover.hovered

    anchors.fill: parent

    HoverHandler { id: hover }
    Translate {
        id: lift
        y: root.hovering ? -2 : 0
        Behavior on y { NumberAnimation { duration: Theme.gentle; easing.type: Easing.OutQuad } }
    }
    Component.onCompleted: target.transform = [lift]
}
