// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Theme
import Brisko.Components
import Brisko.Pages

// Lists what starts with the session, and switches or removes the user's own items.
Item {
    id: root

    required property StartupPage page

    Component.onCompleted: page.appeared()

    PageHeader {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.pagePadding }
        title: Texts.of("Startup Items")
        subtitle: root.page.status
    }
    ScanProgress {
        id: progress
        anchors { left: header.left; right: header.right; top: header.bottom }
        running: root.page.loading
        onStopRequested: root.page.stopScan()
    }
    Item {
        anchors { left: header.left; right: header.right; top: progress.bottom; bottom: footer.top }
        anchors.bottomMargin: Theme.sectionGap

        PageList {
            id: list
            objectName: "startupItems"
            visible: !root.page.isEmpty
            label: Texts.of("Startup Items")
            summary: root.page.status
            spacing: Theme.rowGap
            model: root.page.items
            delegate: StartupItemRow {
                onToggled: itemId => root.page.toggle(itemId)
                onRemoveRequested: itemId => root.page.remove(itemId)
                onMenuRequested: (itemId, row, x, y) => menu.openFor(itemId, row, x, y)
            }
        }
        Loader {
            anchors.fill: parent
            active: root.page.isEmpty
            sourceComponent: EmptyState {
                symbol: "power"
                title: Texts.of("No startup items yet")
                hint: Texts.of("Press Scan to find Launch Agents and Daemons")
            }
        }
    }
    PageFooter {
        id: footer
        anchors { left: header.left; right: header.right; bottom: parent.bottom; bottomMargin: Theme.pagePadding }
        status: root.page.status
        PrimaryButton {
            objectName: "refresh"
            text: Texts.of("Refresh")
            symbol: "arrow.clockwise"
            turning: root.page.loading
            enabled: !root.page.loading
            onClicked: root.page.refreshItems()
        }
    }
    ItemMenu {
        id: menu
        onShowRequested: itemId => root.page.showInFileManager(itemId)
        onCopyRequested: itemId => root.page.copyPath(itemId)
    }
}
