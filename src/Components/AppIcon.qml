// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// An application's own icon, or a dashed square where there is none to show.
Item {
    id: root

    required property string source
    property int size: 44

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Image {
        id: image
        anchors.fill: parent
        source: root.source
        sourceSize: Qt.size(root.size, root.size)
        fillMode: Image.PreserveAspectFit
        asynchronous: true
        // One pixel stands for a file that holds no icon.
        visible: status === Image.Ready && implicitWidth > 1
        Accessible.ignored: true
    }
    SymbolIcon {
        anchors.centerIn: parent
        visible: !image.visible
        symbol: "app.dashed"
        size: root.size * 0.76
        color: Theme.textSecondary
    }
}
