// SPDX-License-Identifier: MIT
#include "Platform/Linux/RecordsAhead.h"

#include "Platform/Linux/ItemStatus.h"

#include <fcntl.h>

#include <algorithm>
#include <utility>

namespace {

constexpr size_t kAhead = 64;    // records that a program that is killed leaves behind at most
constexpr size_t kWake = 16;     // items after which one thread wakes the other
constexpr size_t kSearch = 1024; // items that are passed over at a time, because they were not moved

} // namespace

RecordsAhead::RecordsAhead(TrashRecords &records, const MountPoints::Identity &trash, std::vector<FileURL> items)
    : m_records(records)
    , m_trash(trash)
    , m_items(std::move(items))
    , m_names(m_items.size())
{
    try {
        m_writer = std::thread([this] { write(); });
    } catch (const std::system_error &) {
        m_written = m_items.size();
    }
}

RecordsAhead::~RecordsAhead()
{
    m_isOver = true;
    m_taken = m_items.size();
    m_taken.notify_all();
    if (m_writer.joinable())
        m_writer.join();
    // Backwards, so that numbers are given back in order.
    for (size_t at = m_items.size(); at-- > 0;) {
        if (!m_names[at].isEmpty())
            m_records.drop(m_items[at].name(), m_names[at]);
    }
}

std::optional<QByteArray> RecordsAhead::take(const FileURL &item)
{
    const size_t from = m_taken.load(std::memory_order_relaxed);
    const size_t to = std::min(from + kSearch, m_items.size());
    size_t at = from;
    while (at < to && m_items[at] != item)
        ++at;
    if (at == to)
        return std::nullopt;
    moveOn(at);
    for (size_t written = m_written.load(std::memory_order_acquire); written <= at;
         written = m_written.load(std::memory_order_acquire))
        m_written.wait(written, std::memory_order_acquire);
    const QByteArray name = std::exchange(m_names[at], {});
    moveOn(at + 1);
    return name.isEmpty() ? std::nullopt : std::optional(name);
}

/// Says that the moves are past the items before `to`.
void RecordsAhead::moveOn(size_t to)
{
    const size_t from = m_taken.exchange(to, std::memory_order_relaxed);
    if (from / kWake != to / kWake)
        m_taken.notify_one();
}

void RecordsAhead::write()
{
    for (size_t at = 0; at < m_items.size(); ++at) {
        for (size_t taken = m_taken.load(std::memory_order_relaxed); at >= taken + kAhead;
             taken = m_taken.load(std::memory_order_relaxed))
            m_taken.wait(taken, std::memory_order_relaxed);
        if (m_isOver)
            return;
        // An item that was passed over gets none, nor does one whose record fails: its move will tell why.
        const FileURL &item = m_items[at];
        if (at >= m_taken.load(std::memory_order_relaxed) && isOnDevice(item.parent()))
            m_names[at] = m_records.claim(item.name(), item.path()).value_or(QByteArray());
        m_written.store(at + 1, std::memory_order_release);
        if ((at + 1) % kWake == 0 || at + 1 == m_items.size())
            m_written.notify_one();
    }
}

bool RecordsAhead::isOnDevice(const FileURL &folder)
{
    if (folder != m_folder) {
        const auto status = targetStatusAt(AT_FDCWD, folder.path().constData());
        m_isFolderOnDevice = status && status->identity.device == m_trash.device;
        m_folder = folder;
    }
    return m_isFolderOnDevice;
}
