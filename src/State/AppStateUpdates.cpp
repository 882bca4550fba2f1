// SPDX-License-Identifier: MIT
#include "Services/UpdateService.h"
#include "State/AppState.h"
#include "Support/Text.h"
#include "Support/UserDefaults.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

std::expected<QUrl, QString> AppState::appcastURL() const
{
    return m_environment.appcastURL ? m_environment.appcastURL() : UpdateService::appcastURL();
}

QCoro::Task<UpdateOutcome> AppState::checkForUpdates(bool silent)
{
    return runUpdateCheck(this, silent);
}

QCoro::Task<UpdateOutcome> AppState::runUpdateCheck(QPointer<AppState> self, bool silent)
{
    if (self->m_isCheckingForUpdates)
        co_return UpdateOutcome::alreadyChecking;
    self->publish(self->m_isCheckingForUpdates, true, &AppState::isCheckingForUpdatesChanged);
    const auto idle = qScopeGuard([self] {
        if (self)
            self->publish(self->m_isCheckingForUpdates, false, &AppState::isCheckingForUpdatesChanged);
    });

    const std::expected<QUrl, QString> address = self->appcastURL();
    std::expected<UpdateInfo, UpdateService::Failure> feed = std::unexpected(UpdateService::Failure::badAddress);
    if (address)
        feed = co_await UpdateService::fetchAppcast(*address, self->m_environment.updateTimeout);
    if (!self)
        co_return UpdateOutcome::unreachable;
    if (!feed) {
        if (!silent) {
            self->showToast(u"wifi.exclamationmark"_s, Tint::paused,
                            Text::lookup(u"Can't reach the update server. Check your network and try again."));
        }
        co_return UpdateOutcome::unreachable;
    }
    if (!UpdateService::isVersion(feed->latestVersion, UpdateService::currentVersion())) {
        if (!silent)
            self->showToast(u"checkmark.seal.fill"_s, Tint::success, Text::lookup(u"You're up to date!"));
        co_return UpdateOutcome::upToDate;
    }
    if (self->m_environment.defaults->text(DefaultsKey::skippedUpdateVersion) == feed->latestVersion)
        co_return UpdateOutcome::skipped;
    self->publish(self->m_updateInfo, *feed, &AppState::updateInfoChanged);
    co_return UpdateOutcome::available;
}

void AppState::skipUpdate()
{
    if (!m_updateInfo)
        return;
    m_environment.defaults->setText(DefaultsKey::skippedUpdateVersion, m_updateInfo->latestVersion);
    publish(m_updateInfo, std::nullopt, &AppState::updateInfoChanged);
}

void AppState::downloadUpdate()
{
    if (!m_updateInfo)
        return;
    m_environment.platform->workspace->open(m_updateInfo->downloadURL);
    publish(m_updateInfo, std::nullopt, &AppState::updateInfoChanged);
}

void AppState::postponeUpdate()
{
    publish(m_updateInfo, std::nullopt, &AppState::updateInfoChanged);
}

QString AppState::version()
{
    return UpdateService::currentVersion();
}

std::optional<QString> AppState::releaseNotes() const
{
    return m_updateInfo ? UpdateService::localizedReleaseNotes(*m_updateInfo) : std::nullopt;
}
