// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Components
import Brisko.Pages
import Brisko.Theme

// The window's own menu, for desktops without one for applications.
CircularIconButton {
    id: control

    required property Navigation navigation
    required property PanelModel panel

    objectName: "windowMenu"
    size: 26
    symbol: "line.3.horizontal"
    symbolSize: 13
    label: Texts.of("Menu")
    onClicked: menu.popup(control, 0, control.height + 4)

    PopupMenu {
        id: menu
        MenuRowButton {
            objectName: "menuSettings"
            text: Texts.of("Settings")
            symbol: "gearshape"
            onTriggered: control.navigation.select(Navigation.Settings)
        }
        MenuRowButton {
            objectName: "menuQuit"
            text: Texts.of("Quit Brisko")
            symbol: "power"
            onTriggered: control.panel.quit()
        }
    }
}
