// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Theme
import Brisko.Components
import Brisko.Pages

// The page of the large-file finder.
Item {
    id: root

    required property LargeFilesPage page

    Component.onCompleted: page.appeared()

    PageHeader {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.pagePadding }
        title: Texts.of("Large Files")
        subtitle: root.page.subtitle
        PrimaryButton {
            objectName: "addFolder"
            text: Texts.of("Add Folder…")
            symbol: "plus"
            onClicked: root.page.addFolder()
        }
    }
    FoldersRow {
        id: folders
        anchors { left: header.left; right: header.right; top: header.bottom; topMargin: Theme.sectionGap }
        folders: root.page.folders
        hasFolders: root.page.hasFolders
        onRemoveRequested: itemId => root.page.removeFolder(itemId)
    }
    ScanProgress {
        id: progress
        anchors { left: header.left; right: header.right; top: folders.bottom }
        running: root.page.loading
        onStopRequested: root.page.stopScan()
    }
    Item {
        anchors { left: header.left; right: header.right; top: progress.bottom; bottom: footer.top }
        anchors.bottomMargin: Theme.sectionGap

        Loader {
            anchors.fill: parent
            active: root.page.empty
            sourceComponent: EmptyState {
                symbol: "doc.text.magnifyingglass"
                title: root.page.emptyTitle
                hint: root.page.emptyHint
            }
        }
        PageList {
            id: list
            objectName: "largeFiles"
            visible: !root.page.empty
            label: Texts.of("Large files")
            summary: root.page.subtitle
            model: root.page.files
            spacing: Theme.rowGap
            delegate: LargeFileRow {
                onToggled: itemId => root.page.toggle(itemId)
                onMenuRequested: (itemId, row, x, y) => menu.openFor(itemId, row, x, y)
            }
        }
    }
    PageFooter {
        id: footer
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.pagePadding }
        status: root.page.status
        ThresholdButton {
            threshold: root.page.threshold
            thresholds: root.page.thresholds
            onChosen: megabytes => root.page.applyThreshold(megabytes)
        }
        PrimaryButton {
            objectName: "scan"
            text: Texts.of("Scan")
            symbol: "magnifyingglass"
            enabled: root.page.canScan
            onClicked: root.page.scan()
        }
        GradientButton {
            objectName: "remove"
            text: Texts.of("Move to Trash")
            symbol: busy ? "arrow.clockwise" : "trash"
            busy: root.page.removing
            enabled: root.page.canRemove
            onClicked: root.page.remove()
        }
    }
    ItemMenu {
        id: menu
        onShowRequested: itemId => root.page.showInFileManager(itemId)
        onCopyRequested: itemId => root.page.copyPath(itemId)
    }
}
