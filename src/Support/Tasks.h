// SPDX-License-Identifier: MIT
#pragma once

#include "Support/CancelToken.h"

#include <QCoro/QCoroTask>
#include <QThreadPool>

#include <exception>
#include <optional>

/// The pools that work leaves the main thread for. Made once, in `main` or a test, and outlive all who use them.
struct TaskPools {
    TaskPools();
    QThreadPool userInitiated; // what the user waits for
    QThreadPool utility;       // what may take its time
};

/// Holds the newest task of its kind: storing another cancels the one before. Main thread.
class TaskHandle
{
public:
    TaskHandle() = default;
    ~TaskHandle() { cancel(); }
    Q_DISABLE_COPY_MOVE(TaskHandle)

    /// Cancels the task held and holds the one that looks at the returned token.
    CancelToken renew()
    {
        cancel();
        return m_token.emplace();
    }
    void cancel()
    {
        if (m_token)
            m_token->cancel();
        m_token.reset();
    }
    [[nodiscard]] bool holds(const CancelToken &token) const { return m_token && m_token->isSameAs(token); }

private:
    std::optional<CancelToken> m_token;
};

namespace TasksDetail {
[[noreturn]] void dieOfException(std::exception_ptr exception);

template <typename T>
QCoro::Task<> watch(QCoro::Task<T> task)
{
    try {
        co_await task;
    } catch (...) {
        dieOfException(std::current_exception());
    }
}
} // namespace TasksDetail

/// Lets a task run on its own. A dropped task would swallow its exception; here it ends the program, loudly.
template <typename T>
void detach(QCoro::Task<T> task)
{
    TasksDetail::watch(std::move(task));
}
