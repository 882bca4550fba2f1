// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// Stands in for the blur behind a window where the desktop has none: a fill dense enough to read on.
Rectangle {
    property int cornerRadius: Theme.windowRadius
    property real density: Theme.glassDensity

    color: Theme.at(Theme.backgroundBottom, density)
    radius: cornerRadius
}
