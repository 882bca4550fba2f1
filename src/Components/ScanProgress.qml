// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Theme

// Stands in for the gap under a page's header, so that nothing jumps when a scan starts: while it runs, a thin line
// that moves, what is being done where the header does not say it, and a button that stops it.
Item {
    id: root

    required property bool running
    property string detail: ""
    signal stopRequested()

    implicitHeight: Theme.sectionGap
    z: 1 // over the list, which reaches up to here with its shadows and would take the button's clicks

    Loader {
        anchors.fill: parent
        active: root.running
        sourceComponent: Item {
            PlainLabel {
                id: label
                objectName: "scanDetail"
                anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                width: Math.min(implicitWidth, parent.width / 2)
                visible: text !== ""
                text: root.detail
                font: Typo.small
                color: Theme.textSecondary
                elide: Text.ElideMiddle
            }
            Rectangle {
                id: track
                anchors { left: label.visible ? label.right : parent.left; right: stop.left }
                anchors { leftMargin: label.visible ? Theme.rowGap : 0; rightMargin: Theme.rowGap }
                anchors.verticalCenter: parent.verticalCenter
                height: 3
                radius: 1.5
                color: Theme.border
                clip: true
                Accessible.role: Accessible.ProgressBar
                Accessible.name: Texts.of("Scanning…")
                Accessible.description: root.detail

                Rectangle {
                    id: runner
                    property real turn: Theme.reducedMotion ? 0.35 : 0
                    width: track.width * 0.3
                    height: parent.height
                    radius: 1.5
                    x: (track.width + width) * turn - width
                    gradient: Gradient {
                        orientation: Gradient.Horizontal
                        GradientStop { position: 0; color: Theme.blue }
                        GradientStop { position: 1; color: Theme.violet }
                    }
                    // A step now and then rather than a glide: each draws the whole window.
                    Timer {
                        interval: 70
                        repeat: true
                        running: root.running && root.visible && !Theme.reducedMotion
                        onTriggered: runner.turn = (runner.turn + 0.025) % 1
                    }
                }
            }
            SmallButton {
                id: stop
                objectName: "stopScan"
                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                text: Texts.of("Stop")
                symbol: "stop.fill"
                symbolSize: 9
                onClicked: root.stopRequested()
            }
        }
    }
}
