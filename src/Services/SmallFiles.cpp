// SPDX-License-Identifier: MIT
#include "Services/DuplicateTables.h"

#include <algorithm>
#include <cstring>

namespace DuplicateCompare {

SmallFiles::SmallFiles(Context &context, qint64 size, int slices)
    : m_context(context)
    , m_size(size)
    , m_isWhole(slices == 1)
    , m_slices(slices)
{
}

std::vector<Work> SmallFiles::add(std::span<Beginning> slice)
{
    const std::lock_guard lock(m_mutex);
    for (const Beginning &file : slice)
        place(file);
    return --m_slices == 0 ? finish() : std::vector<Work>{};
}

void SmallFiles::place(const Beginning &file)
{
    const Member member{.unit = file.unit, .stamp = file.stamp};
    std::vector<Copies> &alike = m_copies[file.hash];
    for (Copies &copies : alike) {
        if (hasBytes(copies, file.bytes)) {
            copies.members.push_back(member);
            return;
        }
    }
    Copies &made = alike.emplace_back();
    made.members.push_back(member);
    if (m_isWhole)
        made.bytes = file.bytes;
    else
        keepIfRoom(made, file.bytes);
}

bool SmallFiles::hasBytes(Copies &copies, const char *bytes)
{
    if (copies.bytes)
        return std::memcmp(copies.bytes, bytes, static_cast<size_t>(m_size)) == 0;
    const auto content = std::make_unique_for_overwrite<char[]>(static_cast<size_t>(m_size));
    if (!readAgain(copies.members, content.get()))
        return false;
    keepIfRoom(copies, content.get()); // there may be more of them
    return std::memcmp(content.get(), bytes, static_cast<size_t>(m_size)) == 0;
}

void SmallFiles::keepIfRoom(Copies &copies, const char *bytes) const
{
    if (auto room = m_context.stored.tryTake(m_size); !room.isEmpty())
        keep(copies, bytes, std::move(room));
}

/// Makes a copy of the content that is the set's own.
void SmallFiles::keep(Copies &copies, const char *bytes, Budget::Share room) const
{
    copies.room = std::make_shared<Budget::Share>(std::move(room));
    const std::shared_ptr<char[]> own(new char[static_cast<size_t>(m_size)]);
    std::memcpy(own.get(), bytes, static_cast<size_t>(m_size));
    copies.own = own;
    copies.bytes = own.get();
}

/// Reads the content of the first member that is still what it was; those before it are dropped.
bool SmallFiles::readAgain(std::vector<Member> &members, char *into) const
{
    while (!members.empty() && !m_context.isCancelled()) {
        const auto file = m_context.reopen(members.front());
        if (file && m_context.read(*file, into, m_size, 0) && file->isUnchanged())
            return true;
        m_context.drop(members.front().unit);
        members.erase(members.begin());
    }
    return false;
}

std::vector<Work> SmallFiles::finish()
{
    std::vector<Copies> sets;
    for (auto &[hash, alike] : m_copies) {
        for (Copies &copies : alike) {
            if (m_context.namesOf(copies.members) < 2) {
                for (const Member &member : copies.members)
                    m_context.drop(member.unit);
                continue;
            }
            if (copies.bytes && !copies.own) // still in the reader's memory
                keep(copies, copies.bytes, m_context.contents.take(m_size));
            sets.push_back(std::move(copies));
        }
    }
    m_copies.clear();
    std::vector<Work> work;
    constexpr size_t together = 64;
    for (size_t from = 0; from < sets.size(); from += together) {
        const size_t to = std::min(from + together, sets.size());
        std::vector<Copies> some(std::make_move_iterator(sets.begin() + static_cast<std::ptrdiff_t>(from)),
                                 std::make_move_iterator(sets.begin() + static_cast<std::ptrdiff_t>(to)));
        work.emplace_back([self = shared_from_this(), some = std::move(some)] {
            for (const Copies &copies : some)
                self->hash(copies);
        });
    }
    return work;
}

void SmallFiles::hash(Copies copies) const
{
    if (m_context.isCancelled())
        return;
    if (copies.bytes) {
        m_context.publish(copies.members, m_context.digestOf({copies.bytes, m_size}));
        return;
    }
    const auto content = std::make_unique_for_overwrite<char[]>(static_cast<size_t>(m_size));
    if (readAgain(copies.members, content.get()))
        m_context.publish(copies.members, m_context.digestOf({content.get(), m_size}));
}

} // namespace DuplicateCompare
