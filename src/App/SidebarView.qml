// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Components
import Brisko.Pages
import Brisko.Painted
import Brisko.Theme
import Brisko.Window

// The column of pages, under the window's buttons and the brand.
Item {
    id: root

    required property PageModels pages
    required property GlassWindow window
    property int radius: 12

    readonly property Navigation navigation: pages.navigation

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        border.width: 1
        border.color: Theme.glassEdge
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.sidebarTop }
            GradientStop { position: 1; color: Theme.sidebarBottom }
        }
    }
    TitleBarButtons {
        window: root.window
        // The layout speaks of the window, this item lies inset in it.
        origin: Qt.point(root.x + root.window.inset, root.y + root.window.inset)
    }
    Row {
        id: header
        anchors { left: parent.left; top: parent.top; leftMargin: 18; topMargin: 48 }
        spacing: 10
        BrandLogo {
            width: 30
            height: 30
            anchors.verticalCenter: parent.verticalCenter
        }
        Heading {
            anchors.verticalCenter: parent.verticalCenter
            text: "Brisko"
            font: Typo.brand
        }
    }
    WindowMenuButton {
        anchors { right: parent.right; rightMargin: 12; verticalCenter: header.verticalCenter }
        navigation: root.navigation
        panel: root.pages.panel
    }
    ListView {
        id: list
        objectName: "sidebar"
        anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: parent.bottom }
        anchors { topMargin: 22; leftMargin: 10; rightMargin: 10 }
        model: root.navigation.pages
        spacing: 4
        interactive: false
        keyNavigationEnabled: true
        currentIndex: root.navigation.current
        highlightFollowsCurrentItem: false
        Accessible.role: Accessible.PageTabList
        Accessible.name: Texts.of("Pages")

        delegate: SidebarButton {
            required property int index
            width: list.width
            text: title
            current: page === root.navigation.current
            onClicked: root.navigation.select(page)
            onNeighbourRequested: step => {
                const next = list.itemAtIndex(index + step)
                if (next)
                    next.forceActiveFocus(Qt.TabFocusReason)
            }
        }
    }
}
