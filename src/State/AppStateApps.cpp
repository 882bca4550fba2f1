// SPDX-License-Identifier: MIT
#include "Models/CheckedSum.h"
#include "Services/AppScanService.h"
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

#include <algorithm>

namespace {

/// All locations of the applications, related files first: an application's own support files move before its bundle.
QList<TrashService::Item> itemsOf(const QList<InstalledApp> &apps)
{
    QList<TrashService::Item> items;
    for (const InstalledApp &app : apps) {
        for (const RelatedFile &file : app.relatedFiles)
            items.append({.url = file.url, .whole = Whole::No});
    }
    for (const InstalledApp &app : apps)
        items.append({.url = app.url, .whole = Whole::Yes});
    return items;
}

QHash<FileURL, std::optional<qint64>> sizesOf(const QList<InstalledApp> &apps)
{
    QHash<FileURL, std::optional<qint64>> sizes;
    for (const InstalledApp &app : apps) {
        sizes.insert(app.url, app.bundleSize);
        for (const RelatedFile &file : app.relatedFiles)
            sizes.insert(file.url, file.size);
    }
    return sizes;
}

RemovalReport reportOf(const QList<InstalledApp> &apps, const QList<InstalledApp> &removed, const TrashResult &result,
                       const QDateTime &now)
{
    const qint64 total = checkedTotal(apps, [](const InstalledApp &app) { return Totals::sizeOf(app); });
    const qint64 count = removed.size();
    RemovalReport report = RemovalReports::reportOf(result, sizesOf(apps));
    const QString title = count == 1 ? Text::filled(u"%@ uninstalled", {removed.first().name})
                                     : Text::filled(u"%lld apps uninstalled", {count});
    auto [toast, alert] = Outcomes::outcomeOf({.removedCount = count,
                                               .failedCount = result.failed.size(),
                                               .bytes = total,
                                               .firstError = RemovalReports::firstError(result),
                                               .partialTitle = title},
                                              Outcomes::apps);
    report.toast = std::move(toast);
    report.alert = std::move(alert);
    report.bytes = count > 0 ? total : 0;
    if (count > 0) {
        report.activity = RemovalReports::activityOf(ActivityKind::appUninstalled, title,
                                                     Text::filled(u"%@ removed", {Format::bytes(total)}), total, now);
    }
    return report;
}

} // namespace

QCoro::Task<> AppState::scanApps()
{
    return runAppScan(this);
}

QCoro::Task<> AppState::runAppScan(QPointer<AppState> self)
{
    LaneRun run(self, self->m_appsLane);
    self->setScanDetail(Text::lookup(u"Scanning applications…"));
    const Gate::Pass pass = co_await self->m_appsLane.gate.enter();
    if (!run.goesOn())
        co_return;
    if (!self->hasUsableHome()) {
        self->setScanDetail(Text::lookup(u"No usable home folder"));
        Q_EMIT self->noUsableHome();
    }
    const auto work =
        QtConcurrent::run(&self->m_environment.pools->userInitiated, [platform = self->m_environment.platform] {
            return platform->places->home() ? AppScanService::listApps(*platform) : QList<InstalledApp>{};
        });
    QList<InstalledApp> found = co_await work;
    if (!run.goesOn())
        co_return;
    self->m_detailsTask.cancel();
    self->publish(self->m_apps, std::move(found), &AppState::appsChanged);
    run.end();
    co_await askForLibraryAndProbe(self, run.stop());
    if (run.goesOn())
        self->startDetails();
}

QCoro::Task<> AppState::askForLibraryAndProbe(QPointer<AppState> self, CancelToken cancel)
{
    // Whatever the answer, the scan goes on: what cannot be read only thins the related files.
    if (const auto library = self->m_environment.platform->places->library()) {
        co_await AccessStore::ensureAccess(self->accessContext(), AccessStore::libraryForApps.key, *library,
                                           Text::lookup(AccessStore::libraryForApps.message));
    }
    if (self && !cancel.isCancelled())
        co_await probeFullDiskAccess(self);
}

void AppState::startDetails()
{
    const CancelToken cancel = m_detailsTask.renew();
    const QList<InstalledApp> apps = m_apps;
    m_detailsLeft = apps.size();
    publish(m_appDetailsLoading, !apps.isEmpty(), &AppState::appDetailsLoadingChanged);
    for (const InstalledApp &app : apps)
        detach(measureApp(this, cancel, app));
}

QCoro::Task<> AppState::measureApp(QPointer<AppState> self, CancelToken cancel, InstalledApp app)
{
    const auto work = QtConcurrent::run(&self->m_environment.pools->userInitiated,
                                        [platform = self->m_environment.platform, app, cancel] {
                                            return AppScanService::computeDetails(*platform, app, cancel);
                                        });
    const AppScanService::Details details = co_await work;
    if (self && !cancel.isCancelled())
        self->takeDetails(cancel, app.url, details.size, details.related);
}

void AppState::takeDetails(const CancelToken &cancel, const FileURL &bundle, std::optional<qint64> size,
                           const QList<RelatedFile> &related)
{
    if (!m_detailsTask.holds(cancel))
        return;
    // By identity, never by position: leftovers that landed in another row would be removed with it.
    if (const auto row = std::ranges::find(m_apps, bundle, &InstalledApp::url); row != m_apps.end()) {
        row->bundleSize = size;
        row->relatedFiles = related;
        row->detailed = true;
        Q_EMIT appsChanged();
    }
    if (--m_detailsLeft == 0)
        publish(m_appDetailsLoading, false, &AppState::appDetailsLoadingChanged);
}

QCoro::Task<RemovalReport> AppState::uninstallApps(QSet<FileURL> bundles)
{
    return runUninstall(this, std::move(bundles));
}

QCoro::Task<RemovalReport> AppState::runUninstall(QPointer<AppState> self, QSet<FileURL> bundles)
{
    const RemovalRun run(self);
    const Gate::Pass pass = co_await self->m_removalGate.enter();
    if (!self || !self->hasUsableHome())
        co_return {};
    QList<InstalledApp> apps;
    std::ranges::copy_if(self->m_apps, std::back_inserter(apps),
                         [&bundles](const InstalledApp &app) { return bundles.contains(app.url); });
    if (apps.isEmpty())
        co_return {};

    const auto work = QtConcurrent::run(&self->m_environment.pools->userInitiated,
                                        [platform = self->m_environment.platform, items = itemsOf(apps),
                                         stop = run.stop()] { return TrashService::trash(*platform, items, stop); });
    const TrashResult result = co_await work;
    const QList<InstalledApp> removed = RemovalReports::without(apps, RemovalReports::stayed(result));
    RemovalReport report = reportOf(apps, removed, result, self ? self->m_environment.now() : QDateTime());
    if (!self)
        co_return report;
    const QList<FileURL> gone = RemovalReports::urlsOf(removed);
    self->publish(self->m_apps, RemovalReports::without(self->m_apps, QSet<FileURL>(gone.cbegin(), gone.cend())),
                  &AppState::appsChanged);
    self->announce(report);
    co_return report;
}
