// SPDX-License-Identifier: MIT
// Not bound to its file: a Loader of Qt 6.4 cannot make components that are.
import QtQuick
import Brisko.Theme
import Brisko.Components
import Brisko.Pages

// What lies over the pages: the toast, and the modals. Each exists only while it is seen. While `notices.modalShown`
// what is behind is to be disabled.
Item {
    id: root

    required property NoticesModel notices
    /// What the modals' backdrop shows blurred.
    required property Item backdropSource
    /// The corner radius of the window that the modals cover.
    property int corner: Theme.windowRadius

    anchors.fill: parent

    Loader {
        id: updateLoader
        property bool stays: false
        anchors.fill: parent
        active: root.notices.updateShown || stays
        enabled: !root.notices.confirmShown && !root.notices.alertShown
        onLoaded: stays = true
        sourceComponent: UpdateModal {
            backdropSource: root.backdropSource
            corner: root.corner
            shown: root.notices.updateShown
            version: root.notices.updateVersion
            date: root.notices.updateDate
            fileSize: root.notices.updateSize
            notes: root.notices.updateNotes
            onDownloadRequested: root.notices.downloadUpdate()
            onSkipRequested: root.notices.skipUpdate()
            onLaterRequested: root.notices.postponeUpdate()
            onGone: updateLoader.stays = false
        }
    }
    Loader {
        id: confirmLoader
        property bool stays: false
        anchors.fill: parent
        active: root.notices.confirmShown || stays
        enabled: !root.notices.alertShown
        onLoaded: stays = true
        sourceComponent: ConfirmModal {
            backdropSource: root.backdropSource
            corner: root.corner
            shown: root.notices.confirmShown
            busy: root.notices.confirmBusy
            icon: root.notices.confirmIcon
            symbol: root.notices.confirmSymbol
            title: root.notices.confirmTitle
            message: root.notices.confirmMessage
            labels: root.notices.confirmLabels
            values: root.notices.confirmValues
            confirmTitle: root.notices.confirmButton
            onConfirmed: root.notices.acceptConfirm()
            onCancelled: root.notices.cancelConfirm()
            onGone: {
                confirmLoader.stays = false
                root.notices.confirmHasLeft()
            }
        }
    }
    Loader {
        id: alertLoader
        property bool stays: false
        anchors.fill: parent
        active: root.notices.alertShown || stays
        onLoaded: stays = true
        sourceComponent: AlertModal {
            backdropSource: root.backdropSource
            corner: root.corner
            shown: root.notices.alertShown
            title: root.notices.alertTitle
            message: root.notices.alertMessage
            onDismissed: root.notices.dismissAlert()
            onGone: alertLoader.stays = false
        }
    }
    Loader {
        id: toastLoader
        property bool stays: false
        anchors.horizontalCenter: parent.horizontalCenter
        active: root.notices.toastShown || stays
        onLoaded: stays = true
        sourceComponent: Item {
            implicitWidth: view.implicitWidth
            implicitHeight: view.implicitHeight
            ToastView {
                id: view
                width: implicitWidth
                height: implicitHeight
                shown: root.notices.toastShown
                symbol: root.notices.toastSymbol
                tint: root.notices.toastTint
                message: root.notices.toastMessage
                onGone: toastLoader.stays = false
            }
        }
    }
}
