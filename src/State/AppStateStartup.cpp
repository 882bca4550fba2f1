// SPDX-License-Identifier: MIT
#include "Services/StartupScanService.h"
#include "State/AppState.h"
#include "State/AppStateRuns.h"
#include "State/Confirmations.h"
#include "State/Outcomes.h"
#include "State/RemovalReports.h"
#include "Support/Text.h"

#include <QCoro/QCoroFuture>
#include <QtConcurrent>

#include <algorithm>

using namespace Qt::StringLiterals;

void AppState::rescanStartupItems()
{
    if (!m_startupLoading)
        detach(runStartupScan(this));
}

QCoro::Task<> AppState::scanStartupItems()
{
    return runStartupScan(this);
}

QCoro::Task<> AppState::runStartupScan(QPointer<AppState> self)
{
    LaneRun run(self, self->m_startupLane);
    const Gate::Pass pass = co_await self->m_startupLane.gate.enter();
    if (!run.goesOn())
        co_return;
    if (!self->hasUsableHome())
        Q_EMIT self->noUsableHome();
    const auto work =
        QtConcurrent::run(&self->m_environment.pools->userInitiated, [platform = self->m_environment.platform] {
            return platform->places->home() ? StartupScanService::scanSync(*platform) : QList<StartupItem>{};
        });
    QList<StartupItem> found = co_await work;
    if (run.goesOn())
        self->publish(self->m_startupItems, std::move(found), &AppState::startupItemsChanged);
}

QCoro::Task<std::optional<StartupItem>> AppState::toggleStartupItem(StartupItem item)
{
    return runToggle(this, std::move(item));
}

QCoro::Task<std::optional<StartupItem>> AppState::runToggle(QPointer<AppState> self, StartupItem item)
{
    const Gate::Pass pass = co_await self->m_removalGate.enter();
    if (!self || !self->hasUsableHome())
        co_return std::nullopt;
    // The row as it is now, so that a second click switches back and never writes the same value twice.
    const auto row = std::ranges::find(self->m_startupItems, item.path, &StartupItem::path);
    if (row == self->m_startupItems.end())
        co_return std::nullopt;
    StartupItem now = *row;
    const auto work =
        QtConcurrent::run(&self->m_environment.pools->userInitiated, [platform = self->m_environment.platform, now] {
            return StartupScanService::toggleItem(*platform, now);
        });
    now.isEnabled = co_await work;
    if (!self)
        co_return now;
    QList<StartupItem> items = self->m_startupItems;
    std::ranges::replace_if(
        items, [&now](const StartupItem &other) { return other.path == now.path; }, now);
    self->publish(self->m_startupItems, std::move(items), &AppState::startupItemsChanged);
    const QString name = Confirmations::displayName(now);
    if (now.isEnabled)
        self->showToast(u"checkmark.circle.fill"_s, Tint::success, Text::filled(u"%@ enabled", {name}));
    else
        self->showToast(u"pause.circle.fill"_s, Tint::paused, Text::filled(u"%@ disabled", {name}));
    co_return now;
}

QCoro::Task<RemovalReport> AppState::removeStartupItem(StartupItem item)
{
    return runStartupRemoval(this, std::move(item));
}

QCoro::Task<RemovalReport> AppState::runStartupRemoval(QPointer<AppState> self, StartupItem item)
{
    const RemovalRun run(self);
    const Gate::Pass pass = co_await self->m_removalGate.enter();
    RemovalReport report;
    if (!self || !self->hasUsableHome())
        co_return report;
    if (std::ranges::find(self->m_startupItems, item.path, &StartupItem::path) == self->m_startupItems.cend())
        co_return report;
    const auto work =
        QtConcurrent::run(&self->m_environment.pools->userInitiated, [platform = self->m_environment.platform, item] {
            const auto removed = StartupScanService::removeItem(*platform, item);
            return removed ? std::error_code() : removed.error();
        });
    // The expected itself is no default-constructible future result in every library, its error is.
    const std::error_code error = co_await work;
    if (!self)
        co_return report;
    if (error) {
        report.failed.append({.url = item.path, .error = error});
        report.alert = AlertData{.id = QUuid::createUuid(),
                                 .title = Text::lookup(u"Can't remove startup item"),
                                 .message = Outcomes::words(error)};
        self->announce(report);
        co_return report;
    }
    QList<StartupItem> items = self->m_startupItems;
    items.removeIf([&item](const StartupItem &other) { return other.path == item.path; });
    self->publish(self->m_startupItems, std::move(items), &AppState::startupItemsChanged);
    const QString name = Confirmations::displayName(item);
    report.removed.append({.url = item.path, .size = {}});
    report.activity = RemovalReports::activityOf(ActivityKind::startupItemRemoved, Text::filled(u"%@ removed", {name}),
                                                 Text::lookup(rawValue(item.type)), 0, self->m_environment.now());
    report.toast = ToastData{
        .symbol = u"checkmark.circle.fill"_s, .tintHex = Tint::success, .message = Text::filled(u"Removed %@", {name})};
    self->announce(report);
    co_return report;
}
