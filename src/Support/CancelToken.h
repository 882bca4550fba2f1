// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <memory>

/// Asks work in flight to stop. Copies share one flag; work looks at it once per folder and per block read, and so
/// ends within about 100 ms. Any thread.
class CancelToken
{
public:
    void cancel() const { m_cancelled->store(true, std::memory_order_relaxed); }
    [[nodiscard]] bool isCancelled() const { return m_cancelled->load(std::memory_order_relaxed); }
    /// Whether the other is a copy of this one.
    [[nodiscard]] bool isSameAs(const CancelToken &other) const { return m_cancelled == other.m_cancelled; }

private:
    std::shared_ptr<std::atomic<bool>> m_cancelled = std::make_shared<std::atomic<bool>>(false);
};
