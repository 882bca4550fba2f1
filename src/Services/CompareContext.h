// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Descriptor.h"
#include "Platform/FileReading.h"
#include "Services/Budget.h"
#include "Services/DuplicateCompare.h"
#include "Services/ScratchMemory.h"
#include "Services/Sha256.h"
#include "Services/WorkQueue.h"

#include <atomic>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace DuplicateCompare {

/// How much of a file tells most different files apart. Files no longer than this are read once, as a whole.
inline constexpr qint64 kPrefix = 16 * 1024;
/// How many files a reader takes at a time.
inline constexpr int kSlice = 16;

/// One file on disk with all the candidates that are names of it.
struct Unit {
    quint32 first = 0; // its first name in `Context::order`
    quint32 names = 1;
};

/// A unit that is open, its stamp from before anything was read.
struct OpenFile {
    Descriptor descriptor;
    FileReading::Stamp stamp;
    Budget::Share lease; // of the descriptors that may be open

    [[nodiscard]] bool isOpen() const { return descriptor.isOpen(); }
    [[nodiscard]] bool isUnchanged() const { return FileReading::stampOf(descriptor.get()) == stamp; }
    void close()
    {
        descriptor.close();
        lease.giveBack();
    }
};

/// A unit whose bytes are known to equal those of the others in its list, as long as its stamp holds.
struct Member {
    quint32 unit = 0;
    FileReading::Stamp stamp;
};

/// What all threads of one comparison share. Each function may be called on any of them.
class Context
{
public:
    Context(const std::vector<Candidate> &candidates, const Limits &limits, const Settled &settled,
            const CancelToken &cancel);

    [[nodiscard]] const std::vector<Unit> &units() const { return m_units; }
    [[nodiscard]] qint64 sizeOf(quint32 unit) const { return candidate(m_units[unit].first).size; }
    [[nodiscard]] qsizetype namesOf(const std::vector<Member> &members) const;
    [[nodiscard]] bool isCancelled() const { return m_cancel.isCancelled(); }
    [[nodiscard]] const Limits &limits() const { return m_limits; }

    /// Opens a unit and looks whether it is still the regular file that was listed.
    [[nodiscard]] std::optional<OpenFile> open(quint32 unit);
    /// As `open`, for a unit read before: absent as well when it changed since.
    [[nodiscard]] std::optional<OpenFile> reopen(const Member &member);
    /// Whether all bytes asked for were read.
    [[nodiscard]] bool read(const OpenFile &file, char *into, qint64 size, qint64 offset);
    [[nodiscard]] qint64 readCached(const OpenFile &file, char *into, qint64 size, qint64 offset);

    /// The unit has no equal, or none that can be told.
    void drop(quint32 unit);
    /// The members are equal; a single one counts when it has several names.
    void publish(const std::vector<Member> &members, const QByteArray &digest);
    [[nodiscard]] QByteArray digestOf(QByteArrayView content);
    /// The digest of a whole open file; absent when it cannot be read, has changed, or the work is cancelled.
    [[nodiscard]] std::optional<QByteArray> digestOf(const OpenFile &file);

    /// Runs `work` on a worker.
    void start(WorkQueue::Work work) { m_workers.add(std::move(work)); }
    /// As `start`, but before all that waits.
    void startNext(WorkQueue::Work work) { m_workers.addFirst(std::move(work)); }
    /// As `start`, for what keeps the disk busy by itself: of such work little runs at a time, one after the other.
    void startLong(WorkQueue::Work work);
    /// Runs work(0) to work(count - 1) on this and on idle workers; returns when all are done.
    void inParallel(int count, const std::function<void(int)> &work);
    void waitForWorkers() { m_workers.waitUntilIdle(); }
    [[nodiscard]] std::vector<EqualSet> takeResults();
    [[nodiscard]] Cost cost() const;

    Budget descriptors;    // for files that readers opened; waited for only by who holds none
    Budget kept;           // for files that stay open between two slices; never waited for
    Budget contents;       // bytes of contents on their way to a worker; waited for by readers alone
    Budget stored;         // bytes of contents that stay between two slices; never waited for
    ScratchMemory scratch; // blocks of as much as is hashed at a time
    const size_t seed;     // of the hashes that sort files beforehand

private:
    [[nodiscard]] const Candidate &candidate(quint32 name) const { return m_candidates[m_order[name]]; }
    void makeUnits();
    void joinNames(size_t from, size_t to);
    void runLong();
    [[nodiscard]] std::vector<qsizetype> listedNames(const std::vector<Member> &members) const;

    const std::vector<Candidate> &m_candidates;
    const Limits m_limits;
    const Settled &m_settled;
    const CancelToken m_cancel;
    std::vector<quint32> m_order; // the candidates' positions, largest files first, names of one file together
    std::vector<Unit> m_units;    // largest first, then in the order of the candidates
    const Sha256 m_sha;
    std::mutex m_mutex;
    std::vector<EqualSet> m_results;    // guarded by m_mutex, as are the next two
    std::deque<WorkQueue::Work> m_long; // waits for its turn
    int m_longRunning = 0;              // workers that take it
    std::atomic<qint64> m_opens = 0;
    std::atomic<qint64> m_bytesRead = 0;
    std::atomic<qint64> m_bytesHashed = 0;
    WorkQueue m_workers; // last: its threads use the rest
};

} // namespace DuplicateCompare
