// SPDX-License-Identifier: MIT
#include "Services/LargeFileScanService.h"
#include "Services/TrashService.h"
#include "State/AppState.h"
#include "State/AppStateRuns.h"
#include "State/RemovalReports.h"
#include "Support/Text.h"
#include "Theme/Format.h"

#include <QCoro/QCoroFuture>
#include <QtConcurrent>

void AppState::scanLargeFiles(std::optional<QList<FileURL>> folders, qint64 minSize)
{
    if (!m_largeFilesLoading)
        detach(runLargeFileScan(this, std::move(folders), minSize));
}

QCoro::Task<> AppState::scanLargeFilesAsync()
{
    return runLargeFileScan(this, std::nullopt, LargeFileScanService::kDefaultMinSize);
}

QCoro::Task<> AppState::scanLargeFilesAsync(std::optional<QList<FileURL>> folders, qint64 minSize)
{
    return runLargeFileScan(this, std::move(folders), minSize);
}

QCoro::Task<> AppState::runLargeFileScan(QPointer<AppState> self, std::optional<QList<FileURL>> folders, qint64 minSize)
{
    LaneRun run(self, self->m_largeFilesLane);
    const Gate::Pass pass = co_await self->m_largeFilesLane.gate.enter();
    if (!run.goesOn())
        co_return;
    self->setScanDetail(Text::lookup(u"Scanning for large files…"));
    LargeFileScanService::Options options{.folders = folders.value_or(self->m_largeFileFolders), .minSize = minSize};
    if (!self->hasUsableHome()) {
        options.folders.clear();
        self->setScanDetail(Text::lookup(u"No usable home folder"));
        Q_EMIT self->noUsableHome();
    }
    const auto work =
        QtConcurrent::run(&self->m_environment.pools->userInitiated,
                          [options, progress = self->progressOf(self->m_largeFilesLane), stop = run.stop()] {
                              return LargeFileScanService::scanSync(options, progress, stop);
                          });
    QList<LargeFile> found = co_await work;
    if (run.goesOn())
        self->publish(self->m_largeFiles, std::move(found), &AppState::largeFilesChanged);
}

QCoro::Task<RemovalReport> AppState::removeLargeFiles(QSet<FileURL> selected)
{
    return runLargeFileRemoval(this, std::move(selected));
}

QCoro::Task<RemovalReport> AppState::runLargeFileRemoval(QPointer<AppState> self, QSet<FileURL> selected)
{
    const RemovalRun run(self);
    const Gate::Pass pass = co_await self->m_removalGate.enter();
    if (!self || !self->hasUsableHome())
        co_return {};
    const QList<LargeFile> listed = self->m_largeFiles;
    if (std::ranges::none_of(listed, [&selected](const LargeFile &file) { return selected.contains(file.url); }))
        co_return {};

    // What it came to is judged where it was done: among thousands of files that takes longer than a frame.
    const auto work = QtConcurrent::run(
        &self->m_environment.pools->userInitiated,
        [platform = self->m_environment.platform, listed, selected = std::move(selected), stop = run.stop()] {
            QList<LargeFile> files;
            std::ranges::copy_if(listed, std::back_inserter(files),
                                 [&selected](const LargeFile &file) { return selected.contains(file.url); });
            const TrashResult result = TrashService::trash(*platform, RemovalReports::urlsOf(files), stop);
            auto settled = RemovalReports::settle(files, result, Outcomes::largeFiles);
            QList<LargeFile> left = RemovalReports::without(listed, settled.gone);
            return std::pair(std::move(settled), std::move(left));
        });
    auto [settled, left] = co_await work;
    if (!self)
        co_return settled.report;
    if (const qint64 count = settled.removed.size(); count > 0) {
        settled.report.activity = RemovalReports::activityOf(
            ActivityKind::largeFilesRemoved,
            count == 1 ? Text::filled(u"%lld large file removed", {count})
                       : Text::filled(u"%lld large files removed", {count}),
            Text::filled(u"%@ freed", {Format::bytes(settled.freed)}), settled.freed, self->m_environment.now());
        // A scan may have published another list meanwhile.
        if (!self->m_largeFiles.isSharedWith(listed))
            left = RemovalReports::without(self->m_largeFiles, settled.gone);
        self->publish(self->m_largeFiles, std::move(left), &AppState::largeFilesChanged);
    }
    self->announce(settled.report);
    co_return settled.report;
}
