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
    property bool translucent: true

    width: content.implicitWidth
    height: content.implicitHeight
    implicitWidth: content.implicitWidth
    implicitHeight: content.implicitHeight
}
