// SPDX-License-Identifier: MIT
#include "State/AppState.h"

#include "Services/ActivityStore.h"
#include "State/AppStateRuns.h"
#include "State/Totals.h"
#include "Support/LanguageManager.h"
#include "Support/Text.h"
#include "Support/UserDefaults.h"
#include "Theme/Format.h"

#include <QCoreApplication>

#include <array>

using namespace Qt::StringLiterals;

AppState::AppState(AppEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_environment(std::move(environment))
    , m_language(languageFromRaw(m_environment.defaults->text(DefaultsKey::appLanguage).value_or(QString())))
    , m_memoryTotal(m_environment.platform->systemFigures->physicalMemory())
{
    m_appearance = appearanceFromRaw(m_environment.defaults->integer(DefaultsKey::appearance));
    m_activities = ActivityStore::load(*m_environment.platform->places);
    m_duplicateFolders = loadDuplicateFolders();
    saveDuplicateFolders();
    m_largeFileFolders = loadLargeFileFolders();
    saveLargeFileFolders();
    refreshAvailableDisk();

    m_toastTask.setSingleShot(true);
    connect(&m_toastTask, &QTimer::timeout, this, [this] { publish(m_toast, std::nullopt, &AppState::toastChanged); });
    connect(&m_statsTask, &QTimer::timeout, this, &AppState::refreshSystemStats);
}

AppState::~AppState()
{
    // Work in flight holds the state weakly; it only has to be told that nobody waits any more.
    for (const Lane *lane : {&m_appsLane, &m_duplicatesLane, &m_largeFilesLane, &m_junkLane, &m_startupLane})
        lane->stop.cancel();
    m_stopRemovals.cancel();
}

double AppState::memoryUsageRatio() const
{
    return m_memoryTotal < 1 ? 0 : static_cast<double>(m_memoryUsed) / static_cast<double>(m_memoryTotal);
}

double AppState::freeableProgress() const
{
    return Totals::freeableProgress(
        checkedSum(checkedSum(unusedAppsSize(), duplicateReclaimable()), junkReclaimable()));
}

qint64 AppState::unusedAppsSize() const
{
    return Totals::unusedAppsSize(m_apps, m_environment.now());
}

bool AppState::isUnused(const InstalledApp &app) const
{
    return Totals::isUnused(app, m_environment.now());
}

qint64 AppState::duplicateReclaimable() const
{
    return Totals::reclaimable(m_duplicateGroups);
}

qint64 AppState::largeFilesTotalSize() const
{
    return Totals::sizeOf(m_largeFiles);
}

qint64 AppState::junkReclaimable() const
{
    return Totals::sizeOf(m_junkCategories);
}

bool AppState::hasUsableHome() const
{
    return m_environment.platform->places->home().has_value();
}

void AppState::setSelection(Page page)
{
    publish(m_selection, page, &AppState::selectionChanged);
}

void AppState::setAppearance(AppearanceOption appearance)
{
    m_environment.defaults->setInteger(DefaultsKey::appearance, static_cast<int>(appearance));
    publish(m_appearance, appearance, &AppState::appearanceChanged);
}

void AppState::setLanguage(AppLanguage language)
{
    LanguageManager::apply(language, *m_environment.defaults);
    publish(m_language, language, &AppState::languageChanged);
    askAgain();
}

void AppState::startInitialScan()
{
    startStatsMonitoring();
    if (m_apps.isEmpty() && m_duplicateGroups.isEmpty())
        rescanAll();
}

void AppState::rescanAll()
{
    if (m_scanning)
        return;
    publish(m_scanning, true, &AppState::scanningChanged);
    refreshAvailableDisk();
    detach(runFullRescan(this, m_scanTask.renew()));
}

QCoro::Task<> AppState::runFullRescan(QPointer<AppState> self, CancelToken cancel)
{
    constexpr std::array scans{
        &AppState::scanApps, static_cast<QCoro::Task<> (AppState::*)()>(&AppState::scanDuplicates),
        &AppState::scanJunkAsync, static_cast<QCoro::Task<> (AppState::*)()>(&AppState::scanLargeFilesAsync)};
    for (const auto scan : scans) {
        if (!self || cancel.isCancelled())
            co_return;
        co_await (self->*scan)();
    }
    if (!self || cancel.isCancelled())
        co_return;
    self->publish(self->m_scanning, false, &AppState::scanningChanged);
    self->publish(self->m_scanDetail, QString(), &AppState::scanDetailChanged);
    const qint64 total =
        checkedSum(checkedSum(self->unusedAppsSize(), self->duplicateReclaimable()), self->junkReclaimable());
    self->showToast(u"checkmark.circle.fill"_s, Tint::success,
                    Text::filled(u"Scan complete — %@ can be freed", {Format::bytes(total)}));
}

void AppState::stopScans()
{
    m_scanTask.cancel();
    m_detailsTask.cancel();
    for (Lane *lane : {&m_appsLane, &m_duplicatesLane, &m_largeFilesLane, &m_junkLane, &m_startupLane}) {
        lane->stop.cancel();
        lane->stop = CancelToken();
        lane->running = 0;
        publish(this->*lane->flag, false, lane->changed);
    }
    publish(m_appDetailsLoading, false, &AppState::appDetailsLoadingChanged);
    publish(m_scanning, false, &AppState::scanningChanged);
    publish(m_scanDetail, QString(), &AppState::scanDetailChanged);
}

void AppState::stopRemovals()
{
    m_stopRemovals.cancel();
    m_stopRemovals = CancelToken();
}

Progress AppState::progressOf(const Lane &lane)
{
    // Sent from whichever thread works: only the main thread looks into the pointer.
    return [self = QPointer(this), stop = lane.stop](const QString &text) {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [self, stop, text] {
                if (self && !stop.isCancelled())
                    self->setScanDetail(text);
            },
            Qt::QueuedConnection);
    };
}

void AppState::setScanDetail(const QString &text)
{
    // A text that was still on its way when its scan ended must not reappear.
    if (anyLaneRuns() || m_scanning)
        publish(m_scanDetail, text, &AppState::scanDetailChanged);
}

void AppState::clearDetailWhenIdle()
{
    if (!anyLaneRuns() && !m_scanning)
        publish(m_scanDetail, QString(), &AppState::scanDetailChanged);
}

bool AppState::anyLaneRuns() const
{
    return m_appsLoading || m_duplicatesLoading || m_largeFilesLoading || m_junkLoading || m_startupLoading;
}

AccessContext AppState::accessContext() const
{
    return {.platform = m_environment.platform, .defaults = m_environment.defaults, .panel = m_environment.panel};
}
