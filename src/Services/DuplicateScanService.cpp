// SPDX-License-Identifier: MIT
#include "Services/DuplicateScanService.h"

#include "Platform/Descriptor.h"
#include "Platform/FileReading.h"
#include "Platform/FileSystem.h"
#include "Services/DuplicateCompare.h"
#include "Services/FileDigest.h"
#include "Services/Sha256.h"
#include "Support/Text.h"

#include <QThread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace {

using DuplicateCompare::Candidate;
using DuplicateCompare::EqualSet;

constexpr QByteArrayView kCloudStorage = "/Library/CloudStorage/";
constexpr qint64 kTellEvery = 2'000; // files

/// A file as it was found. Paths are put together only for those that share their size with another.
struct Found {
    quint32 folder = 0; // position in the list of folders
    quint32 nameLength = 0;
    qsizetype nameAt = 0; // position in the collected names
    qint64 size = 0;
    qint64 modified = 0; // nanoseconds since 1970-01-01 UTC
    quint64 device = 0;
    quint64 inode = 0;
    quint64 links = 1;
};

/// Collects the files of one scan, in the order found.
class Collector : public FileSystem::Visitor
{
public:
    Collector(QFile *log, const Progress &progress)
        : m_log(log)
        , m_progress(progress)
    {
    }

    void collect(const FileURL &root, const CancelToken &cancel)
    {
        const bool isInCloud = (root.path() + '/').contains(kCloudStorage);
        m_open.clear();
        FileSystem::walk(root,
                         {.hidden = FileSystem::Hidden::skip,
                          .want = FileSystem::Want::files,
                          .levels = DuplicateScanService::kDeepestFolder + 1,
                          .root = FileSystem::Root::follow,
                          .takes =
                              [isInCloud](const FileURL &parent, QByteArrayView name, FileSystem::Kind kind) {
                                  using enum FileSystem::Kind;
                                  // Below a taken folder only the provider's own folder can begin what is not read.
                                  return (kind == regular || kind == folder) && !isInCloud &&
                                         !parent.path().endsWith(kCloudStorage.chopped(1)) &&
                                         !ScanRules::isOpaque(name);
                              }},
                         *this, cancel);
    }

    void folder(const FileURL &folder, int depth) override
    {
        if (m_log) {
            m_log->write("[dir] ");
            m_log->write(folder.path());
            m_log->putChar('\n');
        }
        m_open.resize(static_cast<size_t>(depth));
        m_open.push_back(static_cast<quint32>(m_folders.size()));
        m_folders.push_back(folder);
    }

    void entry(const FileURL &folder, const FileSystem::EntryView &entry) override
    {
        if (entry.kind != FileSystem::Kind::regular || !entry.attributes ||
            entry.attributes->size.value_or(0) < DuplicateScanService::kMinSize)
            return;
        while (m_folders[m_open.back()] != folder)
            m_open.pop_back();
        const FileSystem::Attributes &known = *entry.attributes;
        m_found.push_back({.folder = m_open.back(),
                           .nameLength = static_cast<quint32>(entry.name.size()),
                           .nameAt = m_names.size(),
                           .size = *known.size,
                           .modified = known.modified,
                           .device = known.device,
                           .inode = known.inode,
                           .links = known.links});
        m_names.append(entry.name);
        const auto count = static_cast<qint64>(m_found.size());
        if (count % kTellEvery == 0)
            report(m_progress, Text::filled(u"Collecting files… %lld", {count}));
    }

    [[nodiscard]] std::vector<Found> withSharedSizes() const;
    [[nodiscard]] FileURL url(const Found &found) const { return m_folders[found.folder].child(name(found)); }

private:
    [[nodiscard]] QByteArrayView name(const Found &found) const
    {
        return QByteArrayView(m_names).sliced(found.nameAt, found.nameLength);
    }
    [[nodiscard]] bool isSameEntry(const Found &a, const Found &b) const;
    void dropRepeated(std::vector<quint32> &ofOneSize) const;

