// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// A small menu of MenuRowButtons.
T.Menu {
    id: menu

    implicitWidth: Math.max(180, contentItem.implicitWidth + 2 * padding)
    implicitHeight: contentItem.implicitHeight + 2 * padding
    padding: 6
    margins: 8
    overlap: 1

    contentItem: ListView {
        implicitWidth: contentItem.childrenRect.width
        implicitHeight: contentHeight
        model: menu.contentModel
        interactive: false
        currentIndex: menu.currentIndex
    }
    background: Item {
        CardShadow {
            radius: 12
            blur: 14
        }
        Rectangle {
            anchors.fill: parent
            radius: 12
            color: Theme.surfaceAlt
            border.width: 1
            border.color: Theme.border
        }
    }
}
