// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// The bar beside a long list: there while the list moves or the pointer is over it.
T.ScrollBar {
    id: control

    implicitWidth: 10
    implicitHeight: 10
    padding: 2
    minimumSize: 0.06
    visible: policy !== T.ScrollBar.AlwaysOff && size < 1
    hoverEnabled: true
    Accessible.ignored: true

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: Theme.at(Theme.textSecondary, control.pressed || control.hovered ? 0.7 : 0.4)
        opacity: control.active ? 1 : 0.5
        Behavior on opacity { NumberAnimation { duration: Theme.gentle; easing.type: Easing.OutQuad } }
    }
}
