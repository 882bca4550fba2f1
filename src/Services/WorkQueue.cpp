// SPDX-License-Identifier: MIT
#include "Services/WorkQueue.h"

#include <utility>

WorkQueue::WorkQueue(const QString &name, int threads)
{
    m_pool.setObjectName(name);
    m_pool.setMaxThreadCount(threads);
    for (int thread = 0; thread < threads; ++thread)
        m_pool.start([this] { run(); });
}

WorkQueue::~WorkQueue()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    m_pool.waitForDone();
}

void WorkQueue::add(Work work)
{
    const std::lock_guard lock(m_mutex);
    m_waiting.push_back(std::move(work));
    m_changed.notify_one();
}

void WorkQueue::addFirst(Work work)
{
    const std::lock_guard lock(m_mutex);
    m_waiting.push_front(std::move(work));
    m_changed.notify_one();
}

/// One thread takes work until the queue ends: handing each piece to the pool by itself would cost more than a small
/// file takes to hash.
void WorkQueue::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_isEnding || !m_waiting.empty(); });
        if (m_isEnding)
            return;
        Work work = std::move(m_waiting.front());
        m_waiting.pop_front();
        ++m_running;
        lock.unlock();
        work();
        work = nullptr; // what it holds goes before anybody may take the queue for idle
        lock.lock();
        if (--m_running == 0 && m_waiting.empty())
            m_becameIdle.notify_all();
    }
}

void WorkQueue::waitUntilIdle()
{
    std::unique_lock lock(m_mutex);
    m_becameIdle.wait(lock, [this] { return m_waiting.empty() && m_running == 0; });
}
