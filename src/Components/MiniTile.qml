// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// A compact tile that leads to a page.
T.AbstractButton {
    id: root

    required property string title
    required property string value
    required property string symbol
    property color firstColor: Theme.blue
    property color lastColor: Theme.violet

    implicitHeight: 56
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    scale: hovered && !Theme.reducedMotion ? 1.02 : 1
    Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }

    Accessible.role: Accessible.Button
    Accessible.name: title
    Accessible.description: value
    Accessible.readOnly: !enabled
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Rectangle {
        radius: 8
        color: Theme.cardFill
        border.width: 1
        border.color: Theme.glassEdge
        Rectangle {
            anchors.fill: parent
            radius: 8
            color: Theme.at(root.firstColor, root.hovered ? 0.1 : 0)
            Behavior on color { ColorAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
        }
        GradientSquare {
            id: square
            anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
            width: 26
            height: 26
            firstColor: root.firstColor
            lastColor: root.lastColor
            symbol: root.symbol
            symbolSize: 11
            scale: root.hovered && !Theme.reducedMotion ? 1.08 : 1
            Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
        }
        Column {
            anchors { left: square.right; right: parent.right; leftMargin: 10; rightMargin: 10 }
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2
            Text {
                width: parent.width
                text: root.title
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 9
                color: Theme.textPrimary
                font: Typo.smallMedium
                elide: Text.ElideRight
                textFormat: Text.PlainText
                Accessible.ignored: true
            }
            Text {
                width: parent.width
                text: root.value
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 9
                color: Theme.textSecondary
                font: Typo.detail
                elide: Text.ElideRight
                textFormat: Text.PlainText
                Accessible.ignored: true
            }
        }
    }
    FocusRing {
        shown: root.visualFocus
        radius: 8 + gap
    }
}
