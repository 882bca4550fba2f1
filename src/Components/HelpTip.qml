// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// A tip over its parent, also where that is disabled: the handler is this item's own. What lies below it does not feel
// the pointer, so one without a text is not there.
Item {
    id: root

    property string text: ""

    anchors.fill: parent
    visible: text !== ""

    HoverHandler { id: hover }
    // A long list has a tip for every row: only the one in use exists.
    Loader {
        anchors.fill: parent
        active: hover.hovered && root.visible
        sourceComponent: Item {
            T.ToolTip {
                id: tip
                visible: true
                text: root.text
                delay: Theme.reducedMotion ? 0 : 700
                y: root.height + 6
                margins: 8
                padding: 8
                implicitWidth: Math.min(label.implicitWidth, 420) + 2 * padding
                implicitHeight: label.implicitHeight + 2 * padding
                closePolicy: T.Popup.NoAutoClose
                contentItem: PlainLabel {
                    id: label
                    text: tip.text
                    font: Typo.small
                    wrapMode: Text.WrapAnywhere
                }
                background: Rectangle {
                    radius: 8
                    color: Theme.surfaceAlt
                    border.width: 1
                    border.color: Theme.border
                }
            }
        }
    }
}
