// SPDX-License-Identifier: MIT
#include "Services/JunkScanService.h"

#include "Models/CheckedSum.h"
#include "Models/TextKey.h"
#include "Support/Text.h"

#include <QCoro/QCoroFuture>
#include <QtConcurrent>

#include <unistd.h>

#include <array>

namespace {

using FileSystem::Hidden;
using FileSystem::Kind;
using FileSystem::Want;
using JunkScanService::FolderRule;
using JunkScanService::Found;
using JunkScanService::Owners;

enum class Extensions : quint8 { all, installersOnly, noInstallers };

/// One category. A depth of 0 stands for the Trash rule: each direct entry, however deep it is.
struct CategoryRow {
    QStringView name;
    QLatin1StringView symbol;
    Place place;
    int maxDepth;
    std::optional<int> olderThanDays;
    Extensions extensions;
    Owners owners;
    QStringView progress; // told before the category is looked for; empty: nothing
};

constexpr int kTrashRule = 0;

constexpr std::array kCategories = {
    CategoryRow{textKey(u"Old Downloads"), QLatin1StringView("arrow.down.circle"), Place::downloads, 1, 30,
                Extensions::noInstallers, Owners::everybody, textKey(u"Scanning system caches…")},
    CategoryRow{textKey(u"App Caches"),
                QLatin1StringView("archivebox"),
                Place::caches,
                2,
                {},
                Extensions::all,
                Owners::everybody,
                {}},
    CategoryRow{textKey(u"System Logs"),
                QLatin1StringView("doc.text"),
                Place::logs,
                2,
                {},
                Extensions::all,
                Owners::everybody,
                {}},
    CategoryRow{textKey(u"Temp Files"),
                QLatin1StringView("clock.arrow.circlepath"),
                Place::temporary,
                2,
                7,
                Extensions::all,
                Owners::ownInForeignFolders,
                {}},
    CategoryRow{textKey(u"Trash"),
                QLatin1StringView("trash"),
                Place::trash,
                kTrashRule,
                {},
                Extensions::all,
                Owners::everybody,
                textKey(u"Scanning Trash…")},
    CategoryRow{textKey(u"Crash Reports"),
                QLatin1StringView("ladybug"),
                Place::crashReports,
                2,
                {},
                Extensions::all,
                Owners::everybody,
                textKey(u"Scanning crash reports…")},
    CategoryRow{textKey(u"Browser Caches"),
                QLatin1StringView("globe"),
                Place::browserCaches,
                4,
                {},
                Extensions::all,
                Owners::everybody,
                textKey(u"Scanning browser caches…")},
    CategoryRow{textKey(u"Chat App Caches"),
                QLatin1StringView("message"),
                Place::chatCaches,
                3,
                {},
                Extensions::all,
                Owners::everybody,
                textKey(u"Scanning chat caches…")},
    CategoryRow{textKey(u"Leftover Installers"),
                QLatin1StringView("shippingbox"),
                Place::downloads,
                1,
                {},
                Extensions::installersOnly,
                Owners::everybody,
                textKey(u"Scanning installers…")},
};

/// Collects the files of one folder that a rule takes.
class Finder : public FileSystem::Visitor
{
public:
    explicit Finder(const FolderRule &rule)
        : m_rule(rule)
    {
    }

    void folder(const FileURL &folder, int depth) override
    {
        if (m_rule.owners == Owners::everybody)
            return;
        if (depth == 0) {
            const auto attributes = FileSystem::attributes(folder, FileSystem::Root::follow);
            m_next.isForeign = !attributes || attributes->owner != m_user;
        }
        m_next.folder = folder;
        m_levels.append(m_next);
    }

