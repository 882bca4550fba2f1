// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Components
import Brisko.Pages
import Brisko.Theme

// What lies over the pages: the toast, and one modal at a time.
Item {
    id: root

    required property NoticesModel notices
    required property Item behind
    property int radius: Theme.windowRadius
}