    QFile *m_log;
    const Progress &m_progress;
    std::vector<FileURL> m_folders;
    std::vector<quint32> m_open; // the folders on the way to the current one
    QByteArray m_names;
    std::vector<Found> m_found;
};

/// The files of each size that more than one has, in the order found.
std::vector<Found> Collector::withSharedSizes() const
{
    std::vector<quint32> bySize(m_found.size());
    for (size_t at = 0; at < bySize.size(); ++at)
        bySize[at] = static_cast<quint32>(at);
    std::ranges::stable_sort(bySize, {}, [this](quint32 at) { return m_found[at].size; });
    std::vector<quint32> shared;
    for (size_t from = 0, to = 0; from < bySize.size(); from = to) {
        const auto differs = [&](quint32 at) { return m_found[at].size != m_found[bySize[from]].size; };
        const auto begin = bySize.begin() + static_cast<std::ptrdiff_t>(from);
        const auto end = std::find_if(begin, bySize.end(), differs);
        to = static_cast<size_t>(end - bySize.begin());
        if (to - from < 2)
            continue;
        std::vector<quint32> ofOneSize(begin, end);
        dropRepeated(ofOneSize);
        if (ofOneSize.size() > 1)
            shared.insert(shared.end(), ofOneSize.begin(), ofOneSize.end());
    }
    std::ranges::sort(shared);
    std::vector<Found> result;
    result.reserve(shared.size());
    for (const quint32 at : shared)
        result.push_back(m_found[at]);
    return result;
}

/// A folder mounted at two places shows each of its files twice. Those are one file, not two: removing the "copy" would
/// remove it.
void Collector::dropRepeated(std::vector<quint32> &ofOneSize) const
{
    std::unordered_map<quint64, std::vector<quint32>> byInode;
    std::erase_if(ofOneSize, [&](quint32 at) {
        std::vector<quint32> &same = byInode[m_found[at].inode];
        const bool isRepeated =
            std::ranges::any_of(same, [&](quint32 other) { return isSameEntry(m_found[other], m_found[at]); });
        if (!isRepeated)
            same.push_back(at);
        return isRepeated;
    });
}

bool Collector::isSameEntry(const Found &a, const Found &b) const
{
    if (a.device != b.device || a.inode != b.inode || name(a) != name(b))
        return false;
    const auto holderOfA = FileSystem::attributes(m_folders[a.folder], FileSystem::Root::follow);
    const auto holderOfB = FileSystem::attributes(m_folders[b.folder], FileSystem::Root::follow);
    return holderOfA && holderOfB && holderOfA->device == holderOfB->device && holderOfA->inode == holderOfB->inode;
}

/// Tells how much of the files is settled, whenever the whole percentage changes.
class Percentage
{
public:
    Percentage(const Progress &progress, qint64 total)
        : m_progress(progress)
        , m_total(total)
    {
    }
    void add(qint64 files)
    {
        const qint64 settled = m_settled += files;
        if (settled * 100 / m_total == m_told)
            return;
        // Told under the lock, so that the figure never goes back.
        const std::lock_guard lock(m_mutex);
        const qint64 percentage = m_settled * 100 / m_total;
        if (percentage == m_told)
            return;
        m_told = percentage;
        report(m_progress, Text::filled(u"Hashing files… %lld%%", {percentage}));
    }

private:
    const Progress &m_progress;
    const qint64 m_total;
    std::mutex m_mutex;
    std::atomic<qint64> m_settled = 0;
    std::atomic<qint64> m_told = 0;
};

