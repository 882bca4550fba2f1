// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Components
import Brisko.Theme

// A page in the sidebar.
T.TabButton {
    id: control

    required property int page
    required property string title
    required property string symbol
    required property bool current
    signal neighbourRequested(step: int)

    property bool appeared: false

    implicitHeight: 38
    font: Typo.prominent
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    checkable: false
    objectName: "page" + page
    opacity: appeared ? 1 : 0
    transform: Translate {
        x: control.appeared ? 0 : -14
        Behavior on x { EntranceAnimation { } }
    }
    Behavior on opacity { EntranceAnimation { } }
    Component.onCompleted: appeared = true

    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: current
    Accessible.readOnly: !enabled
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onUpPressed: neighbourRequested(-1)
    Keys.onDownPressed: neighbourRequested(1)

    background: Item {
        CardShadow {
            visible: control.current
            color: Theme.at(Theme.blue, 0.35)
            radius: height / 2
            blur: 8
            drop: 2
        }
        Rectangle {
            anchors.fill: parent
            radius: height / 2
            visible: control.current
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: Theme.blue }
                GradientStop { position: 1; color: Theme.violet }
            }
        }
        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: Theme.at(Theme.hoverFill, control.hovered && !control.current ? 0.55 : 0)
            Behavior on color { ColorAnimation { duration: Theme.hover; easing.type: Easing.OutQuad } }
        }
    }
    contentItem: Item {
        Item {
            id: symbolColumn
            anchors { left: parent.left; leftMargin: 14; verticalCenter: parent.verticalCenter }
            width: 22
            height: 22
            SymbolIcon {
                anchors.centerIn: parent
                symbol: control.symbol
                size: 17
                color: control.current ? Theme.onAccent : Theme.textSecondary
            }
        }
        Text {
            anchors { left: symbolColumn.right; right: parent.right; leftMargin: 10; rightMargin: 14 }
            anchors.verticalCenter: parent.verticalCenter
            text: control.text
            font: control.font
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            color: control.current ? Theme.onAccent : Theme.textPrimary
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
    }
    FocusRing {
        shown: control.visualFocus
        radius: height / 2
    }

    component EntranceAnimation: SequentialAnimation {
        PauseAnimation { duration: Theme.reducedMotion ? 0 : 100 }
        NumberAnimation { duration: Theme.entrance; easing.type: Easing.OutQuad }
    }
}
