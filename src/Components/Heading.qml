// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Theme

// A title of a page, a card or a modal.
Text {
    color: Theme.textPrimary
    font: Typo.sectionTitle
    textFormat: Text.PlainText
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
