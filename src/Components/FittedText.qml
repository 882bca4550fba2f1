// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A figure in one line that shrinks to fit its width rather than wrap.
Text {
    color: Theme.textPrimary
    font: Typo.statValue
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: 9
    maximumLineCount: 1
    horizontalAlignment: Text.AlignHCenter
    textFormat: Text.PlainText
    Accessible.ignored: true
}
