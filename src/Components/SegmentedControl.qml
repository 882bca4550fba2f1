// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// A few choices side by side in equal segments; the chosen one is marked by a capsule that slides.
Item {
    id: root

    required property list<string> texts
    required property int current
    signal chosen(int index)

    property real segmentWidth: 0

    implicitWidth: segmentWidth * texts.length + 6
    implicitHeight: 38

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: Theme.surfaceAlt
        border.width: 1
        border.color: Theme.border
    }
    Rectangle {
        x: 3 + root.segmentWidth * root.current
        y: 3
        width: root.segmentWidth
        height: parent.height - 6
        radius: Theme.controlRadius - 2
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: Theme.blue }
            GradientStop { position: 1; color: Theme.violet }
        }
        Behavior on x { NumberAnimation { duration: Theme.gentle; easing.type: Easing.OutQuad } }
    }
    Row {
        x: 3
        y: 3
        Repeater {
            model: root.texts
            T.RadioButton {
                id: segment
                required property int index
                required property string modelData
                readonly property bool isCurrent: index === root.current

                objectName: "segment" + index
                width: root.segmentWidth
                height: root.height - 6
                implicitWidth: implicitContentWidth + leftPadding + rightPadding
                leftPadding: 16
                rightPadding: 16
                topPadding: 8
                bottomPadding: 8
                text: modelData
                font: Typo.prominent
                hoverEnabled: true
                focusPolicy: Qt.StrongFocus
                autoExclusive: false
                checked: isCurrent

                Accessible.name: text
                Accessible.readOnly: !enabled
                Accessible.selectable: true
                Accessible.selected: isCurrent
                Accessible.onPressAction: if (enabled) clicked()
                Accessible.onToggleAction: if (enabled) clicked()
                Keys.onReturnPressed: clicked()
                Keys.onEnterPressed: clicked()
                Component.onCompleted: root.segmentWidth = Math.max(root.segmentWidth, implicitWidth)
                onImplicitWidthChanged: root.segmentWidth = Math.max(root.segmentWidth, implicitWidth)
                onClicked: {
                    checked = Qt.binding(() => segment.isCurrent)
                    root.chosen(index)
                }

                contentItem: Text {
                    text: segment.text
                    color: segment.isCurrent ? Theme.onAccent : segment.hovered ? Theme.accentText : Theme.textPrimary
                    font: segment.font
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    textFormat: Text.PlainText
                    Behavior on color { ColorAnimation { duration: Theme.gentle; easing.type: Easing.OutQuad } }
                }
                FocusRing {
                    shown: segment.visualFocus
                }
            }
        }
    }
}
