// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <utility>

/// A number of things that threads may have at one time. As a semaphore, but one that wakes who waits for many only
/// when there are as many. Any thread.
class Budget
{
public:
    explicit Budget(qint64 available)
        : m_available(available)
    {
    }
    Q_DISABLE_COPY_MOVE(Budget)

    /// Part of a budget, given back with the object or with `giveBack`.
    class Share
    {
    public:
        Share() = default;
        Share(Share &&other) noexcept
            : m_budget(std::exchange(other.m_budget, nullptr))
            , m_count(std::exchange(other.m_count, 0))
        {
        }
        Share &operator=(Share &&other) noexcept
        {
            if (this != &other) {
                giveBack();
                m_budget = std::exchange(other.m_budget, nullptr);
                m_count = std::exchange(other.m_count, 0);
            }
            return *this;
        }
        Share(const Share &) = delete;
        Share &operator=(const Share &) = delete;
        ~Share() { giveBack(); }

        [[nodiscard]] bool isEmpty() const { return m_count == 0; }
        /// Takes some out of this share, into one of its own.
        [[nodiscard]] Share split(qint64 count)
        {
            Q_ASSERT(count <= m_count);
            m_count -= count;
            return {m_budget, count};
        }
        void giveBack()
        {
            if (m_count > 0)
                m_budget->giveBack(m_count);
            m_count = 0;
        }

    private:
        friend class Budget;
        Share(Budget *budget, qint64 count)
            : m_budget(budget)
            , m_count(count)
        {
        }
        Budget *m_budget = nullptr;
        qint64 m_count = 0;
    };

    /// Waits until there are so many.
    [[nodiscard]] Share take(qint64 count)
    {
        std::unique_lock lock(m_mutex);
        if (m_available < count) {
            // All wait for about as many: the least of them is worth waking the others for.
            m_wanted = m_waiting++ == 0 ? count : std::min(m_wanted, count);
            m_enough.wait(lock, [&] { return m_available >= count; });
            --m_waiting;
        }
        m_available -= count;
        return {this, count};
    }
    /// An empty share when there are not so many now.
    [[nodiscard]] Share tryTake(qint64 count)
    {
        const std::lock_guard lock(m_mutex);
        if (m_available < count)
            return {};
        m_available -= count;
        return {this, count};
    }

private:
    void giveBack(qint64 count)
    {
        const std::lock_guard lock(m_mutex);
        m_available += count;
        if (m_waiting > 0 && m_available >= m_wanted)
            m_enough.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_enough;
    qint64 m_available;
    int m_waiting = 0;
    qint64 m_wanted = 0; // by the most modest of those waiting since somebody waits
};
