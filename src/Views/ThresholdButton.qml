// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQml
import Brisko.Theme
import Brisko.Components

// From which size on a file is large: shows the present threshold, and opens a menu of those to choose from.
PrimaryButton {
    id: control

    required property string threshold
    property alias thresholds: rows.model
    signal chosen(int megabytes)

    objectName: "threshold"
    text: threshold
    leftPadding: 14
    rightPadding: 14
    onClicked: if (menu.opened) menu.close(); else menu.popup(0, -menu.implicitHeight - 6)

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight
        Row {
            id: row
            anchors.centerIn: parent
            spacing: 8
            SymbolIcon {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "slider.horizontal.3"
                size: 12
                color: control.labelColor
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: control.text
                color: control.labelColor
                font: control.font
                textFormat: Text.PlainText
            }
            SymbolIcon {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "chevron.up.chevron.down"
                size: 9
                color: control.labelColor
            }
        }
    }

    PopupMenu {
        id: menu
        implicitWidth: 140
        // A click on the button closes the menu by the button's own handler.
        closePolicy: PopupMenu.CloseOnEscape | PopupMenu.CloseOnPressOutsideParent

        Instantiator {
            id: rows
            delegate: MenuRowButton {
                required chosen
                required property int megabytes
                required property string label
                objectName: "thresholdChoice"
                text: label
                onTriggered: control.chosen(megabytes)
            }
            onObjectAdded: (index, object) => menu.insertItem(index, object as MenuRowButton)
            onObjectRemoved: (index, object) => menu.removeItem(object as MenuRowButton)
        }
    }
}
