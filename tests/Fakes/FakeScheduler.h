// SPDX-License-Identifier: MIT
#pragma once

#include "Support/Scheduler.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <utility>
#include <vector>

/// A clock of the test's own: what is put off runs when the test lets time pass.
class FakeScheduler
{
public:
    FakeScheduler() = default;
    FakeScheduler(const FakeScheduler &) = delete;
    FakeScheduler &operator=(const FakeScheduler &) = delete;

    [[nodiscard]] Scheduler scheduler()
    {
        return [this](std::chrono::milliseconds delay, std::function<void()> action) {
            m_due.emplace_back(m_now + delay, std::move(action));
        };
    }
    /// Lets time pass; what comes due runs in its order, at its time.
    void advance(std::chrono::milliseconds by)
    {
        const auto end = m_now + by;
        for (;;) {
            const auto next = std::ranges::min_element(m_due, {}, &Due::first);
            if (next == m_due.end() || next->first > end)
                break;
            m_now = next->first;
            const std::function<void()> action = next->second;
            m_due.erase(next);
            action();
        }
        m_now = end;
    }
    [[nodiscard]] std::chrono::milliseconds now() const { return m_now; }

private:
    using Due = std::pair<std::chrono::milliseconds, std::function<void()>>;
    std::chrono::milliseconds m_now{0};
    std::vector<Due> m_due;
};
