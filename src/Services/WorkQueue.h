// SPDX-License-Identifier: MIT
#pragma once

#include <QThreadPool>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

/// Runs pieces of work on a few threads of a named pool of its own, in the order given. Any thread may add work, work
/// itself included. What is still waiting when the queue goes is not run.
class WorkQueue
{
public:
    using Work = std::function<void()>;

    WorkQueue(const QString &name, int threads);
    ~WorkQueue();
    Q_DISABLE_COPY_MOVE(WorkQueue)

    void add(Work work);
    /// Adds work that comes before all that waits.
    void addFirst(Work work);
    /// Returns when nothing waits and nothing runs.
    void waitUntilIdle();
    [[nodiscard]] const QThreadPool &pool() const { return m_pool; }

private:
    void run();

    QThreadPool m_pool;
    std::mutex m_mutex; // guards what follows
    std::condition_variable m_changed;
    std::condition_variable m_becameIdle;
    std::deque<Work> m_waiting;
    int m_running = 0; // pieces of work
    bool m_isEnding = false;
};
