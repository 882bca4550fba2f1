// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Theme
import Brisko.Components
import Brisko.Pages

// The page of the junk cleaner.
Item {
    id: root

    required property JunkPage page

    Component.onCompleted: page.appeared()

    PageHeader {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.pagePadding }
        title: Texts.of("Junk Cleaner")
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
        height: active ? implicitHeight : 0
        active: root.page.needsAccess
        sourceComponent: AccessBanner {
            text: Texts.of("Grant Full Disk Access, then restart Brisko to scan the Trash, chat app caches, and other protected data.")
            onOpenRequested: root.page.openAccessSettings()
        }
    }
    Item {
        anchors { left: header.left; right: header.right; top: banner.bottom; bottom: footer.top }
        anchors { topMargin: banner.active ? Theme.sectionGap : 0; bottomMargin: Theme.sectionGap }

        Loader {
            anchors.fill: parent
            active: root.page.empty
            sourceComponent: EmptyState {
                symbol: "sparkles"
                title: root.page.emptyTitle
                hint: root.page.emptyHint
            }
        }
        PageList {
            id: list
            objectName: "junkCategories"
            visible: !root.page.empty
            label: Texts.of("Junk categories")
            summary: root.page.subtitle
            model: root.page.categories
            spacing: Theme.cardGap
            reuseItems: false
            delegate: JunkCategoryCard {
                onToggled: itemId => root.page.toggle(itemId)
                onExpandRequested: itemId => root.page.toggleExpanded(itemId)
                onMenuRequested: (itemId, row, x, y) => menu.openFor(itemId, row, x, y)
            }
        }
    }
    PageFooter {
        id: footer
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.pagePadding }
        status: root.page.status
        PrimaryButton {
            objectName: "scan"
            text: Texts.of("Scan")
            symbol: "magnifyingglass"
            enabled: root.page.canScan
            onClicked: root.page.scan()
        }
        GradientButton {
            objectName: "clean"
            text: Texts.of("Clean Selected")
            symbol: busy ? "arrow.clockwise" : "sparkles"
            firstColor: Theme.amber
            lastColor: Theme.orange
            busy: root.page.removing
            enabled: root.page.canClean
            onClicked: root.page.clean()
        }
    }
    ItemMenu {
        id: menu
        onShowRequested: itemId => root.page.showInFileManager(itemId)
        onCopyRequested: itemId => root.page.copyPath(itemId)
    }
}