    void entry(const FileURL &folder, const FileSystem::EntryView &entry) override
    {
        const bool counts = m_rule.owners == Owners::everybody || countsByOwner(folder, entry);
        if (entry.kind != Kind::regular || !entry.attributes || !counts)
            return;
        JunkFile file{.url = folder.child(entry.name),
                      .size = entry.attributes->size.value_or(0),
                      .modified = FileSystem::dateTime(entry.attributes->modified)};
        if (!JunkScanService::counts(m_rule, file.url.extension(), file.modified))
            return;
        found.size = checkedSum(found.size, file.size);
        found.files.append(std::move(file));
    }

    Found found;

private:
    struct Level {
        FileURL folder;
        bool counts = true;
        bool isForeign = false;
    };

    bool countsByOwner(const FileURL &folder, const FileSystem::EntryView &entry)
    {
        while (m_levels.constLast().folder != folder)
            m_levels.removeLast();
        const Level &level = m_levels.constLast();
        const bool isForeign = !entry.attributes || entry.attributes->owner != m_user;
        const bool counts = level.counts && !(level.isForeign && isForeign);
        m_next = {.folder = {}, .counts = counts, .isForeign = isForeign}; // should the walk go into this entry
        return counts;
    }

    const FolderRule &m_rule;
    const quint32 m_user = ::geteuid();
    Level m_next;
    QList<Level> m_levels; // the folders from the top down to the one being reported
};

/// Crash reports are a category of their own and are never counted twice.
bool isNoCrashReportFolder(const FileURL &folder, QByteArrayView name, Kind)
{
    return name != "DiagnosticReports" || !folder.path().endsWith("/Logs");
}

FolderRule ruleOf(const CategoryRow &row, const Places &places, const QDateTime &now)
{
    constexpr qint64 secondsPerDay = 86'400;
    FolderRule rule{.maxDepth = row.maxDepth, .owners = row.owners};
    if (row.olderThanDays)
        rule.notNewerThan = now.addSecs(-*row.olderThanDays * secondsPerDay);
    if (row.extensions == Extensions::installersOnly)
        rule.onlyExtensions = places.installerExtensions();
    else if (row.extensions == Extensions::noInstallers)
        rule.excluding = places.installerExtensions();
    return rule;
}

void append(Found &all, std::optional<Found> part)
{
    if (!part)
        return;
    all.size = checkedSum(all.size, part->size);
    all.files += std::move(part->files);
}

std::optional<Found> ifAny(Found found)
{
    if (found.files.isEmpty())
        return std::nullopt;
    return found;
}

std::optional<Found> scanTrashes(const QList<FileURL> &folders, const CancelToken &cancel)
{
    Found all;
    for (qsizetype i = 0; i < folders.size(); ++i)
        append(all, JunkScanService::scanTrash(folders.at(i), i == 0 ? Hidden::skip : Hidden::include, cancel));
    return ifAny(std::move(all));
}

/// A folder of the user's own, and no link to one.
bool isOwnFolder(const FileURL &folder)
{
    const auto attributes = FileSystem::attributes(folder);
    return attributes && attributes->kind == Kind::folder && attributes->owner == ::geteuid();
}

} // namespace

QCoro::Task<QList<JunkCategory>> JunkScanService::scan(AccessContext access, QThreadPool *pool, QDateTime now,
                                                       Progress progress, CancelToken cancel)
{
    const std::shared_ptr<const Platform> platform = access.platform;
    if (const std::optional<FileURL> library = platform->places->library()) {
        constexpr AccessStore::Request request = AccessStore::libraryForScan;
        co_await AccessStore::ensureAccess(access, request.key, *library, Text::lookup(request.message));
    }
    // Named, for GCC 12 destroys a lambda twice that is a temporary of a co_await expression.
    const QFuture<QList<JunkCategory>> scanning = QtConcurrent::run(
        pool, [platform, now, progress, cancel] { return scanSync(*platform, now, progress, cancel); });
    co_return co_await scanning;
}

