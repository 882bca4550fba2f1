// SPDX-License-Identifier: MIT
#include "Services/DuplicateCompare.h"

#include "Services/BlockCompare.h"
#include "Services/CompareContext.h"
#include "Services/DuplicateTables.h"

#include <algorithm>
#include <atomic>
#include <latch>
#include <mutex>
#include <system_error>
#include <thread>

namespace DuplicateCompare {

namespace {

/// What a reader takes at a time: whole sizes, or a slice of one that very many files have.
struct Batch {
    quint32 from = 0; // positions of units
    quint32 to = 0;
    std::shared_ptr<SmallFiles> small; // set for a slice
    std::shared_ptr<LargeFiles> large;
};

std::vector<Batch> makeBatches(Context &context)
{
    const auto count = static_cast<quint32>(context.units().size());
    std::vector<Batch> batches;
    for (quint32 from = 0, to = 0; from < count; from = to) {
        const qint64 size = context.sizeOf(from);
        quint32 names = 0;
        for (to = from; to < count && context.sizeOf(to) == size; ++to)
            names += context.units()[to].names;
        if (names < 2) {
            context.drop(from);
        } else if (to - from > kSlice) {
            const auto slices = static_cast<int>((to - from + kSlice - 1) / kSlice);
            Batch batch;
            if (size <= kPrefix)
                batch.small = std::make_shared<SmallFiles>(context, size, slices);
            else
                batch.large = std::make_shared<LargeFiles>(context, size, slices);
            for (batch.from = from; batch.from < to; batch.from = batch.to) {
                batch.to = std::min(batch.from + kSlice, to);
                batches.push_back(batch);
            }
        } else if (Batch *last = batches.empty() ? nullptr : &batches.back();
                   last && last->to == from && !last->small && !last->large && to - last->from <= kSlice) {
            last->to = to;
        } else {
            batches.push_back({.from = from, .to = to, .small = {}, .large = {}});
        }
    }
    return batches;
}

/// Reads the beginnings of files, batch by batch.
class Reader
{
public:
    /// Who does what the reading leaves to do.
    enum class Rest : bool { isDoneHere, isHandedOver };

    Reader(Context &context, Rest rest)
        : m_context(context)
        , m_rest(rest)
    {
    }

    /// `lease` covers the files of the batch.
    void take(const Batch &batch, Budget::Share lease)
    {
        m_lease = std::move(lease);
        if (!m_memory)
            m_memory = std::make_unique_for_overwrite<char[]>(kSlice * kPrefix);
        open(batch);
        std::vector<Beginning> files;
        for (Opened &opened : m_opened) {
            if (m_context.isCancelled())
                break;
            if (complete(opened))
                files.push_back(beginning(opened));
            else
                m_context.drop(opened.unit);
        }
        m_opened.clear();
        m_lease.giveBack();
        if (!m_context.isCancelled())
            sort(batch, files);
    }

    /// Whether the batch last taken had to come from the disk.
    [[nodiscard]] bool hadToWait() const { return m_isWaiting; }

private:
    struct Opened {
        quint32 unit = 0;
        OpenFile file;
        char *bytes = nullptr;
        qint64 have = 0;
        qint64 wanted = 0;
    };

    /// Opens all files first, and reads what is at hand: what the disk has to bring is then on its way all at once.
    void open(const Batch &batch)
    {
        m_isWaiting = false;
        for (quint32 unit = batch.from; unit < batch.to; ++unit) {
            if (m_context.isCancelled())
                break;
            auto file = m_context.open(unit);
            if (!file) {
                m_context.drop(unit);
                continue;
            }
            char *bytes = m_memory.get() + (unit - batch.from) * kPrefix;
            const qint64 wanted = std::min(m_context.sizeOf(unit), kPrefix);
            const qint64 have = m_context.readCached(*file, bytes, wanted, 0);
            constexpr qint64 likelyNeeded = 64 * 1024;
            if (have < wanted) {
                FileReading::prefetch(file->descriptor.get(), 0, likelyNeeded);
                m_isWaiting = true;
            }
            m_opened.push_back(
                {.unit = unit, .file = *std::move(file), .bytes = bytes, .have = have, .wanted = wanted});
        }
    }

    bool complete(Opened &opened)
    {
        const qint64 missing = opened.wanted - opened.have;
        if (missing > 0 && !m_context.read(opened.file, opened.bytes + opened.have, missing, opened.have))
            return false;
        return opened.wanted < opened.file.stamp.size || opened.file.isUnchanged();
    }

    Beginning beginning(Opened &opened)
    {
        const FileReading::Stamp stamp = opened.file.stamp;
        if (opened.wanted == stamp.size)
            opened.file.close();
        else
            opened.file.lease = m_lease.split(1);
        return {.unit = opened.unit,
                .file = std::move(opened.file),
                .stamp = stamp,
                .bytes = opened.bytes,
                .hash = qHashBits(opened.bytes, static_cast<size_t>(opened.wanted), m_context.seed)};
    }

