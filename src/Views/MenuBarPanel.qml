// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme
import Brisko.Components
import Brisko.Pages

// The small panel of the status area: the figures, the way to the cleaning pages, the window, and the end.
Item {
    id: root

    required property PanelModel panel

    readonly property int gap: 12
    readonly property real half: (column.width - 10) / 2

    implicitWidth: 300
    implicitHeight: column.implicitHeight + 28

    Column {
        id: column
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 14 }
        spacing: root.gap

        Row {
            spacing: 10
            BrandMark { size: 26 }
            Heading {
                anchors.verticalCenter: parent.verticalCenter
                text: "Brisko"
                font: Typo.rowTitle
            }
        }
        Grid {
            columns: 2
            columnSpacing: 10
            rowSpacing: root.gap
            MiniGauge {
                objectName: "panelCpu"
                width: root.half
                title: Texts.of("CPU")
                value: root.panel.figures.cpu
                progress: root.panel.figures.cpuProgress
            }
            MiniGauge {
                objectName: "panelMemory"
                width: root.half
                title: Texts.of("Memory")
                value: root.panel.figures.memory
                progress: root.panel.figures.memoryProgress
            }
            MiniGauge {
                objectName: "panelTemperature"
                width: root.half
                title: Texts.of("Disk Temperature")
                value: root.panel.figures.temperature
                progress: root.panel.figures.temperatureProgress
                firstColor: Theme.amber
                lastColor: Theme.orange
            }
            MiniGauge {
                objectName: "panelFreeable"
                width: root.half
                title: Texts.of("Freeable Space")
                value: root.panel.figures.freeable
                progress: root.panel.figures.freeableProgress
                firstColor: Theme.emerald
                lastColor: Theme.green
            }
        }
        Grid {
            columns: 2
            columnSpacing: 10
            rowSpacing: 10
            MiniTile {
                objectName: "panelUninstaller"
                width: root.half
                title: Texts.of("Uninstaller")
                value: root.panel.figures.unusedApps
                symbol: "app.fill"
                onClicked: root.panel.openPage(Navigation.Uninstaller)
            }
            MiniTile {
                objectName: "panelDuplicates"
                width: root.half
                title: Texts.of("Duplicates")
                value: root.panel.figures.duplicates
                symbol: "doc.on.doc.fill"
                onClicked: root.panel.openPage(Navigation.Duplicates)
            }
            MiniTile {
                objectName: "panelLargeFiles"
                width: root.half
                title: Texts.of("Large Files")
                value: root.panel.figures.largeFiles
                symbol: "doc.text.magnifyingglass"
                firstColor: Theme.green
                lastColor: Theme.teal
                onClicked: root.panel.openPage(Navigation.LargeFiles)
            }
            MiniTile {
                objectName: "panelJunk"
                width: root.half
                title: Texts.of("Junk Cleaner")
                value: root.panel.figures.junk
                symbol: "bubbles.and.sparkles.fill"
                firstColor: Theme.amber
                lastColor: Theme.orange
                onClicked: root.panel.openPage(Navigation.Junk)
            }
        }
        Column {
            width: parent.width
            spacing: 2
            PanelRow {
                objectName: "openWindow"
                width: parent.width
                text: Texts.of("Open Brisko")
                symbol: "macwindow"
                leadsOn: true
                onClicked: root.panel.openWindow()
            }
            PanelRow {
                objectName: "quit"
                width: parent.width
                text: Texts.of("Quit Brisko")
                symbol: "power"
                onClicked: root.panel.quit()
            }
        }
    }
}