QList<JunkCategory> JunkScanService::scanSync(const Platform &platform, const QDateTime &now, const Progress &progress,
                                              const CancelToken &cancel)
{
    const Places &places = *platform.places;
    if (!places.home()) {
        report(progress, Text::lookup(u"No usable home folder"));
        return {};
    }
    QList<JunkCategory> categories;
    for (const CategoryRow &row : kCategories) {
        if (cancel.isCancelled())
            return categories;
        if (!row.progress.isEmpty())
            report(progress, Text::lookup(row.progress));
        const QList<FileURL> folders = places.folders(row.place);
        auto found = row.maxDepth == kTrashRule ? scanTrashes(folders, cancel)
                                                : scanDirectories(folders, ruleOf(row, places, now), cancel);
        if (!found || found->size < 1)
            continue;
        categories.append({.id = QUuid::createUuid(),
                           .name = row.name.toString(),
                           .symbol = row.symbol,
                           .paths = folders,
                           .files = std::move(found->files),
                           .totalSize = found->size,
                           .deletesDirectly = row.maxDepth == kTrashRule});
    }
    report(progress, Text::lookup(u"Done"));
    return categories;
}

bool JunkScanService::counts(const FolderRule &rule, const QByteArray &extension,
                             const std::optional<QDateTime> &modified)
{
    const QByteArray lower = extension.toLower();
    if (rule.onlyExtensions && !rule.onlyExtensions->contains(lower))
        return false;
    if (rule.excluding && rule.excluding->contains(lower))
        return false;
    return !rule.notNewerThan || !modified || *modified <= *rule.notNewerThan;
}

std::optional<Found> JunkScanService::scanDirectory(const FileURL &folder, const FolderRule &rule,
                                                    const CancelToken &cancel)
{
    Finder finder(rule);
    const Want want = rule.owners == Owners::everybody ? Want::files : Want::everything;
    FileSystem::walk(folder, {.want = want, .levels = rule.maxDepth, .takes = isNoCrashReportFolder}, finder, cancel);
    return ifAny(std::move(finder.found));
}

std::optional<Found> JunkScanService::scanDirectories(const QList<FileURL> &folders, const FolderRule &rule,
                                                      const CancelToken &cancel)
{
    Found all;
    QSet<FileURL> seen;
    for (const FileURL &folder : folders) {
        std::optional<Found> part = scanDirectory(folder, rule, cancel);
        if (folders.size() == 1)
            return part;
        if (!part)
            continue;
        for (JunkFile &file : part->files) {
            if (seen.contains(file.url))
                continue;
            seen.insert(file.url);
            all.size = checkedSum(all.size, file.size);
            all.files.append(std::move(file));
        }
    }
    return ifAny(std::move(all));
}

std::optional<Found> JunkScanService::scanTrash(const FileURL &folder, Hidden hidden, const CancelToken &cancel)
{
    // In a desktop's Trash the items lie one folder further down, and a link is no better one step up.
    if (!isOwnFolder(folder) || (hidden == Hidden::include && !isOwnFolder(folder.parent())))
        return std::nullopt;
    const auto entries = FileSystem::list(folder, hidden, Want::everything, FileSystem::Root::doNotFollow);
    if (!entries)
        return std::nullopt;
    Found found;
    for (const FileSystem::Entry &entry : *entries) {
        if (!entry.attributes || cancel.isCancelled())
            continue;
        JunkFile file{.url = folder.child(entry.name),
                      .size = entry.attributes->size.value_or(0),
                      .modified = FileSystem::dateTime(entry.attributes->modified)};
        if (entry.kind == Kind::folder)
            file.size = directorySize(file.url, cancel);
        found.size = checkedSum(found.size, file.size);
        found.files.append(std::move(file));
    }
    return ifAny(std::move(found));
}

qint64 JunkScanService::directorySize(const FileURL &folder, const CancelToken &cancel)
{
    const auto measure = FileSystem::measure(folder, Hidden::include, cancel);
    return measure ? measure->logical : 0;
}
