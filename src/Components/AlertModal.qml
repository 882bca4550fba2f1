// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// Says what went wrong, with one button.
ModalCard {
    id: root

    required property string message
    signal dismissed()

    cardWidth: 380
    onCancelRequested: dismissed()
    onAccepted: dismissed()

    Column {
        width: parent.width
        spacing: 20

        SymbolIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: "exclamationmark.triangle.fill"
            size: 34
            color: Theme.amber
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
            }
            PlainLabel {
                objectName: "alertMessage"
                width: parent.width
                text: root.message
                color: Theme.textSecondary
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                maximumLineCount: 12
                elide: Text.ElideRight
            }
        }
        GradientButton {
            objectName: "dismissAlert"
            width: parent.width
            text: Texts.of("OK")
            font: Typo.prominent
            enabled: root.shown
            onClicked: root.dismissed()
        }
    }
}
