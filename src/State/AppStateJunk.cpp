// SPDX-License-Identifier: MIT
#include "Services/JunkScanService.h"
#include "Services/TrashService.h"
#include "State/AppState.h"
#include "State/AppStateRuns.h"
#include "State/RemovalReports.h"
#include "State/Totals.h"
#include "Support/Text.h"
#include "Theme/Format.h"

#include <QCoro/QCoroFuture>
#include <QtConcurrent>

#include <algorithm>

void AppState::scanJunk()
{
    if (!m_junkLoading)
        detach(runJunkScan(this));
}

QCoro::Task<> AppState::scanJunkAsync()
{
    return runJunkScan(this);
}

QCoro::Task<> AppState::runJunkScan(QPointer<AppState> self)
{
    LaneRun run(self, self->m_junkLane);
    const Gate::Pass pass = co_await self->m_junkLane.gate.enter();
    if (!run.goesOn())
        co_return;
    if (!self->hasUsableHome()) {
        self->setScanDetail(Text::lookup(u"No usable home folder"));
        Q_EMIT self->noUsableHome();
    }
    QList<JunkCategory> found =
        co_await JunkScanService::scan(self->accessContext(), &self->m_environment.pools->userInitiated,
                                       self->m_environment.now(), self->progressOf(self->m_junkLane), run.stop());
    if (!run.goesOn())
        co_return;
    self->publish(self->m_junkCategories, std::move(found), &AppState::junkCategoriesChanged);
    run.end();
    co_await probeFullDiskAccess(self);
}

QCoro::Task<RemovalReport> AppState::removeJunkCategory(QUuid id)
{
    return runJunkRemoval(this, id);
}

QCoro::Task<RemovalReport> AppState::runJunkRemoval(QPointer<AppState> self, QUuid id)
{
    const RemovalRun run(self);
    const Gate::Pass pass = co_await self->m_removalGate.enter();
    if (!self || !self->hasUsableHome())
        co_return {};
    const auto found = std::ranges::find(self->m_junkCategories, id, &JunkCategory::id);
    if (found == self->m_junkCategories.cend() || found->files.isEmpty())
        co_return {};
    const JunkCategory category = *found;

    // What it came to is judged where it was done: among thousands of files that takes longer than a frame.
    const auto work =
        QtConcurrent::run(&self->m_environment.pools->userInitiated, [platform = self->m_environment.platform, category,
                                                                      stop = run.stop()] {
            const QList<FileURL> urls = RemovalReports::urlsOf(category.files);
            const TrashResult result = category.deletesDirectly ? TrashService::deletePermanently(*platform, urls, stop)
                                                                : TrashService::trash(*platform, urls, stop);
            return RemovalReports::settle(category.files, result, Outcomes::junk);
        });
    auto settled = co_await work;
    if (!self)
        co_return settled.report;
    if (!settled.removed.isEmpty()) {
        settled.report.activity = RemovalReports::activityOf(
            ActivityKind::junkRemoved, Text::filled(u"%@ cleaned", {Text::lookup(category.name)}),
            Text::filled(u"%@ freed", {Format::bytes(settled.freed)}), settled.freed, self->m_environment.now());
    }
    self->dropFromJunk(settled.gone);
    self->announce(settled.report);
    co_return settled.report;
}

void AppState::dropFromJunk(const QSet<FileURL> &removed)
{
    // A file may be listed by two categories: what is gone leaves both, by its URL, in whatever list is published now.
    QList<JunkCategory> rest;
    for (const JunkCategory &category : std::as_const(m_junkCategories)) {
        JunkCategory thinned = category;
        thinned.files = RemovalReports::without(category.files, removed);
        thinned.totalSize = Totals::sizeOf(thinned.files);
        if (!thinned.files.isEmpty())
            rest.append(thinned);
    }
    publish(m_junkCategories, std::move(rest), &AppState::junkCategoriesChanged);
}
