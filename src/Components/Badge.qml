// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A few words in a small capsule.
PlainLabel {
    id: root

    property color tint: Theme.blue

    font: Typo.tiny
    color: Theme.accentText
    leftPadding: 8
    rightPadding: 8
    topPadding: 3
    bottomPadding: 3
    background: Rectangle {
        radius: height / 2
        color: Theme.at(root.tint, Theme.dark ? 0.24 : 0.12)
    }
}
