// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A message that comes down from the top for a while.
Item {
    id: root

    required property bool shown
    required property string symbol
    required property int tint
    required property string message
    property int distance: 20
    property real widest: 520
    /// The toast has faded away.
    signal gone()

    property real appeared: 0

    implicitWidth: row.implicitWidth + 36
    implicitHeight: row.implicitHeight + 24
    y: distance - (1 - appeared) * (distance + height / 2)
    opacity: appeared
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message

    Behavior on appeared { NumberAnimation { duration: Theme.hover; easing.type: Easing.OutQuad } }
    Component.onCompleted: appeared = Qt.binding(() => root.shown ? 1 : 0)
    onAppearedChanged: if (appeared === 0 && !shown) gone()

    CardShadow { radius: root.height / 2 }
    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Theme.at(Theme.backgroundBottom, 0.9)
    }
    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Theme.cardFill
        border.width: 1
        border.color: Theme.glassEdge
    }
    Row {
        id: row
        anchors.centerIn: parent
        spacing: 10
        SymbolIcon {
            objectName: "toastSymbol"
            anchors.verticalCenter: parent.verticalCenter
            symbol: root.symbol
            size: 16
            color: Theme.fromHex(root.tint)
        }
        PlainLabel {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, root.widest)
            text: root.message
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
