// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// A long list that fills the place its page gives it: only what is in sight exists, and the keyboard walks through it.
// It reaches a little over that place on every side, so that the shadows of its rows are not cut.
ListView {
    id: root

    required property string label
    property string summary: ""
    readonly property int overhang: Theme.pagePadding
    readonly property int overhangAbove: Theme.cardGap

    anchors.fill: parent
    anchors { leftMargin: -overhang; rightMargin: -overhang; topMargin: -overhangAbove; bottomMargin: -overhang }
    topMargin: overhangAbove
    bottomMargin: overhang

    boundsBehavior: Flickable.StopAtBounds
    clip: true
    activeFocusOnTab: true
    keyNavigationEnabled: true
    highlightMoveDuration: 0
    reuseItems: true
    cacheBuffer: 400

    // Rows that came after the list have made none of them the present one.
    onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0) currentIndex = 0

    Accessible.role: Accessible.List
    Accessible.name: label
    Accessible.description: summary

    T.ScrollBar.vertical: ListScrollBar {}
}
