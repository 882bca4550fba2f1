// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// What every push button shares: its symbol and label, its size, its ring, its press for assistive tools.
T.Button {
    id: control

    property string symbol: ""
    property int symbolSize: 12
    property bool turning: false
    property color labelColor: Theme.textPrimary
    property int corner: Theme.controlRadius

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.controlHeight, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: 20
    rightPadding: 20
    topPadding: 8
    bottomPadding: 8
    font: Typo.rowTitle
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    Accessible.name: text
    Accessible.readOnly: !enabled
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight
        Row {
            id: row
            anchors.centerIn: parent
            spacing: 8
            SpinningSymbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.symbol !== ""
                symbol: control.symbol
                size: control.symbolSize
                color: control.labelColor
                running: control.turning
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.text !== ""
                text: control.text
                color: control.labelColor
                font: control.font
                textFormat: Text.PlainText
            }
        }
    }

    FocusRing {
        shown: control.visualFocus
        radius: control.corner + gap
    }
}
