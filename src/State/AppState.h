// SPDX-License-Identifier: MIT
#pragma once

#include "Models/ActivityRecord.h"
#include "Models/Duplicates.h"
#include "Models/InstalledApp.h"
#include "Models/Junk.h"
#include "Models/LargeFile.h"
#include "Models/Notices.h"
#include "Models/Preferences.h"
#include "Models/Removal.h"
#include "Models/StartupItem.h"
#include "Models/UpdateInfo.h"
#include "Platform/Platform.h"
#include "Services/AccessStore.h"
#include "Support/CancelToken.h"
#include "Support/Gate.h"
#include "Support/Progress.h"
#include "Support/Tasks.h"

#include <QCoro/QCoroTask>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <QUuid>

#include <chrono>
#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

class FolderPanel;
class UserDefaults;

/// What the state is built over. The pointers outlive the state.
struct AppEnvironment {
    std::shared_ptr<const Platform> platform;
    UserDefaults *defaults = nullptr;
    FolderPanel *panel = nullptr;
    TaskPools *pools = nullptr;
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTimeUtc(); };
    std::function<std::expected<QUrl, QString>()> appcastURL = {}; // the service's own when absent
    std::chrono::milliseconds toastTime{3'200};
    std::chrono::milliseconds statsInterval{2'000};
    std::chrono::milliseconds updateTimeout{8'000};
};

/// How an update check ended.
enum class UpdateOutcome { alreadyChecking, unreachable, upToDate, skipped, available };

/// Everything the program knows and does: the one observable object that pages, panel and command line read and
/// call. Lives on the main thread. Every operation does its slow work off it, publishes in one assignment, then clears
/// its flag; an operation that outlives the state ends quietly.
class AppState final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Page selection READ selection WRITE setSelection NOTIFY selectionChanged FINAL)
    Q_PROPERTY(AppearanceOption appearance READ appearance WRITE setAppearance NOTIFY appearanceChanged FINAL)
    Q_PROPERTY(AppLanguage language READ language WRITE setLanguage NOTIFY languageChanged FINAL)
    Q_PROPERTY(QList<InstalledApp> apps READ apps NOTIFY appsChanged FINAL)
    Q_PROPERTY(bool appsLoading READ appsLoading NOTIFY appsLoadingChanged FINAL)
    Q_PROPERTY(bool appDetailsLoading READ appDetailsLoading NOTIFY appDetailsLoadingChanged FINAL)
    Q_PROPERTY(QList<DuplicateGroup> duplicateGroups READ duplicateGroups NOTIFY duplicateGroupsChanged FINAL)
    Q_PROPERTY(bool duplicatesLoading READ duplicatesLoading NOTIFY duplicatesLoadingChanged FINAL)
    Q_PROPERTY(QList<LargeFile> largeFiles READ largeFiles NOTIFY largeFilesChanged FINAL)
    Q_PROPERTY(bool largeFilesLoading READ largeFilesLoading NOTIFY largeFilesLoadingChanged FINAL)
    Q_PROPERTY(QList<JunkCategory> junkCategories READ junkCategories NOTIFY junkCategoriesChanged FINAL)
    Q_PROPERTY(bool junkLoading READ junkLoading NOTIFY junkLoadingChanged FINAL)
    Q_PROPERTY(QList<StartupItem> startupItems READ startupItems NOTIFY startupItemsChanged FINAL)
    Q_PROPERTY(bool startupLoading READ startupLoading NOTIFY startupLoadingChanged FINAL)
    Q_PROPERTY(bool scanning READ scanning NOTIFY scanningChanged FINAL)
    Q_PROPERTY(QString scanDetail READ scanDetail NOTIFY scanDetailChanged FINAL)
    Q_PROPERTY(bool removing READ removing NOTIFY removingChanged FINAL)
    Q_PROPERTY(qint64 availableDisk READ availableDisk NOTIFY availableDiskChanged FINAL)
    Q_PROPERTY(bool needsFullDiskAccess READ needsFullDiskAccess NOTIFY needsFullDiskAccessChanged FINAL)
    Q_PROPERTY(double cpuUsage READ cpuUsage NOTIFY cpuUsageChanged FINAL)
    Q_PROPERTY(qint64 memoryUsed READ memoryUsed NOTIFY memoryUsedChanged FINAL)
    Q_PROPERTY(qint64 memoryTotal READ memoryTotal NOTIFY memoryTotalChanged FINAL)
    Q_PROPERTY(std::optional<double> diskTemperature READ diskTemperature NOTIFY diskTemperatureChanged FINAL)
    Q_PROPERTY(QList<FileURL> duplicateFolders READ duplicateFolders NOTIFY duplicateFoldersChanged FINAL)
    Q_PROPERTY(QList<FileURL> largeFileFolders READ largeFileFolders NOTIFY largeFileFoldersChanged FINAL)
    Q_PROPERTY(QList<ActivityRecord> activities READ activities NOTIFY activitiesChanged FINAL)
    Q_PROPERTY(std::optional<ToastData> toast READ toast NOTIFY toastChanged FINAL)
    Q_PROPERTY(std::optional<AlertData> alert READ alert NOTIFY alertChanged FINAL)
    Q_PROPERTY(std::optional<ConfirmData> confirm READ confirm NOTIFY confirmChanged FINAL)
    Q_PROPERTY(std::optional<UpdateInfo> updateInfo READ updateInfo NOTIFY updateInfoChanged FINAL)
    Q_PROPERTY(bool isCheckingForUpdates READ isCheckingForUpdates NOTIFY isCheckingForUpdatesChanged FINAL)

public:
    /// Loads settings, folder lists and history, and reads the free space; starts nothing.
    explicit AppState(AppEnvironment environment, QObject *parent = nullptr);
    ~AppState() override;

    [[nodiscard]] Page selection() const { return m_selection; }
    [[nodiscard]] AppearanceOption appearance() const { return m_appearance; }
    [[nodiscard]] AppLanguage language() const { return m_language; }
    [[nodiscard]] const QList<InstalledApp> &apps() const { return m_apps; }
    [[nodiscard]] bool appsLoading() const { return m_appsLoading; }
    /// Whether sizes and related files of the listed applications are still arriving.
    [[nodiscard]] bool appDetailsLoading() const { return m_appDetailsLoading; }
    [[nodiscard]] const QList<DuplicateGroup> &duplicateGroups() const { return m_duplicateGroups; }
    [[nodiscard]] bool duplicatesLoading() const { return m_duplicatesLoading; }
    [[nodiscard]] const QList<LargeFile> &largeFiles() const { return m_largeFiles; }
    [[nodiscard]] bool largeFilesLoading() const { return m_largeFilesLoading; }
    [[nodiscard]] const QList<JunkCategory> &junkCategories() const { return m_junkCategories; }
    [[nodiscard]] bool junkLoading() const { return m_junkLoading; }
    [[nodiscard]] const QList<StartupItem> &startupItems() const { return m_startupItems; }
    [[nodiscard]] bool startupLoading() const { return m_startupLoading; }
    [[nodiscard]] bool scanning() const { return m_scanning; }
    /// What the running scan is doing, in one line; meant to be shown only while a loading flag is set.
    [[nodiscard]] const QString &scanDetail() const { return m_scanDetail; }
    /// Whether a removal is running.
    [[nodiscard]] bool removing() const { return m_removing; }
    [[nodiscard]] qint64 availableDisk() const { return m_availableDisk; }
    [[nodiscard]] bool needsFullDiskAccess() const { return m_needsFullDiskAccess; }
    [[nodiscard]] double cpuUsage() const { return m_cpuUsage; }
    [[nodiscard]] qint64 memoryUsed() const { return m_memoryUsed; }
    [[nodiscard]] qint64 memoryTotal() const { return m_memoryTotal; }
    [[nodiscard]] std::optional<double> diskTemperature() const { return m_diskTemperature; }
    [[nodiscard]] const QList<FileURL> &duplicateFolders() const { return m_duplicateFolders; }
    [[nodiscard]] const QList<FileURL> &largeFileFolders() const { return m_largeFileFolders; }
    [[nodiscard]] const QList<ActivityRecord> &activities() const { return m_activities; }
    [[nodiscard]] const std::optional<ToastData> &toast() const { return m_toast; }
    [[nodiscard]] const std::optional<AlertData> &alert() const { return m_alert; }
    [[nodiscard]] const std::optional<ConfirmData> &confirm() const { return m_confirm; }
    [[nodiscard]] const std::optional<UpdateInfo> &updateInfo() const { return m_updateInfo; }
    [[nodiscard]] bool isCheckingForUpdates() const { return m_isCheckingForUpdates; }
    /// How many times the statistics were refreshed.
    [[nodiscard]] int statsTick() const { return m_statsTick; }

    // Derived values, computed on each read; bytes unless named otherwise.
    [[nodiscard]] double memoryUsageRatio() const;
    [[nodiscard]] double freeableProgress() const;
    [[nodiscard]] qint64 unusedAppsSize() const;
    [[nodiscard]] qint64 duplicateReclaimable() const;
    [[nodiscard]] qint64 largeFilesTotalSize() const;
    [[nodiscard]] qint64 junkReclaimable() const;
    /// Whether an application counts as unused at this moment.
    [[nodiscard]] bool isUnused(const InstalledApp &app) const;
    /// Whether there is a home folder that scans and removals may work on.
    [[nodiscard]] bool hasUsableHome() const;

    void setSelection(Page page);
    /// Stores the choice.
    void setAppearance(AppearanceOption appearance);
    /// Switches every text at once, and stores the choice.
    void setLanguage(AppLanguage language);

    // Start, full rescan, stopping.
    /// Starts the statistics, and a full rescan when neither applications nor duplicates are listed yet.
    void startInitialScan();
    /// Scans applications, duplicates, junk and large files, in this order, and ends with a toast. Does nothing while
    /// a full rescan runs.
    void rescanAll();
    /// Cancels whatever scans. What was published stays, nothing partial is published.
    void stopScans();
    /// Stops a running removal between two items; it then reports what was done.
    void stopRemovals();

    // Notices.
    void showToast(const QString &symbol, quint32 tintHex, const QString &message);
    void raiseAlert(const QString &title, const QString &message);
    void dismissAlert();
    void askToConfirm(ConfirmData question);
    /// Clears the question, then runs its action.
    void acceptConfirm();
    void cancelConfirm();
    /// Adds a record in front, keeps the newest 20 and stores them.
    void addActivity(const ActivityRecord &record);

    // Statistics.
    void startStatsMonitoring();
    void refreshSystemStats();
    void refreshAvailableDisk();

    // Junk.
    void scanJunk();
    QCoro::Task<> scanJunkAsync();
    /// Cleans one category; see `RemovalReport`. An unknown id does nothing.
    QCoro::Task<RemovalReport> removeJunkCategory(QUuid id);

    // Large files. No list of folders means the state's own.
    void scanLargeFiles(std::optional<QList<FileURL>> folders, qint64 minSize);
    QCoro::Task<> scanLargeFilesAsync();
    QCoro::Task<> scanLargeFilesAsync(std::optional<QList<FileURL>> folders, qint64 minSize);
    QCoro::Task<RemovalReport> removeLargeFiles(QSet<FileURL> selected);

    // Duplicates.
    void rescanDuplicates();
    QCoro::Task<> scanDuplicates();
    /// The same over other folders than the state's own; saves nothing.
    QCoro::Task<> scanDuplicates(QList<FileURL> folders);
    /// Moves exactly the selected files of `groups` that are still listed; keeping a copy is the caller's care.
    QCoro::Task<RemovalReport> removeDuplicates(QSet<FileURL> selected, QList<DuplicateGroup> groups);

    // Applications.
    /// Returns when the list is published; sizes and related files arrive after that, until `appDetailsLoading` ends.
    QCoro::Task<> scanApps();
    QCoro::Task<RemovalReport> uninstallApps(QSet<FileURL> bundles);

    // Startup items.
    void rescanStartupItems();
    QCoro::Task<> scanStartupItems();
    /// Switches an item and answers it as it is now; absent when it is not listed.
    QCoro::Task<std::optional<StartupItem>> toggleStartupItem(StartupItem item);
    QCoro::Task<RemovalReport> removeStartupItem(StartupItem item);

    // Folders and access.
    void addDuplicateFolder(const FileURL &folder);
    void removeDuplicateFolder(const FileURL &folder);
    void addLargeFileFolder(const FileURL &folder);
    void removeLargeFileFolder(const FileURL &folder);
    [[nodiscard]] QList<FileURL> loadDuplicateFolders() const;
    void saveDuplicateFolders();
    [[nodiscard]] QList<FileURL> loadLargeFileFolders() const;
    void saveLargeFileFolders();
    /// Whether protected data can be read. Any thread.
    [[nodiscard]] static bool detectFullDiskAccess(const Platform &platform);
    void openFullDiskAccessSettings();
    /// What pages need for the folder chooser and for grants.
    [[nodiscard]] AccessContext accessContext() const;

    // Updates.
    /// Where the update feed is fetched from; an error says in one line why the address asked for cannot be used.
    [[nodiscard]] std::expected<QUrl, QString> appcastURL() const;
    QCoro::Task<UpdateOutcome> checkForUpdates(bool silent);
    void skipUpdate();
    void downloadUpdate();
    /// Leaves the update for the next check.
    void postponeUpdate();
    /// The running version.
    [[nodiscard]] static QString version();
    /// What the update announced brings, in the interface language where the feed has it; absent without notes.
    [[nodiscard]] std::optional<QString> releaseNotes() const;

Q_SIGNALS:
    void selectionChanged();
    void appearanceChanged();
    void languageChanged();
    void appsChanged();
    void appsLoadingChanged();
    void appDetailsLoadingChanged();
    void duplicateGroupsChanged();
    void duplicatesLoadingChanged();
    void largeFilesChanged();
    void largeFilesLoadingChanged();
    void junkCategoriesChanged();
    void junkLoadingChanged();
    void startupItemsChanged();
    void startupLoadingChanged();
    void scanningChanged();
    void scanDetailChanged();
    void removingChanged();
    void availableDiskChanged();
    void needsFullDiskAccessChanged();
    void cpuUsageChanged();
    void memoryUsedChanged();
    void memoryTotalChanged();
    void diskTemperatureChanged();
    void duplicateFoldersChanged();
    void largeFileFoldersChanged();
    void activitiesChanged();
    void toastChanged();
    void alertChanged();
    void confirmChanged();
    void updateInfoChanged();
    void isCheckingForUpdatesChanged();
    /// A scan found no home folder to work on.
    void noUsableHome();

private:
    /// One kind of scan: its runs never overlap, and its flag is set while any of them waits or works.
    struct Lane {
        bool AppState::*flag;
        void (AppState::*changed)();
        CancelToken stop;
        Gate gate;
        int running = 0;
    };
    class LaneRun;
    class RemovalRun;

    template <typename T>
    void publish(T &field, std::type_identity_t<T> value, void (AppState::*changed)());
    void askAgain();
    /// Sends progress texts of a run to `scanDetail`, on the main thread, until the run is stopped.
    [[nodiscard]] Progress progressOf(const Lane &lane);
    void setScanDetail(const QString &text);
    void clearDetailWhenIdle();
    [[nodiscard]] bool anyLaneRuns() const;
    QList<FileURL> loadFolders(QLatin1StringView key, const QList<FileURL> &defaults) const;
    void saveFolders(QLatin1StringView key, const QList<FileURL> &folders);

    static QCoro::Task<> runFullRescan(QPointer<AppState> self, CancelToken cancel);
    static QCoro::Task<> runJunkScan(QPointer<AppState> self);
    static QCoro::Task<> runLargeFileScan(QPointer<AppState> self, std::optional<QList<FileURL>> folders,
                                          qint64 minSize);
    static QCoro::Task<> runDuplicateScan(QPointer<AppState> self, std::optional<QList<FileURL>> folders);
    static QCoro::Task<> runAppScan(QPointer<AppState> self);
    static QCoro::Task<> runStartupScan(QPointer<AppState> self);
    static QCoro::Task<> readTemperature(QPointer<AppState> self);
    static QCoro::Task<> probeFullDiskAccess(QPointer<AppState> self);
    static QCoro::Task<> askForLibraryAndProbe(QPointer<AppState> self, CancelToken cancel);
    static QCoro::Task<> measureApp(QPointer<AppState> self, CancelToken cancel, InstalledApp app);
    static QCoro::Task<RemovalReport> runJunkRemoval(QPointer<AppState> self, QUuid id);
    static QCoro::Task<RemovalReport> runLargeFileRemoval(QPointer<AppState> self, QSet<FileURL> selected);
    static QCoro::Task<RemovalReport> runDuplicateRemoval(QPointer<AppState> self, QSet<FileURL> selected,
                                                          QList<DuplicateGroup> groups);
    static QCoro::Task<RemovalReport> runUninstall(QPointer<AppState> self, QSet<FileURL> bundles);
    static QCoro::Task<std::optional<StartupItem>> runToggle(QPointer<AppState> self, StartupItem item);
    static QCoro::Task<RemovalReport> runStartupRemoval(QPointer<AppState> self, StartupItem item);
    static QCoro::Task<UpdateOutcome> runUpdateCheck(QPointer<AppState> self, bool silent);

    void startDetails();
    void takeDetails(const CancelToken &cancel, const FileURL &bundle, std::optional<qint64> size,
                     const QList<RelatedFile> &related);
    void dropFromJunk(const QSet<FileURL> &removed);
    /// Shows what a removal came to and records it; fills the report's notices.
    void announce(RemovalReport &report);

    AppEnvironment m_environment;
    Page m_selection = Page::overview;
    AppearanceOption m_appearance = AppearanceOption::system;
    AppLanguage m_language = AppLanguage::system;
    QList<InstalledApp> m_apps;
    bool m_appsLoading = false;
    bool m_appDetailsLoading = false;
    QList<DuplicateGroup> m_duplicateGroups;
    bool m_duplicatesLoading = false;
    QList<LargeFile> m_largeFiles;
    bool m_largeFilesLoading = false;
    QList<JunkCategory> m_junkCategories;
    bool m_junkLoading = false;
    QList<StartupItem> m_startupItems;
    bool m_startupLoading = false;
    bool m_scanning = false;
    QString m_scanDetail;
    bool m_removing = false;
    qint64 m_availableDisk = 0;
    bool m_needsFullDiskAccess = false;
    double m_cpuUsage = 0;
    qint64 m_memoryUsed = 0;
    qint64 m_memoryTotal = 0;
    std::optional<double> m_diskTemperature;
    QTimer m_statsTask; // the statistics loop
    int m_statsTick = 0;
    QList<FileURL> m_duplicateFolders;
    QList<FileURL> m_largeFileFolders;
    QList<ActivityRecord> m_activities;
    std::optional<ToastData> m_toast;
    std::optional<AlertData> m_alert;
    std::optional<ConfirmData> m_confirm;
    TaskHandle m_scanTask; // the full rescan
    QTimer m_toastTask;    // the toast's dismissal
    std::optional<UpdateInfo> m_updateInfo;
    bool m_isCheckingForUpdates = false;

    std::optional<ProcessorTicks> m_previousTicks;
    Lane m_appsLane{&AppState::m_appsLoading, &AppState::appsLoadingChanged, {}, {}};
    Lane m_duplicatesLane{&AppState::m_duplicatesLoading, &AppState::duplicatesLoadingChanged, {}, {}};
    Lane m_largeFilesLane{&AppState::m_largeFilesLoading, &AppState::largeFilesLoadingChanged, {}, {}};
    Lane m_junkLane{&AppState::m_junkLoading, &AppState::junkLoadingChanged, {}, {}};
    Lane m_startupLane{&AppState::m_startupLoading, &AppState::startupLoadingChanged, {}, {}};
    TaskHandle m_detailsTask; // the details of the newest application scan
    qsizetype m_detailsLeft = 0;
    Gate m_removalGate;
    CancelToken m_stopRemovals;
    int m_removalsRunning = 0;
};

template <typename T>
void AppState::publish(T &field, std::type_identity_t<T> value, void (AppState::*changed)())
{
    if (field == value)
        return;
    field = std::move(value);
    Q_EMIT(this->*changed)();
}
