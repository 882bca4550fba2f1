// SPDX-License-Identifier: MIT
#include "Services/CompareContext.h"

#include "Platform/FileSystem.h"
#include "Services/DuplicateScanService.h"
#include "Services/FileDigest.h"

#include <QRandomGenerator>

#include <fcntl.h>

#include <algorithm>
#include <condition_variable>
#include <numeric>
#include <unordered_map>
#include <utility>

namespace DuplicateCompare {

Context::Context(const std::vector<Candidate> &candidates, const Limits &limits, const Settled &settled,
                 const CancelToken &cancel)
    : descriptors(std::max(kSlice, limits.descriptors * 9 / 16))
    , kept(limits.descriptors * 3 / 16)
    , contents(qint64{limits.readers} * 2 * kSlice *
               kPrefix) // twice what readers hold between them, so none waits forever
    , stored(limits.memory)
    , scratch(static_cast<size_t>(DuplicateScanService::kChunk))
    , seed(static_cast<size_t>(QRandomGenerator::system()->generate64()))
    , m_candidates(candidates)
    , m_limits(limits)
    , m_settled(settled)
    , m_cancel(cancel)
    , m_workers(QStringLiteral("com.brisko.dupecount"), limits.workers)
{
    makeUnits();
}

void Context::makeUnits()
{
    m_order.resize(m_candidates.size());
    std::iota(m_order.begin(), m_order.end(), 0U);
    std::ranges::stable_sort(m_order, std::ranges::greater{}, [this](quint32 at) { return m_candidates[at].size; });
    for (size_t from = 0, to = 0; from < m_order.size(); from = to) {
        to = from + 1;
        while (to < m_order.size() && m_candidates[m_order[to]].size == m_candidates[m_order[from]].size)
            ++to;
        joinNames(from, to);
    }
}

/// Makes the units of one size, the names of one file together. Where the system counts but one name, two paths that
/// look like one file may be a file system's made-up numbers, and their bytes decide.
void Context::joinNames(size_t from, size_t to)
{
    using Identity = std::pair<quint64, quint64>;
    struct Hash {
        size_t operator()(const Identity &identity) const { return qHash(identity); }
    };
    std::unordered_map<Identity, std::vector<quint32>, Hash> linked;
    for (size_t at = from; at < to; ++at) {
        if (const Candidate &one = m_candidates[m_order[at]]; one.links > 1)
            linked[{one.device, one.inode}].push_back(m_order[at]);
    }
    if (linked.empty()) {
        for (size_t at = from; at < to; ++at)
            m_units.push_back({.first = static_cast<quint32>(at), .names = 1});
        return;
    }
    const std::vector<quint32> before(m_order.begin() + static_cast<std::ptrdiff_t>(from),
                                      m_order.begin() + static_cast<std::ptrdiff_t>(to));
    size_t next = from;
    for (const quint32 position : before) {
        const Candidate &one = m_candidates[position];
        const std::vector<quint32> names =
            one.links > 1 ? std::exchange(linked[{one.device, one.inode}], {}) : std::vector{position};
        if (names.empty()) // went with the file's first name
            continue;
        m_units.push_back({.first = static_cast<quint32>(next), .names = static_cast<quint32>(names.size())});
        std::ranges::copy(names, m_order.begin() + static_cast<std::ptrdiff_t>(next));
        next += names.size();
    }
}

qsizetype Context::namesOf(const std::vector<Member> &members) const
{
    qsizetype count = 0;
    for (const Member &member : members)
        count += m_units[member.unit].names;
    return count;
}

std::optional<OpenFile> Context::open(quint32 unit)
{
    const Unit &what = m_units[unit];
    for (quint32 name = what.first; name < what.first + what.names; ++name) {
        m_opens.fetch_add(1, std::memory_order_relaxed);
        // What was a regular file may have become a pipe, which must not be waited for.
        const auto opened = FileSystem::openItem(candidate(name).url, O_RDONLY | O_NONBLOCK | O_NOCTTY);
        if (!opened)
            continue;
        OpenFile file{.descriptor = Descriptor(*opened), .stamp = {}, .lease = {}};
        const auto stamp = FileReading::stampOf(file.descriptor.get());
        if (!stamp || stamp->size != candidate(name).size)
            continue;
        if (what.names > 1 && (stamp->device != candidate(name).device || stamp->inode != candidate(name).inode))
            continue;
        file.stamp = *stamp;
        return file;
    }
    return std::nullopt;
}

std::optional<OpenFile> Context::reopen(const Member &member)
{
    auto file = open(member.unit);
    if (file && file->stamp != member.stamp)
        return std::nullopt;
    return file;
}

bool Context::read(const OpenFile &file, char *into, qint64 size, qint64 offset)
{
    const qint64 got = FileReading::readAt(file.descriptor.get(), into, size, offset);
    m_bytesRead.fetch_add(std::max<qint64>(got, 0), std::memory_order_relaxed);
    return got == size;
}

qint64 Context::readCached(const OpenFile &file, char *into, qint64 size, qint64 offset)
{
    const qint64 got = FileReading::readCached(file.descriptor.get(), into, size, offset);
    m_bytesRead.fetch_add(got, std::memory_order_relaxed);
    return got;
}

void Context::drop(quint32 unit)
{
    m_settled(m_units[unit].names);
}

void Context::publish(const std::vector<Member> &members, const QByteArray &digest)
{
    EqualSet set{.members = listedNames(members), .digest = digest};
    if (set.members.size() > 1) {
        std::ranges::sort(set.members);
        const std::lock_guard lock(m_mutex);
        m_results.push_back(std::move(set));
    }
    m_settled(namesOf(members));
}

/// The members' paths. A file read by one of its names may have lost the others meanwhile.
std::vector<qsizetype> Context::listedNames(const std::vector<Member> &members) const
{
    std::vector<qsizetype> names;
    for (const Member &member : members) {
        const Unit &unit = m_units[member.unit];
        for (quint32 name = unit.first; name < unit.first + unit.names; ++name) {
            const auto isStillOne = [&] {
                const auto found = FileSystem::attributes(candidate(name).url);
                return found && found->device == member.stamp.device && found->inode == member.stamp.inode;
            };
            if (unit.names == 1 || isStillOne())
                names.push_back(m_order[name]);
        }
    }
    return names;
}

QByteArray Context::digestOf(QByteArrayView content)
{
    Sha256::Run run(m_sha);
    run.add(content);
    m_bytesHashed.fetch_add(content.size(), std::memory_order_relaxed);
    return run.finish();
}

std::optional<QByteArray> Context::digestOf(const OpenFile &file)
{
    const ScratchMemory::Block chunk(scratch);
    const auto count = [this](qint64 bytes) {
        m_bytesRead.fetch_add(bytes, std::memory_order_relaxed);
        m_bytesHashed.fetch_add(bytes, std::memory_order_relaxed);
    };
    return FileDigest::ofOpenFile(m_sha, file.descriptor.get(), file.stamp, chunk.bytes(), m_cancel, count);
}

void Context::startLong(WorkQueue::Work work)
{
    const std::lock_guard lock(m_mutex);
    m_long.push_back(std::move(work));
    // While some workers keep the disk busy, the others hash what those have brought into memory.
    if (m_longRunning < std::max(1, m_limits.workers / 2)) {
        ++m_longRunning;
        m_workers.add([this] { runLong(); });
    }
}

void Context::runLong()
{
    std::unique_lock lock(m_mutex);
    while (!m_long.empty()) {
        WorkQueue::Work work = std::move(m_long.front());
        m_long.pop_front();
        lock.unlock();
        work();
        work = nullptr;
        lock.lock();
    }
    --m_longRunning;
}

void Context::inParallel(int count, const std::function<void(int)> &work)
{
    if (count == 1) {
        work(0);
        return;
    }
    struct Shared {
        std::atomic<int> next = 0;
        std::mutex mutex;
        std::condition_variable allDone;
        int done = 0; // guarded by mutex
    };
    const auto shared = std::make_shared<Shared>();
    // A helper that comes too late finds nothing left, and so never touches `work`, which is gone by then.
    const auto takeTurns = [shared, count, &work] {
        for (int at = shared->next++; at < count; at = shared->next++) {
            work(at);
            const std::lock_guard lock(shared->mutex);
            if (++shared->done == count)
                shared->allDone.notify_all();
        }
    };
    for (int helper = std::min(m_limits.workers, count) - 1; helper > 0; --helper)
        m_workers.addFirst(takeTurns);
    takeTurns();
    std::unique_lock lock(shared->mutex);
    shared->allDone.wait(lock, [&] { return shared->done == count; });
}

std::vector<EqualSet> Context::takeResults()
{
    const std::lock_guard lock(m_mutex);
    std::ranges::sort(m_results, {}, [](const EqualSet &set) { return set.members.front(); });
    return std::exchange(m_results, {});
}

Cost Context::cost() const
{
    return {.opens = m_opens, .bytesRead = m_bytesRead, .bytesHashed = m_bytesHashed};
}

} // namespace DuplicateCompare
