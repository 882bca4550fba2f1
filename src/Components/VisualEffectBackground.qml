// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// Stands in for the blur behind a window where the desktop has none: a fill dense enough to read on, and a tint over it.
// Both are one rectangle: where a processor draws, each that covers the whole window counts.
Rectangle {
    id: root

    property int cornerRadius: Theme.windowRadius
    property real density: Theme.glassDensity
    property color tintTop: "transparent"
    property color tintBottom: "transparent"

    readonly property color glass: Theme.at(Theme.backgroundBottom, density)

    radius: cornerRadius
    gradient: Gradient {
        GradientStop { position: 0; color: Theme.over(root.tintTop, root.glass) }
        GradientStop { position: 1; color: Theme.over(root.tintBottom, root.glass) }
    }
}
