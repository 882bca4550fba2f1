// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme
import Brisko.Components
import Brisko.Pages

// The first page: a headline, four gauges, and four tiles that lead on.
Item {
    id: root

    required property OverviewPage page

    readonly property real cardWidth: (column.width - 3 * Theme.gridGap) / 4

    Column {
        id: column
        anchors { fill: parent; margins: Theme.pagePadding }
        spacing: Theme.sectionGap

        Column {
            width: parent.width
            spacing: Theme.textGap
            Heading {
                objectName: "pageTitle"
                width: parent.width
                text: Texts.of("Your Mac, Cleaner and Lighter")
                font: Typo.largeTitle
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 22
                elide: Text.ElideRight
            }
            PlainLabel {
                width: parent.width
                text: Texts.of("Free up space, remove junk, and keep your Mac running at its best.")
                color: Theme.textSecondary
                wrapMode: Text.WordWrap
                maximumLineCount: 2
                elide: Text.ElideRight
            }
        }
        Row {
            spacing: Theme.gridGap
            GaugeTile {
                objectName: "cpuGauge"
                width: root.cardWidth
                title: Texts.of("CPU")
                value: root.page.figures.cpu
                detail: Texts.of("Processor load")
                progress: root.page.figures.cpuProgress
            }
            GaugeTile {
                objectName: "memoryGauge"
                width: root.cardWidth
                title: Texts.of("Memory")
                value: root.page.figures.memory
                detail: root.page.figures.memoryDetail
                progress: root.page.figures.memoryProgress
            }
            GaugeTile {
                objectName: "temperatureGauge"
                width: root.cardWidth
                title: Texts.of("Disk Temperature")
                value: root.page.figures.temperature
                detail: root.page.figures.temperatureDetail
                hasProgress: root.page.figures.hasTemperature
                progress: root.page.figures.temperatureProgress
                firstColor: Theme.amber
                lastColor: Theme.orange
            }
            GaugeTile {
                objectName: "freeableGauge"
                width: root.cardWidth
                title: Texts.of("Freeable Space")
                value: root.page.figures.freeable
                detail: Texts.of("Caches, duplicates & unused apps")
                progress: root.page.figures.freeableProgress
                firstColor: Theme.emerald
                lastColor: Theme.green
                scanning: root.page.scanning
            }
        }
        Row {
            spacing: Theme.gridGap
            StatTile {
                objectName: "uninstallerTile"
                width: root.cardWidth
                title: Texts.of("Uninstaller")
                subtitle: Texts.of("Unused applications")
                value: root.page.figures.unusedApps
                symbol: "app.fill"
                loading: root.page.appsLoading
                onClicked: root.page.open(Navigation.Uninstaller)
            }
            StatTile {
                objectName: "duplicatesTile"
                width: root.cardWidth
                title: Texts.of("Duplicates")
                subtitle: Texts.of("Duplicate files")
                value: root.page.figures.duplicates
                symbol: "doc.on.doc.fill"
                loading: root.page.duplicatesLoading
                onClicked: root.page.open(Navigation.Duplicates)
            }
            StatTile {
                objectName: "largeFilesTile"
                width: root.cardWidth
                title: Texts.of("Large Files")
                subtitle: Texts.of("Large file cleanup")
                value: root.page.figures.largeFiles
                symbol: "doc.text.magnifyingglass"
                firstColor: Theme.emerald
                lastColor: Theme.green
                loading: root.page.largeFilesLoading
                onClicked: root.page.open(Navigation.LargeFiles)
            }
            StatTile {
                objectName: "junkTile"
                width: root.cardWidth
                title: Texts.of("Junk Cleaner")
                subtitle: Texts.of("Caches & logs")
                value: root.page.figures.junk
                symbol: "bubbles.and.sparkles.fill"
                firstColor: Theme.amber
                lastColor: Theme.orange
                loading: root.page.junkLoading
                onClicked: root.page.open(Navigation.Junk)
            }
        }
        ScanProgress {
            width: parent.width
            running: root.page.loading
            detail: root.page.scanDetail
            onStopRequested: root.page.stopScan()
        }
    }
}
