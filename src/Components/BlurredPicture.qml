// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Qt5Compat.GraphicalEffects

// What an item looked like when it was last taken, blurred. A file of its own, loaded when it is first shown: what it
// imports takes its time.
Item {
    id: root

    required property Item source
    /// Whether the picture stands in for the item, which is not drawn then.
    required property bool covering
    /// Another one, and the picture is taken anew.
    property int version: 0

    onVersionChanged: picture.scheduleUpdate()

    ShaderEffectSource {
        id: picture
        width: root.width
        height: root.height
        visible: false
        sourceItem: root.source
        live: false
        hideSource: root.covering
        textureSize: Qt.size(Math.max(1, Math.ceil(root.width / 4)), Math.max(1, Math.ceil(root.height / 4)))
    }
    FastBlur {
        anchors.fill: parent
        source: picture
        radius: 40
        cached: true
    }
}
