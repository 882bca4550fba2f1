// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// Lifts a card by two points while the pointer is over this item's parent, and turns its shadow blue.
Item {
    id: root

    required property GlassCard target
    property bool lifting: true

    readonly property bool hovering: lifting && hover.hovered

    anchors.fill: parent

    HoverHandler { id: hover }
    Translate {
        id: lift
        y: root.hovering ? -2 : 0
        Behavior on y { NumberAnimation { duration: Theme.gentle; easing.type: Easing.OutQuad } }
    }
    Component.onCompleted: {
        target.transform = [lift]
        target.lifted = Qt.binding(() => root.hovering)
    }
}
