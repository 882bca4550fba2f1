// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// One of several choices, of which one holds. A click only asks; the model answers.
T.RadioButton {
    id: control

    required property bool chosen

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    leftPadding: 12
    rightPadding: 12
    topPadding: 9
    bottomPadding: 9
    font: Typo.caption
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    autoExclusive: false
    checked: chosen

    Accessible.name: text
    Accessible.readOnly: !enabled
    Accessible.selectable: true
    Accessible.selected: chosen
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: if (enabled) clicked()
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()

    // The template has ticked itself; what holds is the model's to say.
    onClicked: checked = Qt.binding(() => control.chosen)

    contentItem: Item {
        implicitWidth: label.implicitWidth + 22
        implicitHeight: label.implicitHeight
        Text {
            id: label
            anchors { left: parent.left; right: mark.left; rightMargin: 6; verticalCenter: parent.verticalCenter }
            text: control.text
            color: Theme.textPrimary
            font: control.font
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
        SymbolIcon {
            id: mark
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            opacity: control.chosen ? 1 : 0
            symbol: "checkmark"
            size: 12
            color: Theme.accentText
        }
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: control.chosen ? Theme.at(Theme.blue, Theme.dark ? 0.24 : 0.12)
                              : control.hovered ? Theme.hoverFill : Theme.surfaceAlt
        border.width: 1
        border.color: control.chosen ? Theme.blue : Theme.border
        Behavior on color { ColorAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
    }
    FocusRing {
        shown: control.visualFocus
    }
}
