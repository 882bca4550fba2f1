// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brisko.Theme
import Brisko.Components
import Brisko.Pages

// Language, appearance, the folders searched for duplicates, and what this program is.
Item {
    id: root

    required property SettingsPage page

    Heading {
        id: title
        objectName: "pageTitle"
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.pagePadding }
        text: Texts.of("Settings")
    }
    Flickable {
        id: scroll
        // A little over its place on every side, so that the shadows of the cards are not cut.
        anchors { left: parent.left; right: parent.right; top: title.bottom; bottom: parent.bottom }
        anchors.topMargin: Theme.sectionGap - topMargin
        topMargin: Theme.cardGap
        bottomMargin: Theme.pagePadding
        contentHeight: cards.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: ListScrollBar {}

        Column {
            id: cards
            x: Theme.pagePadding
            width: scroll.width - 2 * Theme.pagePadding
            spacing: Theme.sectionGap

            SettingsCard {
                width: parent.width
                symbol: "globe"
                title: Texts.of("Language")
                Grid {
                    id: languages
                    width: parent.width
                    columns: 6
                    spacing: 8
                    Accessible.role: Accessible.List
                    Accessible.name: Texts.of("Language")
                    Repeater {
                        model: root.page.languages
                        ChoiceButton {
                            required property string languageId
                            required property string name
                            objectName: "language-" + languageId
                            width: (languages.width - 5 * languages.spacing) / 6
                            height: 36 // whatever the script of its name
                            text: name
                            onClicked: root.page.chooseLanguage(languageId)
                        }
                    }
                }
            }
            SettingsCard {
                width: parent.width
                symbol: "circle.lefthalf.filled"
                title: Texts.of("Appearance")
                SegmentedControl {
                    objectName: "appearance"
                    texts: [Texts.of("System"), Texts.of("Light"), Texts.of("Dark")]
                    current: root.page.appearance
                    onChosen: index => root.page.chooseAppearance(index)
                }
            }
            SettingsCard {
                width: parent.width
                symbol: "folder.badge.gearshape"
                title: Texts.of("Duplicate Scan Folders")
                Item {
                    width: parent.width
                    height: add.implicitHeight
                    SingleLineScroll {
                        id: line
                        anchors { left: parent.left; right: add.left; rightMargin: Theme.cardGap }
                        anchors.verticalCenter: parent.verticalCenter
                        Repeater {
                            model: root.page.duplicateFolders
                            FolderChip {
                                required property string itemId
                                onRemoveRequested: root.page.removeFolder(itemId)
                                onFocusedChanged: if (focused) line.show(this)
                            }
                        }
                    }
                    PrimaryButton {
                        id: add
                        objectName: "addFolder"
                        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                        text: Texts.of("Add Folder…")
                        symbol: "plus"
                        onClicked: root.page.addFolder()
                    }
                }
            }
            SettingsCard {
                width: parent.width
                symbol: "info.circle"
                title: Texts.of("About")
                Item {
                    width: parent.width
                    height: Math.max(logo.height, about.implicitHeight, update.implicitHeight)
                    BrandMark {
                        id: logo
                        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                        size: 42
                    }
                    Column {
                        id: about
                        anchors { left: logo.right; leftMargin: 14; right: update.left; rightMargin: Theme.gridGap }
                        anchors.verticalCenter: parent.verticalCenter
                        spacing: Theme.textGap
                        PlainLabel {
                            objectName: "version"
                            width: parent.width
                            text: root.page.version
                            font: Typo.rowTitle
                            elide: Text.ElideRight
                        }
                        PlainLabel {
                            width: parent.width
                            text: Texts.of("A Cleaner, Lighter Mac — More Space. A Brighter Tomorrow.")
                            font: Typo.detail
                            color: Theme.textSecondary
                            wrapMode: Text.WordWrap
                        }
                    }
                    PrimaryButton {
                        id: update
                        objectName: "checkForUpdates"
                        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                        text: root.page.updateButton
                        symbol: "arrow.triangle.2.circlepath"
                        turning: root.page.checkingForUpdates
                        enabled: !root.page.checkingForUpdates
                        onClicked: root.page.checkForUpdates()
                    }
                }
                Flow {
                    width: parent.width
                    spacing: 8
                    LinkButton {
                        objectName: "privacyPolicy"
                        text: Texts.of("Privacy Policy")
                        symbol: "hand.raised.circle"
                        onClicked: root.page.openPrivacyPolicy()
                    }
                    LinkButton {
                        objectName: "termsOfService"
                        text: Texts.of("Terms of Service")
                        symbol: "doc.plaintext"
                        onClicked: root.page.openTermsOfService()
                    }
                    LinkButton {
                        objectName: "contactUs"
                        text: Texts.of("Contact Us")
                        symbol: "envelope"
                        onClicked: root.page.writeToMaker()
                    }
                }
            }
        }
    }
}
