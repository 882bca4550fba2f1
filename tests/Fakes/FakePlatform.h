// SPDX-License-Identifier: MIT
#pragma once

#include "Fakes/ScratchTree.h"
#include "Platform/FolderPanel.h"
#include "Platform/Platform.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QUrl>

#include <cstdio>
#include <functional>
#include <memory>

/// The documented places below a home of the test's own, and nothing of the desktop's.
class FakePlaces : public Places
{
public:
    explicit FakePlaces(const FileURL &homeFolder)
        : m_home(homeFolder)
        , m_accountHome(homeFolder)
    {
    }

    [[nodiscard]] std::optional<FileURL> home() const override { return m_home; }
    [[nodiscard]] std::optional<FileURL> accountHome() const override { return m_accountHome; }
    [[nodiscard]] QList<FileURL> folders(Place place) const override
    {
        if (!m_home)
            return {};
        if (const auto found = m_overrides.constFind(static_cast<int>(place)); found != m_overrides.cend())
            return *found;
        const FileURL lib = m_home->child("Library");
        switch (place) {
        case Place::downloads:
            return {m_home->child("Downloads")};
        case Place::caches:
            return {lib.child("Caches")};
        case Place::logs:
            return {lib.child("Logs")};
        case Place::temporary:
            return {temporaryFolder()};
        case Place::trash:
            return {m_home->child(".Trash")};
        case Place::crashReports:
            return {lib.appending("Logs/DiagnosticReports")};
        case Place::browserCaches:
            return {lib.appending("Caches/Google/Chrome"), lib.appending("Caches/Microsoft Edge"),
                    lib.appending("Caches/Firefox"), lib.appending("Caches/Opera Software"),
                    lib.appending("Caches/BraveSoftware")};
        case Place::chatCaches:
            return {lib.appending("Containers/com.tencent.xinWeChat/Data/Library/Caches"),
                    lib.appending("Containers/com.tencent.qq/Data/Library/Caches"),
                    lib.appending("Containers/com.alibaba.DingTalk/Data/Library/Caches")};
        case Place::applications:
            return {m_home->appending("System/Applications"), m_home->child("Applications")};
        case Place::userLaunchAgents:
            return {lib.child("LaunchAgents")};
        case Place::systemLaunchAgents:
            return {m_home->parent().appending("system/LaunchAgents")};
        case Place::systemLaunchDaemons:
            return {m_home->parent().appending("system/LaunchDaemons")};
        }
        return {};
    }
    [[nodiscard]] QSet<QByteArray> installerExtensions() const override { return {"dmg", "pkg", "mpkg"}; }
    [[nodiscard]] FileURL temporaryFolder() const override { return m_home.value_or(FileURL::root()).child("tmp"); }
    [[nodiscard]] std::optional<FileURL> dataFolder() const override
    {
        return m_home.transform([](const FileURL &folder) { return folder.child("BriskoData"); });
    }
    [[nodiscard]] std::optional<FileURL> settingsFile() const override
    {
        return m_home.transform([](const FileURL &folder) { return folder.appending("BriskoSettings/Brisko.conf"); });
    }
    [[nodiscard]] QList<FileURL> guarded() const override
    {
        return m_home ? QList<FileURL>{FileURL::root(), *m_home, m_home->child(".Trash"), m_home->child("Library")}
                      : QList<FileURL>{};
    }

    void setHome(std::optional<FileURL> folder) { m_home = std::move(folder); }
    void setFolders(Place place, const QList<FileURL> &list) { m_overrides.insert(static_cast<int>(place), list); }

private:
    std::optional<FileURL> m_home;
    std::optional<FileURL> m_accountHome;
    QHash<int, QList<FileURL>> m_overrides;
};

/// Moves into a folder of the test's own, and refuses what it is told to refuse.
class FakeTrashCan : public TrashCan
{
public:
    explicit FakeTrashCan(const FileURL &folder)
        : m_folder(folder)
    {
    }

