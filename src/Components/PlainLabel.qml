// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme

// A text that people read. Plain, whatever is in it: names and notes come from outside.
T.Label {
    color: Theme.textPrimary
    font: Typo.caption
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
}
