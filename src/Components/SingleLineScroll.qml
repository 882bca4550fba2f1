// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick

// One line of items that scrolls sideways, by an ordinary wheel too.
Flickable {
    id: root

    default property alias content: line.data
    property alias spacing: line.spacing

    implicitHeight: line.implicitHeight
    contentWidth: line.implicitWidth
    contentHeight: line.implicitHeight
    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    /// Moves the line by `delta` points, within its ends.
    function scrollBy(delta: real) {
        contentX = Math.max(0, Math.min(contentWidth - width, contentX + delta))
    }
    /// Brings an item of the line into view.
    function show(item: Item) {
        const left = item.mapToItem(line, 0, 0).x
        contentX = Math.max(Math.min(contentX, left), Math.min(left + item.width - width, contentWidth - width), 0)
    }

    Row {
        id: line
        spacing: 8
    }
    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        orientation: Qt.Vertical
        onWheel: event => root.scrollBy(-(event.angleDelta.y || event.angleDelta.x) / 2)
    }
}
