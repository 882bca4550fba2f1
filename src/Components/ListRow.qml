// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// What every row of a list shares. The list is one stop of the Tab key: the arrows move through its rows, Space presses
// the row at hand, Return or an arrow to the side opens and closes it, a right click or the Menu key asks for its menu.
T.ItemDelegate {
    id: control

    property string itemId: ""
    property bool expandable: false
    property bool expanded: false
    property bool hasMenu: true
    property int corner: Theme.cardRadius

    readonly property PageList list: ListView.view as PageList

    signal menuRequested(string itemId, Item row, real x, real y)
    signal expandRequested(string itemId)

    x: list ? list.overhang : 0
    width: list ? list.width - 2 * list.overhang : implicitWidth
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.cardGap
    hoverEnabled: true
    // The list gives its present row the focus; a click leaves it where it is.
    focusPolicy: Qt.NoFocus
    // A row that waits to be used again is not drawn, yet assistive tools would still be told of it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    Accessible.readOnly: !enabled
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: if (expandable) expandRequested(itemId)
    Keys.onEnterPressed: if (expandable) expandRequested(itemId)
    Keys.onRightPressed: if (expandable && !expanded) expandRequested(itemId)
    Keys.onLeftPressed: if (expandable && expanded) expandRequested(itemId)
    Keys.onMenuPressed: if (hasMenu) menuRequested(itemId, control, width / 3, height / 2)
    Keys.onPressed: event => {
        if (control.hasMenu && event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier) {
            control.menuRequested(control.itemId, control, control.width / 3, control.height / 2)
            event.accepted = true
        }
    }

    // Not the row's own handler: with it the row itself would take the right button, as a click.
    Item {
        anchors.fill: parent
        z: 1
        visible: control.hasMenu
        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: point => control.menuRequested(control.itemId, control, point.position.x, point.position.y)
        }
    }
    FocusRing {
        z: 1
        anchors.topMargin: control.topInset
        anchors.bottomMargin: control.bottomInset
        shown: control.activeFocus
        gap: 0
        radius: control.corner
    }
}
