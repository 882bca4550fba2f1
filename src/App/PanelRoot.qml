// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Components
import Brisko.Pages
import Brisko.Theme
import Brisko.Views

// The status area's panel: glass like the window's, and the figures in small.
Item {
    id: root

    required property PanelModel panel
    /// Whether what lies behind the window shows through.
    property bool translucent: true

    width: content.implicitWidth
    height: content.implicitHeight

    VisualEffectBackground {
        anchors.fill: parent
        density: root.translucent ? Theme.panelDensity : 1
    }
    Rectangle {
        anchors.fill: parent
        radius: Theme.windowRadius
        border.width: 1
        border.color: Theme.glassEdge
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.windowTintTop }
            GradientStop { position: 1; color: Theme.windowTintBottom }
        }
    }
    MenuBarPanel {
        id: content
        anchors.fill: parent
        panel: root.panel
    }
}
