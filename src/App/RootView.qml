// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Components
import Brisko.Pages
import Brisko.Theme
import Brisko.Views
import Brisko.Window

// The main window's content: the glass panel with its sidebar, the page of the moment, and what lies over them.
Item {
    id: root

    required property PageModels pages
    required property GlassWindow window

    readonly property int radius: window.radius
    property bool appeared: false

    Connections {
        target: root.window
        function onAppeared() { root.appeared = true }
    }

    Item {
        id: panel
        anchors.fill: parent
        anchors.margins: root.window.inset
        opacity: root.appeared ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.hover; easing.type: Easing.OutQuad } }

        VisualEffectBackground {
            anchors.fill: parent
            cornerRadius: root.radius
            density: root.window.translucent ? Theme.glassDensity : 1
            tintTop: Theme.windowTintTop
            tintBottom: Theme.windowTintBottom
        }
        WindowDragArea {
            anchors.fill: parent
            window: root.window
        }

        Item {
            id: content
            anchors.fill: parent
            // What lies under a modal is out of reach.
            enabled: !root.pages.notices.modalShown

            SidebarView {
                id: sidebar
                anchors { left: parent.left; top: parent.top; bottom: parent.bottom; margins: 4 }
                width: 212
                radius: root.window.maximised ? 0 : 12
                pages: root.pages
                window: root.window
            }
            PageArea {
                id: area
                anchors { left: sidebar.right; right: parent.right; top: parent.top; bottom: parent.bottom }
                anchors.leftMargin: 12
                anchors.rightMargin: 12
                anchors.topMargin: 16
                anchors.bottomMargin: 4
                pages: root.pages
            }
        }

        NoticeLayer {
            notices: root.pages.notices
            backdropSource: content
            corner: root.radius
        }

        Rectangle {
            anchors.fill: parent
            radius: root.radius
            color: "transparent"
            border.width: root.window.maximised ? 0 : 1
            border.color: Theme.glassEdge
        }
    }
    ResizeGrips {
        anchors.fill: parent
        visible: !root.window.maximised
        window: root.window
    }
}
