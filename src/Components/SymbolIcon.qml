// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Painted
import Brisko.Theme

// A symbol by its name, `size` points in the square.
Item {
    id: root

    required property string symbol
    property int size: 16
    property color color: Theme.textPrimary

    readonly property string ligature: Symbols.ligature(symbol)

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Text {
        anchors.centerIn: parent
        visible: root.ligature !== ""
        text: root.ligature
        color: root.color
        font.family: Symbols.family
        font.pixelSize: root.size
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    Loader {
        anchors.fill: parent
        active: root.ligature === ""
        sourceComponent: SymbolDrawing {
            symbol: root.symbol
            color: root.color
            Accessible.ignored: true
        }
    }
}
