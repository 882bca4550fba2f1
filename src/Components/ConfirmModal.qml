// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// Asks before anything is removed.
ModalCard {
    id: root

    required property string icon
    required property string symbol
    required property string message
    required property list<string> labels
    required property list<string> values
    required property string confirmTitle
    required property bool busy
    signal cancelled()
    signal confirmed()

    onCancelRequested: if (!busy) cancelled()
    onAccepted: if (!busy) confirmed()

    Column {
        width: parent.width
        spacing: 20

        Column {
            width: parent.width
            spacing: 12
            Item {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 64
                height: 64
                AppIcon {
                    visible: root.icon !== ""
                    source: root.icon
                    size: 64
                }
                GradientSquare {
                    anchors.centerIn: parent
                    visible: root.icon === ""
                    width: 56
                    height: 56
                    symbol: root.symbol
                    symbolSize: 28
                }
            }
            Column {
                width: parent.width
                spacing: 6
                Heading {
                    objectName: "modalTitle"
                    width: parent.width
                    text: root.title
                    font: Typo.title
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                    maximumLineCount: 3
                    elide: Text.ElideRight
                }
                PlainLabel {
                    width: parent.width
                    text: root.message
                    color: Theme.textSecondary
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.WordWrap
                }
            }
        }
        Column {
            width: parent.width
            spacing: 6
            visible: root.labels.length > 0
            Repeater {
                model: root.labels
                Rectangle {
                    id: line
                    required property int index
                    required property string modelData
                    width: parent.width
                    height: value.implicitHeight + 18
                    radius: Theme.controlRadius
                    color: Theme.surfaceAlt
                    PlainLabel {
                        id: label
                        anchors { left: parent.left; leftMargin: 14; verticalCenter: parent.verticalCenter }
                        text: line.modelData
                        color: Theme.textSecondary
                    }
                    PlainLabel {
                        id: value
                        anchors { left: label.right; leftMargin: 14; right: parent.right; rightMargin: 14 }
                        anchors.verticalCenter: parent.verticalCenter
                        text: root.values[line.index]
                        font: Typo.prominent
                        horizontalAlignment: Text.AlignRight
                        elide: Text.ElideMiddle
                        HelpTip { text: value.truncated ? value.text : "" }
                    }
                }
            }
        }
        Row {
            width: parent.width
            spacing: 12
            PrimaryButton {
                objectName: "cancel"
                width: (parent.width - parent.spacing) / 2
                text: Texts.of("Cancel")
                enabled: !root.busy && root.shown
                onClicked: root.cancelled()
            }
            GradientButton {
                objectName: "confirm"
                width: (parent.width - parent.spacing) / 2
                text: root.confirmTitle
                font: Typo.prominent
                symbol: root.busy ? "arrow.clockwise" : ""
                busy: root.busy
                enabled: !root.busy && root.shown
                onClicked: root.confirmed()
            }
        }
    }
}
