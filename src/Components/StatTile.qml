// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// A tile that sums up a page and leads to it.
T.AbstractButton {
    id: root

    required property string title
    required property string subtitle
    required property string value
    required property string symbol
    property string badge: ""
    property color firstColor: Theme.blue
    property color lastColor: Theme.violet
    property bool loading: false

    readonly property string shownValue: loading ? Texts.of("Calculating…") : value
    property bool appeared: false

    implicitHeight: 188
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: appeared ? 1 : 0

    Accessible.role: Accessible.Button
    Accessible.name: title
    Accessible.description: subtitle + ", " + shownValue
    Accessible.readOnly: !enabled
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Component.onCompleted: appeared = true

    Behavior on opacity {
        SequentialAnimation {
            PauseAnimation { duration: Theme.reducedMotion ? 0 : 150 }
            NumberAnimation { duration: Theme.entrance; easing.type: Easing.OutQuad }
        }
    }

    contentItem: Item {
        // The entrance rises, hovering lifts: two shifts of one thing.
        transform: [
            Translate {
                y: root.appeared ? 0 : 12
                Behavior on y {
                    SequentialAnimation {
                        PauseAnimation { duration: Theme.reducedMotion ? 0 : 150 }
                        NumberAnimation { duration: Theme.entrance; easing.type: Easing.OutQuad }
                    }
                }
            },
            Translate {
                y: root.hovered && root.enabled ? -2 : 0
                Behavior on y { NumberAnimation { duration: Theme.gentle; easing.type: Easing.OutQuad } }
            }
        ]

        GlassCard {
            anchors.fill: parent
            lifted: root.hovered && root.enabled

            Item {
                // The decoration runs out of the card's corner and is cut there.
                anchors { right: parent.right; bottom: parent.bottom }
                anchors.margins: -parent.anchors.margins + 1
                width: 72
                height: 84
                clip: true
                SymbolIcon {
                    x: 14
                    y: 10
                    symbol: root.symbol
                    size: 78
                    color: Theme.at(root.lastColor, Theme.dark ? 0.14 : 0.16)
                    scale: root.hovered ? 1.05 : 1
                    Behavior on scale { NumberAnimation { duration: Theme.hover; easing.type: Easing.OutQuad } }
                }
            }
            GradientSquare {
                id: square
                width: 42
                height: 42
                firstColor: root.firstColor
                lastColor: root.lastColor
                symbol: root.symbol
                symbolSize: 21
            }
            Badge {
                anchors { left: square.right; leftMargin: 8; verticalCenter: square.verticalCenter }
                visible: root.badge !== ""
                text: root.badge
                font: Typo.badge
                padding: 4
            }
            SymbolIcon {
                anchors { right: parent.right; verticalCenter: square.verticalCenter }
                symbol: "chevron.right"
                size: 12
                color: Theme.textSecondary
            }
            Column {
                anchors { left: parent.left; right: parent.right; top: square.bottom; topMargin: 16 }
                spacing: Theme.textGap
                Text {
                    width: parent.width
                    text: root.title
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 11
                    color: Theme.textPrimary
                    font: Typo.headline
                    elide: Text.ElideRight
                    textFormat: Text.PlainText
                    Accessible.ignored: true
                }
                Text {
                    width: parent.width
                    text: root.subtitle
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 9
                    color: Theme.textSecondary
                    font: Typo.caption
                    elide: Text.ElideRight
                    textFormat: Text.PlainText
                    Accessible.ignored: true
                }
                Item { width: 1; height: 8 }
                FittedText {
                    width: parent.width
                    text: root.shownValue
                    horizontalAlignment: Text.AlignLeft
                }
            }
        }
    }
    FocusRing {
        shown: root.visualFocus
        radius: Theme.cardRadius + gap
    }
}
