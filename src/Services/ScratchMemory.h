// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <mutex>
#include <span>
#include <utility>
#include <vector>

/// Blocks of memory to read into, used over and over: what each thread frees for itself, the system's allocator keeps
/// for that thread. Any thread.
class ScratchMemory
{
public:
    explicit ScratchMemory(size_t size)
        : m_size(size)
    {
    }

    /// One block, back in store when its holder goes. Its bytes are what they happen to be.
    class Block
    {
    public:
        explicit Block(ScratchMemory &store)
            : m_store(store)
            , m_bytes(store.take())
        {
        }
        ~Block() { m_store.giveBack(std::move(m_bytes)); }
        Block(const Block &) = delete;
        Block &operator=(const Block &) = delete;
        [[nodiscard]] std::span<char> bytes() const { return {m_bytes.get(), m_store.m_size}; }

    private:
        ScratchMemory &m_store;
        std::unique_ptr<char[]> m_bytes;
    };

private:
    std::unique_ptr<char[]> take()
    {
        const std::lock_guard lock(m_mutex);
        if (m_free.empty())
            return std::make_unique_for_overwrite<char[]>(m_size);
        auto bytes = std::move(m_free.back());
        m_free.pop_back();
        return bytes;
    }
    void giveBack(std::unique_ptr<char[]> bytes)
    {
        const std::lock_guard lock(m_mutex);
        m_free.push_back(std::move(bytes));
    }

    const size_t m_size; // bytes of a block
    std::mutex m_mutex;
    std::vector<std::unique_ptr<char[]>> m_free; // guarded by m_mutex
};
