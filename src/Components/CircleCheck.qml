// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// A round check box. It shows what it is told: a click only asks, the model answers.
T.CheckBox {
    id: control

    required property string label

    implicitWidth: 22
    implicitHeight: 22
    padding: 0
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    nextCheckState: () => checkState
    opacity: enabled ? 1 : 0.4
    scale: hovered && enabled && !Theme.reducedMotion ? 1.08 : 1
    Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }

    Accessible.name: label
    Accessible.readOnly: !enabled
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: if (enabled) clicked()
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()

    indicator: Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: Theme.surfaceAlt
        border.width: control.checked ? 0 : 1.5
        border.color: control.hovered && control.enabled ? Theme.blue : Theme.checkEdge

        Rectangle {
            anchors.fill: parent
            radius: width / 2
            visible: control.checked
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: Theme.blue }
                GradientStop { position: 1; color: Theme.violet }
            }
            SymbolIcon {
                anchors.centerIn: parent
                symbol: "checkmark"
                size: 12
                color: Theme.onAccent
            }
        }
    }
    FocusRing {
        shown: control.visualFocus
        radius: width / 2
    }
}
