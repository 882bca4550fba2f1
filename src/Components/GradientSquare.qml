// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A rounded square of a gradient that carries a white symbol.
Rectangle {
    id: root

    required property string symbol
    property int symbolSize: 16
    property color firstColor: Theme.blue
    property color lastColor: Theme.violet

    radius: width * 0.26
    gradient: Gradient {
        orientation: Gradient.Horizontal
        GradientStop { position: 0; color: root.firstColor }
        GradientStop { position: 1; color: root.lastColor }
    }
    SymbolIcon {
        anchors.centerIn: parent
        symbol: root.symbol
        size: root.symbolSize
        color: Theme.onAccent
    }
}
