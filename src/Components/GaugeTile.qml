// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Painted
import Brisko.Theme

// A ring gauge with its value inside, and its title and detail below.
GlassCard {
    id: root

    required property string title
    required property string value
    property string detail: ""
    property bool hasProgress: true
    property real progress: 0
    property color firstColor: Theme.blue
    property color lastColor: Theme.violet
    property bool scanning: false

    // Without a figure to show, an arc that turns says that one is being looked for.
    readonly property bool spinning: scanning && !hasProgress
    property real animated: 0
    // The figures of a machine at rest waver by a few percent all the time. Such a step is taken at once: every frame of
    // a sweep that hardly moves costs as much as one of a long one.
    property bool sweeps: true

    implicitHeight: column.implicitHeight + 2 * padding
    padding: Theme.pagePadding
    Accessible.role: Accessible.StaticText
    Accessible.name: title
    Accessible.description: detail === "" ? value : value + ", " + detail

    Behavior on animated {
        enabled: root.sweeps
        NumberAnimation { duration: Theme.ring; easing.type: Easing.OutQuad }
    }
    onProgressChanged: {
        sweeps = Math.abs(progress - animated) > 0.05
        animated = progress
    }
    Component.onCompleted: animated = progress

    Column {
        id: column
        anchors { left: parent.left; right: parent.right }
        spacing: Theme.textGap

        RingGauge {
            id: ring
            anchors.horizontalCenter: parent.horizontalCenter
            width: 106
            height: 106
            trackColor: Theme.border
            firstColor: root.firstColor
            lastColor: root.lastColor
            value: root.spinning ? 0.22 : root.animated

            Timer {
                interval: 70
                repeat: true
                running: root.spinning && root.visible
                onTriggered: ring.start = (ring.start + 0.05) % 1
                onRunningChanged: if (!running) ring.start = 0
            }
            FittedText {
                anchors.centerIn: parent
                width: 76
                text: root.value
            }
        }
        Item { width: 1; height: 8 }
        PlainLabel {
            width: parent.width
            height: 22 // whatever script it is in, so that the cards stay of one height
            text: root.title
            font: Typo.headline
            // Long words of some languages are set smaller rather than cut.
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 11
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        PlainLabel {
            width: parent.width
            // Two lines are kept free, so that no card jumps when its detail grows.
            height: 36
            text: root.detail
            font: Typo.small
            color: Theme.textSecondary
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignTop
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
