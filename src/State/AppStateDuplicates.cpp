// SPDX-License-Identifier: MIT
#include "Services/DuplicateScanService.h"
#include "Services/TrashService.h"
#include "State/AppState.h"
#include "State/AppStateRuns.h"
#include "State/RemovalReports.h"
#include "State/Selections.h"
#include "Support/Text.h"
#include "Theme/Format.h"

#include <QCoro/QCoroFuture>
#include <QtConcurrent>

namespace {

/// The groups without some files; a file without a remaining copy is no duplicate any more.
QList<DuplicateGroup> thinned(const QList<DuplicateGroup> &groups, const QSet<FileURL> &removed)
{
    QList<DuplicateGroup> rest;
    for (const DuplicateGroup &group : groups) {
        DuplicateGroup left{.id = group.id, .files = RemovalReports::without(group.files, removed)};
        if (left.files.size() >= 2)
            rest.append(std::move(left));
    }
    return rest;
}

} // namespace

void AppState::rescanDuplicates()
{
    if (!m_duplicatesLoading)
        detach(runDuplicateScan(this, std::nullopt));
}

QCoro::Task<> AppState::scanDuplicates()
{
    return runDuplicateScan(this, std::nullopt);
}

QCoro::Task<> AppState::scanDuplicates(QList<FileURL> folders)
{
    return runDuplicateScan(this, std::move(folders));
}

QCoro::Task<> AppState::runDuplicateScan(QPointer<AppState> self, std::optional<QList<FileURL>> folders)
{
    LaneRun run(self, self->m_duplicatesLane);
    const Gate::Pass pass = co_await self->m_duplicatesLane.gate.enter();
    if (!run.goesOn())
        co_return;
    self->setScanDetail(Text::lookup(u"Finding duplicate files…"));
    DuplicateScanService::Options options{.folders = folders.value_or(self->m_duplicateFolders),
                                          .logFolder = self->m_environment.platform->places->temporaryFolder()};
    if (!self->hasUsableHome()) {
        options.folders.clear();
        self->setScanDetail(Text::lookup(u"No usable home folder"));
        Q_EMIT self->noUsableHome();
    }
    const auto work =
        QtConcurrent::run(&self->m_environment.pools->userInitiated,
                          [options, progress = self->progressOf(self->m_duplicatesLane), stop = run.stop()] {
                              return DuplicateScanService::scanSync(options, progress, stop);
                          });
    QList<DuplicateGroup> found = co_await work;
    if (run.goesOn())
        self->publish(self->m_duplicateGroups, std::move(found), &AppState::duplicateGroupsChanged);
}

QCoro::Task<RemovalReport> AppState::removeDuplicates(QSet<FileURL> selected, QList<DuplicateGroup> groups)
{
    return runDuplicateRemoval(this, std::move(selected), std::move(groups));
}

QCoro::Task<RemovalReport> AppState::runDuplicateRemoval(QPointer<AppState> self, QSet<FileURL> selected,
                                                         QList<DuplicateGroup> groups)
{
    const RemovalRun run(self);
    const Gate::Pass pass = co_await self->m_removalGate.enter();
    if (!self || !self->hasUsableHome())
        co_return {};
    QSet<FileURL> listed;
    for (const DuplicateGroup &group : std::as_const(self->m_duplicateGroups)) {
        for (const DuplicateFile &file : group.files)
            listed.insert(file.url);
    }
    const QList<DuplicateFile> files = Selections::selectedFiles(groups, selected.intersect(listed));
    if (files.isEmpty())
        co_return {};

    // What it came to is judged where it was done: among thousands of files that takes longer than a frame.
    const auto work = QtConcurrent::run(
        &self->m_environment.pools->userInitiated, [platform = self->m_environment.platform, files, stop = run.stop()] {
            const TrashResult result = TrashService::trash(*platform, RemovalReports::urlsOf(files), stop);
            return RemovalReports::settle(files, result, Outcomes::duplicates, Outcomes::Count::said);
        });
    auto settled = co_await work;
    if (!self)
        co_return settled.report;
    if (const qint64 count = settled.removed.size(); count > 0) {
        // One form for any number, on purpose: so the records have always read.
        settled.report.activity = RemovalReports::activityOf(
            ActivityKind::duplicatesRemoved, Text::filled(u"%lld duplicate files removed", {count}),
            Text::filled(u"%@ removed", {Format::bytes(settled.freed)}), settled.freed, self->m_environment.now());
        self->publish(self->m_duplicateGroups, thinned(self->m_duplicateGroups, settled.gone),
                      &AppState::duplicateGroupsChanged);
    }
    self->announce(settled.report);
    co_return settled.report;
}
