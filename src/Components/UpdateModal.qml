// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// Announces a newer version.
ModalCard {
    id: root

    required property string version
    required property string date
    required property string fileSize
    required property string notes
    signal downloadRequested()
    signal skipRequested()
    signal laterRequested()

    cardWidth: 440
    title: Texts.of("Update Available")
    onCancelRequested: laterRequested()
    onAccepted: downloadRequested()

    Column {
        width: parent.width
        spacing: 18

        Row {
            width: parent.width
            spacing: 14
            GradientSquare {
                width: 46
                height: 46
                radius: 23
                symbol: "arrow.up"
                symbolSize: 20
            }
            Column {
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - 60
                spacing: Theme.textGap
                Heading {
                    objectName: "modalTitle"
                    width: parent.width
                    text: root.title
                    font: Typo.title
                    elide: Text.ElideRight
                }
                PlainLabel {
                    objectName: "updateVersion"
                    width: parent.width
                    text: root.version
                    color: Theme.textSecondary
                    elide: Text.ElideRight
                }
            }
        }
        Row {
            spacing: 8
            visible: root.date !== "" || root.fileSize !== ""
            MetaPill {
                objectName: "updateDate"
                visible: root.date !== ""
                symbol: "calendar"
                text: root.date
            }
            MetaPill {
                objectName: "updateSize"
                visible: root.fileSize !== ""
                symbol: "arrow.down.doc"
                text: root.fileSize
            }
        }
        Column {
            width: parent.width
            spacing: 8
            visible: root.notes !== ""
            Heading {
                text: Texts.of("What's New")
                font: Typo.rowTitle
            }
            Rectangle {
                width: parent.width
                height: Math.min(notesText.implicitHeight + 24, 180)
                radius: Theme.controlRadius
                color: Theme.surfaceAlt
                Flickable {
                    id: scroll
                    anchors { fill: parent; margins: 12 }
                    contentHeight: notesText.implicitHeight
                    boundsBehavior: Flickable.StopAtBounds
                    clip: true
                    activeFocusOnTab: contentHeight > height
                    Keys.onDownPressed: contentY = Math.min(contentY + 24, Math.max(0, contentHeight - height))
                    Keys.onUpPressed: contentY = Math.max(contentY - 24, 0)
                    T.ScrollBar.vertical: ListScrollBar {}
                    PlainLabel {
                        id: notesText
                        objectName: "updateNotes"
                        width: scroll.width - 10
                        text: root.notes
                        wrapMode: Text.Wrap
                        verticalAlignment: Text.AlignTop
                    }
                }
                FocusRing { shown: scroll.activeFocus }
            }
        }
        Column {
            width: parent.width
            spacing: 8
            GradientButton {
                objectName: "downloadUpdate"
                width: parent.width
                text: Texts.of("Download")
                font: Typo.rowTitle
                symbol: "arrow.down"
                enabled: root.shown
                onClicked: root.downloadRequested()
            }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: 8
                LinkButton {
                    objectName: "skipUpdate"
                    text: Texts.of("Skip This Version")
                    enabled: root.shown
                    onClicked: root.skipRequested()
                }
                LinkButton {
                    objectName: "postponeUpdate"
                    text: Texts.of("Remind Me Later")
                    enabled: root.shown
                    onClicked: root.laterRequested()
                }
            }
        }
    }
}