    /// Hands the files of each size to their table, and what that leaves to do to the workers.
    void sort(const Batch &batch, std::span<Beginning> files)
    {
        std::vector<Work> together;
        const auto hand = [&](qint64 size, std::vector<Work> work) {
            constexpr qint64 alone = 1024 * 1024; // bytes; comparing shorter files is less work than handing it over
            for (Work &one : work) {
                if (size > BlockCompare::kRange)
                    m_context.startLong(std::move(one));
                else if (size >= alone)
                    m_context.start(std::move(one));
                else
                    together.push_back(std::move(one));
            }
        };
        if (batch.small) {
            hand(0, batch.small->add(files));
        } else if (batch.large) {
            hand(m_context.sizeOf(batch.from), batch.large->add(files));
        } else {
            for (size_t from = 0, to = 0; from < files.size(); from = to) {
                const qint64 size = m_context.sizeOf(files[from].unit);
                for (to = from; to < files.size() && m_context.sizeOf(files[to].unit) == size;)
                    ++to;
                const auto part = files.subspan(from, to - from);
                hand(size, size <= kPrefix ? std::make_shared<SmallFiles>(m_context, size, 1)->add(part)
                                           : std::make_shared<LargeFiles>(m_context, size, 1)->add(part));
            }
        }
        if (together.empty())
            return;
        if (m_rest == Rest::isDoneHere) {
            for (const Work &one : together)
                one();
            return;
        }
        m_context.start([work = std::move(together)] {
            for (const Work &one : work)
                one();
        });
    }

    Context &m_context;
    const Rest m_rest;
    std::unique_ptr<char[]> m_memory;
    std::vector<Opened> m_opened;
    Budget::Share m_lease; // for the files of the batch in hand
    bool m_isWaiting = false;
};

/// Reads all batches. What lies in memory is read and compared by the workers themselves: to hand it from thread to
/// thread would cost more than the work. Once the disk has to be waited for, threads of their own read the rest, more
/// of them than there are workers, who then compare and hash what those bring.
class ReadingStage
{
public:
    ReadingStage(Context &context, const std::vector<Batch> &batches)
        : m_context(context)
        , m_batches(batches)
        , m_most(std::min(batches.size(), static_cast<size_t>(context.limits().readers)))
    {
    }

    void run()
    {
        readOnWorkers();
        if (m_next < m_batches.size())
            readOnThreads();
    }

private:
    void readOnWorkers()
    {
        const auto workers = std::min(m_batches.size(), static_cast<size_t>(m_context.limits().workers));
        const auto reading = std::make_shared<std::latch>(static_cast<std::ptrdiff_t>(workers));
        for (size_t worker = 0; worker < workers; ++worker) {
            m_context.start([this, reading] {
                readAtHand();
                reading->count_down();
            });
        }
        reading->wait();
    }

    /// Reads until something has to be waited for. A worker never waits for descriptors: those who have them may be
    /// waiting for a worker.
    void readAtHand()
    {
        Reader reader(m_context, Reader::Rest::isDoneHere);
        while (!m_hasToWait && !m_context.isCancelled()) {
            Budget::Share lease = m_context.descriptors.tryTake(kSlice);
            const size_t at = lease.isEmpty() ? m_batches.size() : m_next++;
            if (lease.isEmpty())
                m_hasToWait = true;
            if (at >= m_batches.size())
                break;
            reader.take(m_batches[at], std::move(lease));
            if (reader.hadToWait())
                m_hasToWait = true;
        }
    }

    void readOnThreads()
    {
        while (m_started < std::min(m_most, static_cast<size_t>(m_context.limits().workers)))
            startAnother();
        read();
        // Only a running reader starts another, which then stands behind it in the list.
        for (size_t at = 0;; ++at) {
            std::thread thread;
            {
                const std::lock_guard lock(m_mutex);
                if (at == m_threads.size())
                    return;
                thread = std::move(m_threads[at]);
            }
            thread.join();
        }
    }

    void read()
    {
        Reader reader(m_context, Reader::Rest::isHandedOver);
        for (size_t at = m_next++; at < m_batches.size() && !m_context.isCancelled(); at = m_next++) {
            const Batch &batch = m_batches[at];
            reader.take(batch, m_context.descriptors.take(batch.to - batch.from));
            if (reader.hadToWait() && m_started < m_most)
                startAnother();
        }
    }

    void startAnother()
    {
        const std::lock_guard lock(m_mutex);
        if (m_started >= m_most)
            return;
        try {
            m_threads.emplace_back([this] { read(); });
            ++m_started;
        } catch (const std::system_error &) {
            m_started = m_most; // the system has no more threads for us: those there are read it all
        }
    }

    Context &m_context;
    const std::vector<Batch> &m_batches;
    const size_t m_most;
    std::atomic<size_t> m_next = 0;
    std::atomic<bool> m_hasToWait = false; // for the disk, or for descriptors
    std::atomic<size_t> m_started = 1;     // readers, this thread included; changed under the lock
    std::mutex m_mutex;
    std::vector<std::thread> m_threads; // guarded by m_mutex
};

} // namespace

Limits limitsFor(int processors, qsizetype candidates)
{
    constexpr int fewestWorkers = 2;
    constexpr int mostWorkers = 6;
    constexpr int mostDescriptors = 256;
    constexpr int fewestDescriptors = 32;
    constexpr qint64 memoryAlways = 2 * 1024 * 1024;
    constexpr qint64 memoryPerCandidate = 256;
    return {.workers = std::clamp(processors, fewestWorkers, mostWorkers),
            .readers = 6,
            .descriptors = std::clamp(FileReading::descriptorLimit() / 2, fewestDescriptors, mostDescriptors),
            .memory = memoryAlways + memoryPerCandidate * candidates};
}

std::vector<EqualSet> equalSets(const std::vector<Candidate> &candidates, const Limits &limits, const Settled &settled,
                                const CancelToken &cancel, Cost *cost)
{
    Context context(candidates, limits, settled, cancel);
    const std::vector<Batch> batches = makeBatches(context);
    ReadingStage(context, batches).run();
    context.waitForWorkers();
    if (cost)
        *cost = context.cost();
    return context.takeResults();
}

} // namespace DuplicateCompare
