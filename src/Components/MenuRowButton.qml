// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// A row of a menu, full width; `checked` marks the present choice.
T.MenuItem {
    id: control

    property string symbol: ""
    property bool chosen: false

    implicitWidth: Math.max(implicitContentWidth + leftPadding + rightPadding, 120)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    leftPadding: 10
    rightPadding: 10
    topPadding: 7
    bottomPadding: 7
    font: Typo.caption
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    Accessible.name: text
    Accessible.readOnly: !enabled
    Accessible.selectable: true
    Accessible.selected: chosen
    Accessible.onPressAction: if (enabled) triggered()

    contentItem: Item {
        implicitWidth: label.implicitWidth + 24
        implicitHeight: label.implicitHeight
        SymbolIcon {
            id: leading
            anchors.verticalCenter: parent.verticalCenter
            visible: control.symbol !== ""
            symbol: control.symbol
            size: 12
            color: Theme.textSecondary
        }
        Text {
            id: label
            anchors { left: parent.left; right: mark.left; leftMargin: leading.visible ? 20 : 0 }
            anchors.verticalCenter: parent.verticalCenter
            text: control.text
            color: Theme.textPrimary
            opacity: control.enabled ? 1 : 0.4
            font: control.font
            textFormat: Text.PlainText
        }
        SymbolIcon {
            id: mark
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: control.chosen
            symbol: "checkmark"
            size: 11
            color: Theme.blue
        }
    }
    background: Rectangle {
        radius: 7
        color: Theme.at(Theme.blue, control.down ? 0.12 : control.hovered || control.highlighted
                                                   || control.visualFocus ? 0.1 : 0)
    }
    FocusRing {
        shown: control.visualFocus
        gap: 0
        radius: 7
    }
}