/// The groups as they are shown: files by path, the most reclaimable group first, equals in the order found.
QList<DuplicateGroup> groupsOf(const std::vector<EqualSet> &sets, const std::vector<Found> &files,
                               const std::vector<Candidate> &candidates)
{
    std::vector<std::pair<qint64, DuplicateGroup>> groups;
    groups.reserve(sets.size());
    for (const EqualSet &set : sets) {
        DuplicateGroup group{.id = Sha256::text(set.digest), .files = {}};
        group.files.reserve(static_cast<qsizetype>(set.members.size()));
        for (const qsizetype member : set.members) {
            const Found &file = files[static_cast<size_t>(member)];
            group.files.append({.url = candidates[static_cast<size_t>(member)].url,
                                .size = file.size,
                                .modified = FileSystem::dateTime(file.modified)});
        }
        std::ranges::sort(group.files, std::ranges::less{}, &DuplicateFile::url);
        const qint64 reclaimable = group.reclaimable();
        groups.emplace_back(reclaimable, std::move(group));
    }
    std::ranges::stable_sort(groups, std::ranges::greater{}, [](const auto &group) { return group.first; });
    QList<DuplicateGroup> result;
    result.reserve(static_cast<qsizetype>(groups.size()));
    for (auto &group : groups)
        result.append(std::move(group.second));
    return result;
}

} // namespace

QList<DuplicateGroup> DuplicateScanService::scanSync(const Options &options, const Progress &progress,
                                                     const CancelToken &cancel)
{
    const std::unique_ptr<QFile> log = options.logFolder.isEmpty() ? nullptr : makeScanLog(options.logFolder);
    report(progress, Text::lookup(u"Collecting files…"));
    Collector collector(log.get(), progress);
    for (const FileURL &folder : deduplicateFolders(options.folders))
        collector.collect(folder, cancel);
    if (log)
        log->close();
    if (cancel.isCancelled())
        return {};

    const std::vector<Found> files = collector.withSharedSizes();
    std::vector<Candidate> candidates;
    candidates.reserve(files.size());
    for (const Found &file : files) {
        candidates.push_back({.url = collector.url(file),
                              .size = file.size,
                              .device = file.device,
                              .inode = file.inode,
                              .links = file.links});
    }
    report(progress, Text::lookup(u"Hashing files…"));
    const auto count = static_cast<qsizetype>(candidates.size());
    Percentage percentage(progress, count);
    DuplicateCompare::Cost cost;
    const std::vector<EqualSet> sets = DuplicateCompare::equalSets(
        candidates, DuplicateCompare::limitsFor(QThread::idealThreadCount(), count),
        [&percentage](qint64 settled) { percentage.add(settled); }, cancel, &cost);
    if (options.counters) {
        *options.counters = {
            .candidates = count, .opens = cost.opens, .bytesRead = cost.bytesRead, .bytesHashed = cost.bytesHashed};
    }
    QList<DuplicateGroup> groups = groupsOf(sets, files, candidates);
    if (!cancel.isCancelled())
        report(progress, Text::lookup(u"Done"));
    return groups;
}

std::optional<QString> DuplicateScanService::sha256(const FileURL &file, const CancelToken &cancel)
{
    const auto opened = FileSystem::openItem(file, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (!opened)
        return std::nullopt;
    const Descriptor descriptor(*opened);
    const auto stamp = FileReading::stampOf(descriptor.get());
    if (!stamp)
        return std::nullopt;
    const auto digest = FileDigest::ofOpenFile(Sha256(), descriptor.get(), *stamp, cancel);
    return digest ? std::optional{Sha256::text(*digest)} : std::nullopt;
}

std::unique_ptr<QFile> DuplicateScanService::makeScanLog(const FileURL &folder)
{
    const QByteArray path = folder.child("brisko_scan.log").path();
    // Whatever another program put there goes, a link itself and not what it leads to. What comes in between makes the
    // exclusive creation fail.
    ::unlink(path.constData());
    const int descriptor =
        ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return nullptr;
    auto log = std::make_unique<QFile>();
    if (!log->open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return nullptr;
    }
    return log;
}
