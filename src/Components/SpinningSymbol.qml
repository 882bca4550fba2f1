// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick

// A symbol that turns while something runs. It steps rather than glides: every step draws the whole window.
SymbolIcon {
    id: root

    property bool running: false

    Timer {
        interval: 70
        repeat: true
        running: root.running && root.visible
        onTriggered: root.rotation = (root.rotation + 24) % 360
    }
    onRunningChanged: if (!running) rotation = 0
}
