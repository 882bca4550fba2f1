// SPDX-License-Identifier: MIT
#include "Services/BlockCompare.h"
#include "Services/DuplicateTables.h"

#include <algorithm>
#include <utility>

namespace DuplicateCompare {

namespace {

constexpr size_t kTogether = kSlice - 1; // arrivals that are compared in one go
constexpr size_t kCrowded = 8;           // different contents that are still compared one with another
constexpr qint64 kOwnWork = 1024 * 1024; // bytes; longer files are each hashed as a piece of work of their own

} // namespace

LargeFiles::LargeFiles(Context &context, qint64 size, int slices)
    : m_context(context)
    , m_size(size)
    , m_isWhole(slices == 1)
    , m_slices(slices)
    , m_outstanding(slices)
{
}

std::vector<Work> LargeFiles::add(std::span<Beginning> slice)
{
    std::vector<Work> work;
    const std::lock_guard lock(m_mutex);
    for (Beginning &file : slice)
        place(file);
    for (const Beginning &file : slice) {
        Alike &alike = m_alike[file.hash];
        if (alike.isBusy)
            continue;
        if (alike.arrivals.empty()) {
            for (Copies &copies : alike.node.copies)
                park(copies);
            continue;
        }
        alike.isBusy = true;
        ++m_outstanding;
        work.emplace_back([self = shared_from_this(), &alike] { self->compareArrivals(alike); });
    }
    if (--m_slices == 0)
        dropIdle();
    if (--m_outstanding == 0)
        work.emplace_back([self = shared_from_this()] { self->finish(); });
    return work;
}

void LargeFiles::place(Beginning &file)
{
    Alike &alike = m_alike[file.hash];
    if (alike.isStarted) {
        alike.arrivals.push_back({.unit = file.unit, .file = std::move(file.file)});
        return;
    }
    alike.isStarted = true;
    alike.node.known = kPrefix;
    alike.node.copies.push_back(
        {.members = {{.unit = file.unit, .stamp = file.stamp}}, .file = std::move(file.file), .isParked = false});
}

/// When no more files come, those whose beginning no other file has are done with.
void LargeFiles::dropIdle()
{
    std::erase_if(m_alike, [this](const auto &entry) {
        const Alike &alike = entry.second;
        if (alike.isBusy || !alike.node.children.empty() || alike.node.copies.size() != 1 ||
            m_context.namesOf(alike.node.copies.front().members) > 1)
            return false;
        m_context.drop(alike.node.copies.front().members.front().unit);
        return true;
    });
}

void LargeFiles::compareArrivals(Alike &alike)
{
    for (;;) {
        std::vector<Arrival> some;
        {
            const std::lock_guard lock(m_mutex);
            const auto count = static_cast<std::ptrdiff_t>(std::min(alike.arrivals.size(), kTogether));
            std::move(alike.arrivals.begin(), alike.arrivals.begin() + count, std::back_inserter(some));
            alike.arrivals.erase(alike.arrivals.begin(), alike.arrivals.begin() + count);
            if (some.empty()) {
                alike.isBusy = false;
                break;
            }
        }
        if (!m_context.isCancelled())
            insert(alike.node, std::move(some));
    }
    leave();
}

void LargeFiles::insert(Node &node, std::vector<Arrival> arrivals)
{
    if (node.children.empty()) {
        compare(node, std::move(arrivals));
        splitIfCrowded(node);
        return;
    }
    std::map<size_t, std::vector<Arrival>> below;
    for (Arrival &arrival : arrivals) {
        if (const auto hash = BlockCompare::roughHash(m_context, arrival.file, node.known, node.childrenKnow))
            below[*hash].push_back(std::move(arrival));
        else
            m_context.drop(arrival.unit);
    }
    for (auto &[hash, some] : below) {
        std::unique_ptr<Node> &child = node.children[hash];
        if (!child) {
            child = std::make_unique<Node>();
            child->known = node.childrenKnow;
        }
        insert(*child, std::move(some));
    }
}

/// Compares arrivals with the node's contents and with each other.
void LargeFiles::compare(Node &node, std::vector<Arrival> arrivals)
{
    for (;;) {
        std::erase_if(node.copies, [this](Copies &copies) { return !openFirst(copies); });
        const size_t known = node.copies.size();
        std::vector<BlockCompare::Item> items(known + arrivals.size());
        for (size_t at = 0; at < items.size(); ++at) {
            items[at].isNew = at >= known;
            items[at].file = at < known ? &node.copies[at].file : &arrivals[at - known].file;
        }
        const auto equal = BlockCompare::equalItems(m_context, items, m_size);
        if (m_context.isCancelled())
            return;
        for (size_t at = 0; at < known; ++at) {
            if (items[at].failed)
                dropFirst(node.copies[at]);
        }
        if (!join(node, arrivals, known, equal))
            continue; // a file that the others were compared with has changed: once more, without it
        for (size_t at = known; at < items.size(); ++at) {
            Arrival &arrival = arrivals[at - known];
            if (items[at].failed)
                m_context.drop(arrival.unit);
            else if (arrival.file.isOpen())
                settleAlone(node, std::move(arrival));
        }
        break;
    }
    for (Copies &copies : node.copies)
        park(copies);
}

/// Adds arrivals to the contents that they equal. False, with nothing added, when one of those has changed.
bool LargeFiles::join(Node &node, std::vector<Arrival> &arrivals, size_t known,
                      const std::vector<std::vector<int>> &equal)
{
    bool isSound = true;
    for (size_t at = 0; at < known; ++at) {
        if (Copies &copies = node.copies[at]; copies.file.isOpen() && !copies.file.isUnchanged()) {
            dropFirst(copies);
            isSound = false;
        }
    }
    if (!isSound)
        return false;
    for (const std::vector<int> &one : equal) {
        // Contents that the node holds differ from each other, so that only the first item can be one of them.
        Copies made;
        Copies *target =
            static_cast<size_t>(one.front()) < known ? &node.copies[static_cast<size_t>(one.front())] : &made;
        for (const int item : one) {
            if (static_cast<size_t>(item) < known)
                continue;
            Arrival &arrival = arrivals[static_cast<size_t>(item) - known];
            if (!arrival.file.isUnchanged()) {
                m_context.drop(arrival.unit);
                arrival.file.close();
                continue;
            }
            target->members.push_back({.unit = arrival.unit, .stamp = arrival.file.stamp});
            if (target->file.isOpen())
                arrival.file.close();
            else
                target->file = std::exchange(arrival.file, {});
        }
        if (!made.members.empty())
            node.copies.push_back(std::move(made));
    }
    return true;
}

/// An arrival that equals nothing so far: others may still come.
void LargeFiles::settleAlone(Node &node, Arrival arrival)
{
    const Member member{.unit = arrival.unit, .stamp = arrival.file.stamp};
    if (m_isWhole && m_context.namesOf({member}) < 2)
        m_context.drop(arrival.unit);
    else
        node.copies.push_back({.members = {member}, .file = std::move(arrival.file), .isParked = false});
}

void LargeFiles::splitIfCrowded(Node &node)
{
    if (m_isWhole || node.copies.size() <= kCrowded || node.known >= m_size)
        return;
    constexpr qint64 factor = 16;
    node.childrenKnow = std::min(node.known * factor, m_size);
    for (Copies &copies : std::exchange(node.copies, {})) {
        while (openFirst(copies)) {
            const auto hash = BlockCompare::roughHash(m_context, copies.file, node.known, node.childrenKnow);
            if (m_context.isCancelled())
                return;
            if (!hash) {
                dropFirst(copies);
                continue;
            }
            std::unique_ptr<Node> &child = node.children[*hash];
            if (!child) {
                child = std::make_unique<Node>();
                child->known = node.childrenKnow;
            }
            park(copies);
            child->copies.push_back(std::move(copies));
            break;
        }
    }
    for (auto &[hash, child] : node.children)
        splitIfCrowded(*child);
}

/// Sees to it that the first member is open and what it was; those that are not are dropped. False when none is left.
bool LargeFiles::openFirst(Copies &copies)
{
    while (!copies.members.empty() && !copies.file.isOpen()) {
        if (auto file = m_context.reopen(copies.members.front())) {
            copies.file = *std::move(file);
            copies.isParked = false;
        } else {
            dropFirst(copies);
        }
    }
    return !copies.members.empty();
}

void LargeFiles::dropFirst(Copies &copies)
{
    m_context.drop(copies.members.front().unit);
    copies.members.erase(copies.members.begin());
    copies.file.close();
    copies.isParked = false;
}

/// Between two slices a file stays open as long as there is room, for the next that is like it.
void LargeFiles::park(Copies &copies)
{
    if (m_isWhole || copies.isParked || !copies.file.isOpen())
        return;
    copies.file.lease = m_context.kept.tryTake(1);
    copies.isParked = !copies.file.lease.isEmpty();
    if (!copies.isParked)
        copies.file.close();
}

/// Whoever is the last to leave finishes.
void LargeFiles::leave()
{
    {
        const std::lock_guard lock(m_mutex);
        if (--m_outstanding > 0)
            return;
    }
    finish();
}

void LargeFiles::collect(Node &node, std::vector<Copies> &result)
{
    std::move(node.copies.begin(), node.copies.end(), std::back_inserter(result));
    for (auto &[hash, child] : node.children)
        collect(*child, result);
}

void LargeFiles::finish()
{
    std::vector<Copies> found;
    for (auto &[hash, alike] : m_alike)
        collect(alike.node, found);
    m_alike.clear();
    std::vector<std::shared_ptr<Copies>> sets;
    for (Copies &copies : found) {
        if (m_context.namesOf(copies.members) > 1) {
            sets.push_back(std::make_shared<Copies>(std::move(copies)));
            continue;
        }
        for (const Member &member : copies.members)
            m_context.drop(member.unit);
    }
    found.clear();
    const size_t together = m_size >= kOwnWork ? 1 : kSlice;
    for (size_t from = 0; from < sets.size(); from += together) {
        const size_t to = std::min(from + together, sets.size());
        const auto work = [self = shared_from_this(),
                           some = std::vector(sets.begin() + static_cast<std::ptrdiff_t>(from),
                                              sets.begin() + static_cast<std::ptrdiff_t>(to))] {
            for (const std::shared_ptr<Copies> &copies : some)
                self->hash(*copies);
        };
        if (m_size > BlockCompare::kRange)
            m_context.startNext(work); // the next files can be fetched meanwhile
        else if (to == sets.size())
            work(); // this is a worker, and has nothing else to do
        else
            m_context.start(work);
    }
}

void LargeFiles::hash(Copies &copies)
{
    while (!m_context.isCancelled() && openFirst(copies)) {
        const auto digest = m_context.digestOf(copies.file);
        if (digest) {
            m_context.publish(copies.members, *digest);
            copies.file.close();
            return;
        }
        if (!m_context.isCancelled())
            dropFirst(copies);
    }
}

} // namespace DuplicateCompare
