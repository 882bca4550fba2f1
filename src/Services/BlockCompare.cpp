// SPDX-License-Identifier: MIT
#include "Services/BlockCompare.h"

#include <QHashFunctions>

#include <algorithm>
#include <cstring>
#include <map>

namespace {

using BlockCompare::Item;
using BlockCompare::kBlock;
using BlockCompare::kRange;
using DuplicateCompare::Context;
using DuplicateCompare::OpenFile;
using Class = std::vector<int>; // positions of items that are equal as far as is known

/// Reads one file in order, and once it had to wait for the disk lets the system fetch well ahead.
class Ahead
{
public:
    bool read(Context &context, const OpenFile &file, char *into, qint64 size, qint64 offset)
    {
        const qint64 got = context.readCached(file, into, size, offset);
        if (got == size && !m_waits)
            return true;
        m_waits = true;
        constexpr qint64 distance = 4 * 1024 * 1024;
        const qint64 wanted = std::min(offset + size + distance, file.stamp.size);
        const qint64 from = std::max(m_fetched, offset + got);
        // Small hints cost more than they bring.
        if (wanted - from >= distance / 2 || (wanted == file.stamp.size && from < wanted)) {
            FileReading::prefetch(file.descriptor.get(), from, wanted - from);
            m_fetched = wanted;
        }
        return got == size || context.read(file, into + got, size - got, offset + got);
    }

private:
    bool m_waits = false;
    qint64 m_fetched = 0; // up to here
};

/// Tells the items of one range of bytes apart, block by block.
class RangeCompare
{
public:
    RangeCompare(Context &context, std::span<Item> items)
        : m_context(context)
        , m_items(items)
        , m_ahead(items.size())
        , m_scratch(context.scratch)
    {
    }

    /// The classes of items that are equal from `from` to `to`; items alone in theirs are marked as out.
    std::vector<Class> run(std::vector<Class> classes, qint64 from, qint64 to)
    {
        for (qint64 at = from; at < to && !classes.empty(); at += kBlock) {
            if (m_context.isCancelled())
                return {};
            std::vector<Class> next;
            for (const Class &one : classes)
                split(one, at, std::min(kBlock, to - at), next);
            classes = std::move(next);
        }
        return classes;
    }

private:
    /// Splits a class by one block; as many contents as there are buffers are told apart at a time.
    void split(const Class &one, qint64 at, qint64 size, std::vector<Class> &result)
    {
        Class rest = stillIn(one);
        while (isWorthIt(rest)) {
            std::vector<Class> found;
            Class later;
            for (const int item : rest)
                place(item, at, size, found, later);
            for (Class &part : found) {
                if (isWorthIt(part))
                    result.push_back(std::move(part));
                else
                    markOut(part);
            }
            rest = std::move(later);
        }
        markOut(rest);
    }

    void place(int item, qint64 at, qint64 size, std::vector<Class> &found, Class &later)
    {
        char *scratch = buffer(found.size());
        Item &what = m_items[static_cast<size_t>(item)];
        if (!m_ahead[static_cast<size_t>(item)].read(m_context, *what.file, scratch, size, at)) {
            what.failed = true;
            what.isOut = true;
            return;
        }
        for (size_t known = 0; known < found.size(); ++known) {
            if (std::memcmp(buffer(known), scratch, static_cast<size_t>(size)) == 0) {
                found[known].push_back(item);
                return;
            }
        }
        if (found.size() + 1 < m_scratch.bytes().size() / kBlock)
            found.push_back({item});
        else
            later.push_back(item);
    }

    char *buffer(size_t number) const { return m_scratch.bytes().subspan(number * kBlock, kBlock).data(); }

    Class stillIn(const Class &one) const
    {
        Class left;
        std::ranges::copy_if(one, std::back_inserter(left),
                             [this](int item) { return !m_items[static_cast<size_t>(item)].isOut; });
        return left;
    }

    bool isWorthIt(const Class &one) const
    {
        return one.size() > 1 &&
               std::ranges::any_of(one, [this](int item) { return m_items[static_cast<size_t>(item)].isNew; });
    }

    void markOut(const Class &one)
    {
        for (const int item : one)
            m_items[static_cast<size_t>(item)].isOut = true;
    }

    Context &m_context;
    std::span<Item> m_items;
    std::vector<Ahead> m_ahead;
    const ScratchMemory::Block m_scratch; // room for some blocks, one after the other
};

/// The classes of items that share a class in both.
std::vector<Class> intersection(const std::vector<Class> &a, const std::vector<Class> &b, size_t items)
{
    std::vector<int> inB(items, -1);
    for (size_t at = 0; at < b.size(); ++at) {
        for (const int item : b[at])
            inB[static_cast<size_t>(item)] = static_cast<int>(at);
    }
    std::vector<Class> result;
    for (const Class &one : a) {
        std::map<int, Class> parts;
        for (const int item : one) {
            if (const int other = inB[static_cast<size_t>(item)]; other >= 0)
                parts[other].push_back(item);
        }
        for (auto &part : parts)
            result.push_back(std::move(part.second));
    }
    return result;
}

} // namespace

std::vector<std::vector<int>> BlockCompare::equalItems(Context &context, std::span<Item> items, qint64 size)
{
    Class all(items.size());
    for (size_t at = 0; at < items.size(); ++at)
        all[at] = static_cast<int>(at);
    std::vector<Class> classes{all};
    // Files that differ late mostly differ at the very end, so the last block comes first.
    const qint64 tail = (size - 1) / kBlock * kBlock;
    if (tail > 0)
        classes = RangeCompare(context, items).run(std::move(classes), tail, size);
    const qint64 end = tail > 0 ? tail : size;
    const auto ranges = static_cast<int>((end + kRange - 1) / kRange);
    std::vector<std::vector<Class>> found(static_cast<size_t>(ranges));
    if (!classes.empty()) {
        context.inParallel(ranges, [&](int range) {
            const qint64 from = range * kRange;
            found[static_cast<size_t>(range)] =
                RangeCompare(context, items).run(classes, from, std::min(end, from + kRange));
        });
    }
    for (const std::vector<Class> &one : found)
        classes = intersection(classes, one, items.size());
    if (context.isCancelled())
        return {};
    std::erase_if(classes, [](const Class &one) { return one.size() < 2; });
    std::ranges::sort(classes, {}, [](const Class &one) { return one.front(); });
    return classes;
}

std::optional<size_t> BlockCompare::roughHash(Context &context, const OpenFile &file, qint64 from, qint64 to)
{
    const ScratchMemory::Block scratch(context.scratch);
    char *block = scratch.bytes().data();
    size_t hash = context.seed;
    Ahead ahead;
    for (qint64 at = from; at < to; at += kBlock) {
        const qint64 size = std::min(kBlock, to - at);
        if (context.isCancelled() || !ahead.read(context, file, block, size, at))
            return std::nullopt;
        hash = qHashBits(block, static_cast<size_t>(size), hash);
    }
    return hash;
}
