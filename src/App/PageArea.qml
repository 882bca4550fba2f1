// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Pages
import Brisko.Theme
import Brisko.Views

// Shows the page of the moment, and no other: it is built anew when the page or the language changes.
Item {
    id: root

    required property PageModels pages

    readonly property string identity: pages.navigation.current + " " + pages.navigation.language

    onIdentityChanged: {
        // The old page fades out under the new one.
        if (!Theme.reducedMotion)
            fade.restart()
    }

    NumberAnimation {
        id: fade
        target: loader
        property: "opacity"
        from: 0
        to: 1
        duration: Theme.gentle
        easing.type: Easing.OutQuad
    }
    Loader {
        id: loader
        anchors.fill: parent
        property string shown: root.identity
        onShownChanged: {
            active = false
            active = true
        }
        sourceComponent: [overview, uninstaller, duplicates, largeFiles, junk, startup, settings][
                             root.pages.navigation.current]
    }

    Component { id: overview; OverviewView { page: root.pages.overview } }
    Component { id: uninstaller; UninstallerView { page: root.pages.uninstaller } }
    Component { id: duplicates; DuplicatesView { page: root.pages.duplicates } }
    Component { id: largeFiles; LargeFilesView { page: root.pages.largeFiles } }
    Component { id: junk; JunkView { page: root.pages.junk } }
    Component { id: startup; StartupView { page: root.pages.startup } }
    Component { id: settings; SettingsView { page: root.pages.settings } }
}
