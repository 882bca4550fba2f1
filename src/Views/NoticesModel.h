// SPDX-License-Identifier: MIT
#pragma once

#include "Views/PageModel.h"

#include <QString>
#include <QStringList>
#include <QtQmlIntegration>

/// What lies over the pages: the toast, the alert, the confirmation and the announced update. The texts of one that
/// goes stay until the next comes, so that it can fade away whole. Main thread.
class NoticesModel final : public PageModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Notices come from the program.")
    Q_PROPERTY(bool toastShown READ toastShown NOTIFY changed FINAL)
    Q_PROPERTY(QString toastSymbol READ toastSymbol NOTIFY changed FINAL)
    /// 0xRRGGBB.
    Q_PROPERTY(int toastTint READ toastTint NOTIFY changed FINAL)
    Q_PROPERTY(QString toastMessage READ toastMessage NOTIFY changed FINAL)

    Q_PROPERTY(bool alertShown READ alertShown NOTIFY changed FINAL)
    Q_PROPERTY(QString alertTitle READ alertTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString alertMessage READ alertMessage NOTIFY changed FINAL)

    Q_PROPERTY(bool confirmShown READ confirmShown NOTIFY changed FINAL)
    /// From the acceptance until the confirmation has left the screen.
    Q_PROPERTY(bool confirmBusy READ confirmBusy NOTIFY changed FINAL)
    /// The address of an image; empty when the symbol is shown instead.
    Q_PROPERTY(QString confirmIcon READ confirmIcon NOTIFY changed FINAL)
    Q_PROPERTY(QString confirmSymbol READ confirmSymbol NOTIFY changed FINAL)
    Q_PROPERTY(QString confirmTitle READ confirmTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString confirmMessage READ confirmMessage NOTIFY changed FINAL)
    /// The lines of the confirmation: what, and how much.
    Q_PROPERTY(QStringList confirmLabels READ confirmLabels NOTIFY changed FINAL)
    Q_PROPERTY(QStringList confirmValues READ confirmValues NOTIFY changed FINAL)
    Q_PROPERTY(QString confirmButton READ confirmButton NOTIFY changed FINAL)

    Q_PROPERTY(bool updateShown READ updateShown NOTIFY changed FINAL)
    Q_PROPERTY(QString updateVersion READ updateVersion NOTIFY changed FINAL)
    Q_PROPERTY(QString updateDate READ updateDate NOTIFY changed FINAL)   ///< empty when the feed names none
    Q_PROPERTY(QString updateSize READ updateSize NOTIFY changed FINAL)   ///< likewise
    Q_PROPERTY(QString updateNotes READ updateNotes NOTIFY changed FINAL) ///< likewise

    /// Whether something stands that must be answered before the page behind can be used.
    Q_PROPERTY(bool modalShown READ modalShown NOTIFY changed FINAL)

public:
    explicit NoticesModel(AppState &state, QObject *parent = nullptr);

    [[nodiscard]] bool toastShown() const { return m_view.toastShown; }
    [[nodiscard]] const QString &toastSymbol() const { return m_view.toastSymbol; }
    [[nodiscard]] int toastTint() const { return m_view.toastTint; }
    [[nodiscard]] const QString &toastMessage() const { return m_view.toastMessage; }
    [[nodiscard]] bool alertShown() const { return m_view.alertShown; }
    [[nodiscard]] const QString &alertTitle() const { return m_view.alertTitle; }
    [[nodiscard]] const QString &alertMessage() const { return m_view.alertMessage; }
    [[nodiscard]] bool confirmShown() const { return m_view.confirmShown; }
    [[nodiscard]] bool confirmBusy() const { return m_view.confirmBusy; }
    [[nodiscard]] const QString &confirmIcon() const { return m_view.confirmIcon; }
    [[nodiscard]] const QString &confirmSymbol() const { return m_view.confirmSymbol; }
    [[nodiscard]] const QString &confirmTitle() const { return m_view.confirmTitle; }
    [[nodiscard]] const QString &confirmMessage() const { return m_view.confirmMessage; }
    [[nodiscard]] const QStringList &confirmLabels() const { return m_view.confirmLabels; }
    [[nodiscard]] const QStringList &confirmValues() const { return m_view.confirmValues; }
    [[nodiscard]] const QString &confirmButton() const { return m_view.confirmButton; }
    [[nodiscard]] bool updateShown() const { return m_view.updateShown; }
    [[nodiscard]] const QString &updateVersion() const { return m_view.updateVersion; }
    [[nodiscard]] const QString &updateDate() const { return m_view.updateDate; }
    [[nodiscard]] const QString &updateSize() const { return m_view.updateSize; }
    [[nodiscard]] const QString &updateNotes() const { return m_view.updateNotes; }
    [[nodiscard]] bool modalShown() const
    {
        return m_view.alertShown || m_view.confirmShown || m_view.confirmBusy || m_view.updateShown;
    }

    /// Starts what was asked for. A second call before the confirmation has left does nothing.
    Q_INVOKABLE void acceptConfirm();
    /// Does nothing while the confirmation is busy.
    Q_INVOKABLE void cancelConfirm();
    /// The confirmation is off the screen.
    Q_INVOKABLE void confirmHasLeft();
    Q_INVOKABLE void dismissAlert();
    Q_INVOKABLE void downloadUpdate();
    Q_INVOKABLE void skipUpdate();
    Q_INVOKABLE void postponeUpdate();

private:
    struct View {
        bool toastShown = false;
        QString toastSymbol;
        int toastTint = 0;
        QString toastMessage;
        bool alertShown = false;
        QString alertTitle;
        QString alertMessage;
        bool confirmShown = false;
        bool confirmBusy = false;
        QString confirmIcon;
        QString confirmSymbol;
        QString confirmTitle;
        QString confirmMessage;
        QStringList confirmLabels;
        QStringList confirmValues;
        QString confirmButton;
        bool updateShown = false;
        QString updateVersion;
        QString updateDate;
        QString updateSize;
        QString updateNotes;
        friend bool operator==(const View &, const View &) = default;
    };
    void takeToast();
    void takeAlert();
    void takeConfirm();
    void takeUpdate();

    View m_view;
};