    [[nodiscard]] std::unique_ptr<TrashBatch> begin() const override { return std::make_unique<Batch>(this); }

    void refuse(const FileURL &item, std::errc why = std::errc::permission_denied)
    {
        const QMutexLocker lock(&m_mutex);
        m_refused.insert(item, std::make_error_code(why));
    }
    void allowAll()
    {
        const QMutexLocker lock(&m_mutex);
        m_refused.clear();
    }
    /// Called before each item, on the thread that removes.
    void setBefore(std::function<void(const FileURL &)> before) { m_before = std::move(before); }
    [[nodiscard]] QList<FileURL> asked() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_asked;
    }

private:
    class Batch : public TrashBatch
    {
    public:
        explicit Batch(const FakeTrashCan *can)
            : m_can(can)
        {
        }
        std::expected<FileURL, std::error_code> moveToTrash(const FileURL &item) override
        {
            if (const std::error_code refusal = m_can->answer(item))
                return std::unexpected(refusal);
            FileURL target = m_can->m_folder.child(QByteArray::number(m_can->nextNumber()) + '-' + item.name());
            if (std::rename(item.path().constData(), target.path().constData()) != 0)
                return std::unexpected(std::error_code(errno, std::generic_category()));
            return target;
        }
        std::expected<void, std::error_code> removeForGood(const FileURL &item, const CancelToken &) override
        {
            if (const std::error_code refusal = m_can->answer(item))
                return std::unexpected(refusal);
            struct stat status {
            };
            if (::lstat(item.path().constData(), &status) != 0)
                return std::unexpected(std::error_code(errno, std::generic_category()));
            if (S_ISDIR(status.st_mode)) {
                if (!QDir(QFile::decodeName(item.path())).removeRecursively())
                    return std::unexpected(std::make_error_code(std::errc::io_error));
            } else if (::unlink(item.path().constData()) != 0) {
                return std::unexpected(std::error_code(errno, std::generic_category()));
            }
            return {};
        }

    private:
        const FakeTrashCan *m_can;
    };

    std::error_code answer(const FileURL &item) const
    {
        if (m_before)
            m_before(item);
        const QMutexLocker lock(&m_mutex);
        m_asked.append(item);
        return m_refused.value(item);
    }
    int nextNumber() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_number++;
    }

    FileURL m_folder;
    mutable QMutex m_mutex;
    mutable QList<FileURL> m_asked;
    mutable int m_number = 0;
    QHash<FileURL, std::error_code> m_refused;
    std::function<void(const FileURL &)> m_before;
};

/// Samples that the test puts in.
class FakeFigures : public SystemFigures
{
public:
    std::optional<ProcessorTicks> ticks;
    std::optional<MemoryPages> pages;
    qint64 physical = 0;
    std::optional<qint64> disk;
    bool sensorsReadable = true;
    std::function<QList<Sensor>(const SensorMatch &)> findSensors;
    std::function<std::optional<double>(const Sensor &)> readSensor;

    [[nodiscard]] std::optional<ProcessorTicks> processorTicks() const override { return ticks; }
    [[nodiscard]] std::optional<MemoryPages> memoryPages() const override { return pages; }
    [[nodiscard]] qint64 physicalMemory() const override { return physical; }
    [[nodiscard]] std::optional<qint64> availableDisk() const override { return disk; }
    [[nodiscard]] bool canReadSensors() const override { return sensorsReadable; }
    [[nodiscard]] QList<Sensor> sensors(const SensorMatch &match) const override
    {
        return findSensors ? findSensors(match) : QList<Sensor>{};
    }
    [[nodiscard]] std::optional<double> temperature(const Sensor &sensor) const override
    {
        return readSensor ? readSensor(sensor) : std::nullopt;
    }
};

