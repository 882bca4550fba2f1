// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// A menu that opens over the window; its rows are MenuRowButtons.
T.Menu {
    id: menu

    implicitWidth: 200
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    padding: 6
    margins: 8
    modal: true
    dim: false
    focus: true

    contentItem: ListView {
        implicitHeight: contentHeight
        model: menu.contentModel
        currentIndex: menu.currentIndex
        interactive: false
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.backgroundBottom
        border.width: 1
        border.color: Theme.border
        CardShadow {
            z: -1
            radius: Theme.controlRadius
        }
    }
}
