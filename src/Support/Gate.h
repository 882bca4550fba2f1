// SPDX-License-Identifier: MIT
#pragma once

#include <coroutine>
#include <deque>
#include <memory>
#include <utility>

/// Lets one coroutine through at a time, in the order they came. Main thread only. Copies share one gate, so that a
/// coroutine that outlives the owner still leaves through it.
class Gate
{
    struct Shared {
        bool taken = false;
        std::deque<std::coroutine_handle<>> waiting;
    };

public:
    /// Being inside: leaving lets the next one through.
    class Pass
    {
    public:
        explicit Pass(std::shared_ptr<Shared> shared)
            : m_shared(std::move(shared))
        {
        }
        Pass(Pass &&) noexcept = default;
        Pass &operator=(Pass &&) = delete;
        Pass(const Pass &) = delete;
        Pass &operator=(const Pass &) = delete;
        ~Pass()
        {
            if (!m_shared)
                return;
            if (m_shared->waiting.empty()) {
                m_shared->taken = false;
                return;
            }
            const std::coroutine_handle<> next = m_shared->waiting.front();
            m_shared->waiting.pop_front();
            next.resume();
        }

    private:
        std::shared_ptr<Shared> m_shared;
    };

    /// What `co_await gate.enter()` waits with.
    class Entrance
    {
    public:
        explicit Entrance(std::shared_ptr<Shared> shared)
            : m_shared(std::move(shared))
        {
        }
        [[nodiscard]] bool await_ready() const
        {
            if (m_shared->taken)
                return false;
            m_shared->taken = true;
            return true;
        }
        void await_suspend(std::coroutine_handle<> handle) const { m_shared->waiting.push_back(handle); }
        [[nodiscard]] Pass await_resume() const { return Pass(m_shared); }

    private:
        std::shared_ptr<Shared> m_shared;
    };

    /// Waits until nobody is inside: `const Gate::Pass pass = co_await gate.enter();`.
    [[nodiscard]] Entrance enter() const { return Entrance(m_shared); }

private:
    std::shared_ptr<Shared> m_shared = std::make_shared<Shared>();
};
