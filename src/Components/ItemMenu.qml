// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// The context menu of an item in a list. One serves a whole page: it remembers which item it was opened for.
PopupMenu {
    id: menu

    property string itemId: ""
    signal showRequested(string itemId)
    signal copyRequested(string itemId)

    /// Opens for an item, at a point of `row`; the menu outlives the row.
    function openFor(itemId: string, row: Item, x: real, y: real) {
        const point = row.mapToItem(parent, x, y)
        menu.itemId = itemId
        menu.popup(point.x, point.y)
    }

    MenuRowButton {
        objectName: "showInFileManager"
        text: Texts.of("Show in File Manager")
        symbol: "folder"
        Accessible.selectable: false
        onTriggered: menu.showRequested(menu.itemId)
    }
    MenuRowButton {
        objectName: "copyPath"
        text: Texts.of("Copy Path")
        symbol: "doc.on.clipboard"
        Accessible.selectable: false
        onTriggered: menu.copyRequested(menu.itemId)
    }
}
