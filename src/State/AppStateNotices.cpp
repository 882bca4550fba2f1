// SPDX-License-Identifier: MIT
#include "Services/ActivityStore.h"
#include "State/AppState.h"

void AppState::showToast(const QString &symbol, quint32 tintHex, const QString &message)
{
    publish(m_toast, ToastData{.symbol = symbol, .tintHex = tintHex, .message = message}, &AppState::toastChanged);
    m_toastTask.start(m_environment.toastTime); // a timer that runs is started afresh
}

void AppState::raiseAlert(const QString &title, const QString &message)
{
    publish(m_alert, AlertData{.id = QUuid::createUuid(), .title = title, .message = message}, &AppState::alertChanged);
}

void AppState::dismissAlert()
{
    publish(m_alert, std::nullopt, &AppState::alertChanged);
}

void AppState::askToConfirm(ConfirmData question)
{
    publish(m_confirm, std::move(question), &AppState::confirmChanged);
}

/// Puts an open question again, in the language of now: it stays the same question.
void AppState::askAgain()
{
    if (!m_confirm || !m_confirm->again)
        return;
    ConfirmData question = m_confirm->again();
    question.id = m_confirm->id;
    question.onConfirm = m_confirm->onConfirm;
    m_confirm = std::move(question);
    Q_EMIT confirmChanged();
}

void AppState::acceptConfirm()
{
    if (!m_confirm)
        return;
    const std::function<void()> action = m_confirm->onConfirm;
    publish(m_confirm, std::nullopt, &AppState::confirmChanged);
    if (action)
        action();
}

void AppState::cancelConfirm()
{
    publish(m_confirm, std::nullopt, &AppState::confirmChanged);
}

void AppState::addActivity(const ActivityRecord &record)
{
    QList<ActivityRecord> records = m_activities;
    records.prepend(record);
    if (records.size() > ActivityStore::kMaxRecords)
        records.resize(ActivityStore::kMaxRecords);
    publish(m_activities, std::move(records), &AppState::activitiesChanged);
    ActivityStore::save(*m_environment.platform->places, m_activities);
}

void AppState::announce(RemovalReport &report)
{
    if (report.activity)
        addActivity(*report.activity);
    if (report.toast)
        showToast(report.toast->symbol, report.toast->tintHex, report.toast->message);
    if (report.alert)
        publish(m_alert, report.alert, &AppState::alertChanged);
}
