// SPDX-License-Identifier: MIT
#include "Views/NoticesModel.h"

#include "State/AppState.h"
#include "Support/Text.h"
#include "Theme/Format.h"
#include "Views/AppIconImages.h"

NoticesModel::NoticesModel(AppState &state, QObject *parent)
    : PageModel(state, parent)
{
    connect(&state, &AppState::toastChanged, this, &NoticesModel::takeToast);
    connect(&state, &AppState::alertChanged, this, &NoticesModel::takeAlert);
    connect(&state, &AppState::confirmChanged, this, &NoticesModel::takeConfirm);
    connect(&state, &AppState::updateInfoChanged, this, &NoticesModel::takeUpdate);
    connect(&state, &AppState::languageChanged, this, &NoticesModel::takeUpdate);
    takeToast();
    takeAlert();
    takeConfirm();
    takeUpdate();
}

void NoticesModel::takeToast()
{
    View view = m_view;
    view.toastShown = state().toast().has_value();
    if (const std::optional<ToastData> &toast = state().toast()) {
        view.toastSymbol = toast->symbol;
        view.toastTint = static_cast<int>(toast->tintHex & 0xFFFFFFU);
        view.toastMessage = toast->message;
    }
    show(m_view, std::move(view));
}

void NoticesModel::takeAlert()
{
    View view = m_view;
    view.alertShown = state().alert().has_value();
    if (const std::optional<AlertData> &alert = state().alert()) {
        view.alertTitle = alert->title;
        view.alertMessage = alert->message;
    }
    show(m_view, std::move(view));
}

void NoticesModel::takeConfirm()
{
    View view = m_view;
    view.confirmShown = state().confirm().has_value();
    if (const std::optional<ConfirmData> &question = state().confirm()) {
        view.confirmBusy = false; // a new question takes the place of one that is leaving
        view.confirmIcon = question->iconImage ? AppIconImages::addressOf(*question->iconImage) : QString();
        view.confirmSymbol = question->symbol.value_or(QString());
        view.confirmTitle = question->title;
        view.confirmMessage = question->message;
        view.confirmLabels.clear();
        view.confirmValues.clear();
        for (const auto &[label, value] : question->rows) {
            view.confirmLabels.append(label);
            view.confirmValues.append(value);
        }
        view.confirmButton = question->confirmTitle;
    }
    show(m_view, std::move(view));
}

void NoticesModel::takeUpdate()
{
    View view = m_view;
    view.updateShown = state().updateInfo().has_value();
    if (const std::optional<UpdateInfo> &update = state().updateInfo()) {
        view.updateVersion = Text::filled(u"Version %@", {update->latestVersion});
        view.updateDate = update->releaseDate ? Format::date(*update->releaseDate) : QString();
        view.updateSize = update->fileSizeBytes ? Format::bytes(*update->fileSizeBytes) : QString();
        view.updateNotes = state().releaseNotes().value_or(QString());
    }
    show(m_view, std::move(view));
}

void NoticesModel::acceptConfirm()
{
    if (!m_view.confirmShown || m_view.confirmBusy)
        return;
    View view = m_view;
    view.confirmBusy = true;
    show(m_view, std::move(view));
    state().acceptConfirm();
}

void NoticesModel::cancelConfirm()
{
    if (!m_view.confirmBusy)
        state().cancelConfirm();
}

void NoticesModel::confirmHasLeft()
{
    View view = m_view;
    view.confirmBusy = false;
    show(m_view, std::move(view));
}

void NoticesModel::dismissAlert()
{
    state().dismissAlert();
}

void NoticesModel::downloadUpdate()
{
    state().downloadUpdate();
}

void NoticesModel::skipUpdate()
{
    state().skipUpdate();
}

void NoticesModel::postponeUpdate()
{
    state().postponeUpdate();
}