/// Property lists as tables in memory.
class FakePropertyList : public PropertyList
{
public:
    [[nodiscard]] std::expected<PropertyDictionary, std::error_code> read(const FileURL &file) const override
    {
        const auto found = tables.constFind(file);
        if (found == tables.cend())
            return std::unexpected(std::make_error_code(std::errc::no_such_file_or_directory));
        return *found;
    }
    [[nodiscard]] std::expected<void, std::error_code> setBoolean(const FileURL &file, const QString &key,
                                                                  bool value) const override
    {
        const auto found = tables.find(file);
        if (found == tables.end())
            return std::unexpected(std::make_error_code(std::errc::no_such_file_or_directory));
        found->values.insert(key, value);
        return {};
    }
    mutable QHash<FileURL, PropertyDictionary> tables;
};

class FakeWorkspace : public Workspace
{
public:
    bool open(const QUrl &address) const override
    {
        opened.append(address);
        return true;
    }
    void showInFileManager(const FileURL &item) const override { shown.append(item); }
    [[nodiscard]] QString displayName(const FileURL &bundle) const override
    {
        QString name = bundle.nameText();
        if (name.endsWith(QLatin1StringView(".app")))
            name.chop(4);
        return name;
    }
    [[nodiscard]] BundleInfo bundleInfo(const FileURL &bundle) const override { return bundles.value(bundle); }

    mutable QList<QUrl> opened;
    mutable QList<FileURL> shown;
    QHash<FileURL, BundleInfo> bundles;
};

/// A grant is the folder's path; access succeeds for folders that exist.
class FakeGrants : public FolderGrants
{
public:
    [[nodiscard]] std::expected<QByteArray, std::error_code> makeGrant(const FileURL &folder) const override
    {
        return folder.path();
    }
    [[nodiscard]] std::optional<Resolved> resolve(const QByteArray &grant) const override
    {
        return FileURL::fromPath(grant).transform(
            [this](const FileURL &folder) { return Resolved{.folder = folder, .isStale = stale}; });
    }
    [[nodiscard]] bool startAccessing(const FileURL &folder) const override { return ScratchTree::exists(folder); }
    [[nodiscard]] bool needsConsent() const override { return consent; }
    bool stale = false;
    bool consent = false;
};

/// Answers with the folder that the test put in, and counts.
class FakePanel : public FolderPanel
{
public:
    QCoro::Task<std::optional<FileURL>> choose(std::optional<FileURL> hint, QString message,
                                               QString buttonText) override
    {
        ++asked;
        lastHint = std::move(hint);
        lastMessage = std::move(message);
        lastButton = std::move(buttonText);
        // A copy: the coroutine's promise takes apart what it is given.
        std::optional<FileURL> given = answer;
        co_return given;
    }
    std::optional<FileURL> answer;
    int asked = 0;
    std::optional<FileURL> lastHint;
    QString lastMessage;
    QString lastButton;
};

/// A whole platform of fakes over a scratch home, with each fake within reach of the test.
struct FakePlatform {
    explicit FakePlatform(const FileURL &home, const FileURL &trash)
    {
        auto made = std::make_shared<Platform>();
        made->places = keep(places, new FakePlaces(home));
        made->trashCan = keep(trashCan, new FakeTrashCan(trash));
        made->systemFigures = keep(figures, new FakeFigures);
        made->propertyList = keep(propertyList, new FakePropertyList);
        made->workspace = keep(workspace, new FakeWorkspace);
        made->folderGrants = keep(grants, new FakeGrants);
        platform = std::move(made);
    }
    std::shared_ptr<const Platform> platform;
    FakePlaces *places = nullptr;
    FakeTrashCan *trashCan = nullptr;
    FakeFigures *figures = nullptr;
    FakePropertyList *propertyList = nullptr;
    FakeWorkspace *workspace = nullptr;
    FakeGrants *grants = nullptr;

private:
    template <typename T>
    static std::unique_ptr<T> keep(T *&here, T *made)
    {
        here = made;
        return std::unique_ptr<T>(made);
    }
};
