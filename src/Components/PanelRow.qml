// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// A full-width row of the panel.
T.Button {
    id: control

    required property string symbol
    property bool leadsOn: false

    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    leftPadding: 12
    rightPadding: 12
    topPadding: 9
    bottomPadding: 9
    font: Typo.detail
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    scale: hovered && !Theme.reducedMotion ? 1.02 : 1
    Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }

    Accessible.name: text
    Accessible.readOnly: !enabled
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        implicitHeight: label.implicitHeight
        SymbolIcon {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            symbol: control.symbol
            size: 11
            color: Theme.textSecondary
        }
        Text {
            id: label
            anchors { left: icon.right; leftMargin: 10; right: parent.right; rightMargin: 20 }
            anchors.verticalCenter: parent.verticalCenter
            text: control.text
            color: Theme.textPrimary
            font: control.font
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
        SymbolIcon {
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: control.leadsOn
            symbol: "chevron.right"
            size: 10
            color: Theme.textSecondary
        }
    }
    background: Rectangle {
        radius: 8
        color: Theme.at(Theme.blue, control.hovered || control.down ? 0.1 : 0)
        Behavior on color { ColorAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
    }
    FocusRing {
        shown: control.visualFocus
        gap: 0
        radius: 8
    }
}
