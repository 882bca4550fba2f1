// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Painted
import Brisko.Theme

// A compact ring gauge.
Item {
    id: root

    required property string title
    required property string value
    property real progress: 0
    property color firstColor: Theme.blue
    property color lastColor: Theme.violet

    property real animated: 0

    implicitHeight: ring.height + 6 + label.implicitHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: title
    Accessible.description: value

    Behavior on animated {
        NumberAnimation { duration: Theme.ring; easing.type: Easing.OutQuad }
    }
    onProgressChanged: animated = progress
    Component.onCompleted: animated = progress

    RingGauge {
        id: ring
        anchors.horizontalCenter: parent.horizontalCenter
        width: 72
        height: 72
        trackColor: Theme.border
        firstColor: root.firstColor
        lastColor: root.lastColor
        value: root.animated
        FittedText {
            anchors.centerIn: parent
            width: 48
            text: root.value
            font: Typo.title
        }
    }
    PlainLabel {
        id: label
        anchors { left: parent.left; right: parent.right; top: ring.bottom; topMargin: 6 }
        text: root.title
        font: Typo.small
        color: Theme.textSecondary
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
