// SPDX-License-Identifier: MIT
#include "Services/LargeFileScanService.h"
#include "Services/TrashService.h"
#include "State/AppState.h"
#include "State/AppStateRuns.h"
#include "State/Outcomes.h"
#include "State/RemovalReports.h"
#include "State/Totals.h"
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
    QList<LargeFile> files;
    std::ranges::copy_if(self->m_largeFiles, std::back_inserter(files),
                         [&selected](const LargeFile &file) { return selected.contains(file.url); });
    if (files.isEmpty())
        co_return {};

    const auto work = QtConcurrent::run(&self->m_environment.pools->userInitiated,
                                        [platform = self->m_environment.platform, urls = RemovalReports::urlsOf(files),
                                         stop = run.stop()] { return TrashService::trash(*platform, urls, stop); });
    const TrashResult result = co_await work;
    const QList<LargeFile> removed = RemovalReports::without(files, RemovalReports::stayed(result));
    const qint64 count = removed.size();
    const qint64 freed = Totals::sizeOf(removed);
    RemovalReport report = RemovalReports::reportOf(result, RemovalReports::sizesOf(files));
    auto [toast, alert] = Outcomes::outcomeOf({.removedCount = count,
                                               .failedCount = result.failed.size(),
                                               .bytes = freed,
                                               .firstError = RemovalReports::firstError(result),
                                               .partialTitle = {}},
                                              Outcomes::largeFiles);
    report.toast = std::move(toast);
    report.alert = std::move(alert);
    if (!self)
        co_return report;
    if (count > 0) {
        report.activity = ActivityRecord{.id = QUuid::createUuid(),
                                         .kind = ActivityKind::largeFilesRemoved,
                                         .title = count == 1 ? Text::filled(u"%lld large file removed", {count})
                                                             : Text::filled(u"%lld large files removed", {count}),
                                         .detail = Text::filled(u"%@ freed", {Format::bytes(freed)}),
                                         .bytes = freed,
                                         .date = self->m_environment.now()};
        const QList<FileURL> gone = RemovalReports::urlsOf(removed);
        self->publish(self->m_largeFiles,
                      RemovalReports::without(self->m_largeFiles, QSet<FileURL>(gone.cbegin(), gone.cend())),
                      &AppState::largeFilesChanged);
    }
    self->announce(report);
    co_return report;
}
