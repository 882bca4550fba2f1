// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Theme
import Brisko.Components
import Brisko.Pages

// Lists applications and moves chosen ones to the Trash.
Item {
    id: root

    required property UninstallerPage page

    PageHeader {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.pagePadding }
        title: Texts.of("Uninstaller")
        subtitle: root.page.subtitle
    }
    ScanProgress {
        id: progress
        anchors { left: header.left; right: header.right; top: header.bottom }
        running: root.page.loading
        onStopRequested: root.page.stopScan()
    }
    Loader {
        id: banner
        anchors { left: header.left; right: header.right; top: progress.bottom }
        active: root.page.needsFullDiskAccess
        height: active ? implicitHeight + Theme.sectionGap : 0
        sourceComponent: Item {
            implicitHeight: card.implicitHeight
            AccessBanner {
                id: card
                width: parent.width
                text: Texts.of("Grant Full Disk Access, then restart Brisko to scan app container data (caches, settings) and uninstall apps completely.")
                onOpenRequested: root.page.openAccessSettings()
            }
        }
    }
    Item {
        id: content
        anchors { left: header.left; right: header.right; top: banner.bottom; bottom: footer.top }
        anchors.bottomMargin: Theme.sectionGap

        PageList {
            id: list
            objectName: "apps"
            visible: !root.page.isEmpty
            label: Texts.of("Applications")
            summary: root.page.listDescription
            reuseItems: false
            spacing: Theme.rowGap
            model: root.page.apps
            delegate: AppRow {
                onToggled: itemId => root.page.toggle(itemId)
                onExpandRequested: itemId => root.page.toggleExpanded(itemId)
                onMenuRequested: (itemId, row, x, y) => menu.openFor(itemId, row, x, y)
            }
        }
        Loader {
            anchors.fill: parent
            active: root.page.isEmpty
            sourceComponent: EmptyState {
                symbol: "app.badge"
                title: root.page.loading ? Texts.of("Scanning applications…") : Texts.of("No applications found")
                PrimaryButton {
                    objectName: "scanApps"
                    text: Texts.of("Scan Apps")
                    symbol: "magnifyingglass"
                    symbolSize: 13
                    enabled: root.page.canScan
                    onClicked: root.page.scan()
                }
            }
        }
    }
    PageFooter {
        id: footer
        anchors { left: header.left; right: header.right; bottom: parent.bottom; bottomMargin: Theme.pagePadding }
        status: root.page.footer
        GradientButton {
            objectName: "moveToTrash"
            text: Texts.of("Move to Trash")
            symbol: root.page.removing ? "arrow.clockwise" : "trash"
            enabled: root.page.canRemove
            busy: root.page.removing
            onClicked: root.page.remove()
        }
    }
    ItemMenu {
        id: menu
        onShowRequested: itemId => root.page.showInFileManager(itemId)
        onCopyRequested: itemId => root.page.copyPath(itemId)
    }
}
