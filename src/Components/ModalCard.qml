// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import Brisko.Theme

// What every modal shares: the backdrop, the card with its entrance, and the keyboard. Escape asks to cancel, Return
// does what the default button does, and Tab stays inside; whoever had the keyboard before gets it back.
FocusScope {
    id: root

    required property string title
    required property bool shown
    required property Item backdropSource
    property int corner: Theme.windowRadius // of the window that it covers
    property int cardWidth: 400
    default property alias content: holder.data
    signal cancelRequested()
    signal accepted()
    /// The modal has faded away.
    signal gone()

    property Item before: null
    property real seconds: 0
    // A spring of response 0.35 s and damping 0.82, at `seconds` after its release.
    readonly property real spring: 1 - Math.exp(-14.72 * seconds)
                                   * (Math.cos(10.27 * seconds) + 1.433 * Math.sin(10.27 * seconds))
    readonly property bool entered: !entrance.running

    anchors.fill: parent
    focus: true
    opacity: shown ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutQuad } }
    onOpacityChanged: if (opacity === 0 && !shown) gone()

    Accessible.role: Accessible.Dialog
    Accessible.name: title

    Keys.onEscapePressed: if (root.shown) root.cancelRequested()
    // A key that is held down has opened the modal; it must not answer it.
    Keys.onReturnPressed: event => { if (root.shown && !event.isAutoRepeat) root.accepted() }
    Keys.onEnterPressed: event => { if (root.shown && !event.isAutoRepeat) root.accepted() }
    Keys.onTabPressed: start.goOn()
    Keys.onBacktabPressed: end.goBack()

    Component.onCompleted: takeKeyboard()
    Component.onDestruction: if (before) before.forceActiveFocus()
    onShownChanged: if (shown) takeKeyboard()

    function takeKeyboard() {
        if (!holds(Window.activeFocusItem))
            before = Window.activeFocusItem
        forceActiveFocus()
    }
    function holds(item: Item): bool {
        for (let each = item; each; each = each.parent) {
            if (each === root)
                return true
        }
        return false
    }

    NumberAnimation on seconds {
        id: entrance
        from: 0
        to: 0.5
        duration: Theme.entrance
        running: root.shown
    }

    // Before the first control and behind the last: whoever comes here has gone once round.
    Item {
        id: start
        activeFocusOnTab: true
        onActiveFocusChanged: if (activeFocus) end.goBack()

        function goOn() { nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason) }
    }
    ModalBackdrop {
        source: root.backdropSource
        corner: root.corner
        covering: root.shown
        // The second half of a double click on what opened the modal must not close it.
        onTapped: if (root.shown && root.entered) root.cancelRequested()
    }
    Item {
        anchors.centerIn: parent
        width: root.cardWidth
        height: holder.childrenRect.height + 48
        scale: 0.92 + 0.08 * root.spring
        opacity: Math.max(0, Math.min(1, root.spring))

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            onWheel: wheel => wheel.accepted = true
        }
        Rectangle {
            anchors.fill: parent
            radius: 22
            color: Theme.at(Theme.backgroundBottom, 0.94)
        }
        GlassCard {
            anchors.fill: parent
            radius: 22
            padding: 24
            Item {
                id: holder
                anchors.fill: parent
            }
        }
    }
    Item {
        id: end
        activeFocusOnTab: true
        onActiveFocusChanged: if (activeFocus) start.goOn()

        function goBack() { nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason) }
    }
}
