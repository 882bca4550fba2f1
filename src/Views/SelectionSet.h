// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>

/// What the user has ticked on a page, by identity. It may name things that are gone: they match nothing.
template <typename Key>
class SelectionSet
{
public:
    [[nodiscard]] bool contains(const Key &key) const { return m_keys.contains(key); }
    [[nodiscard]] bool isEmpty() const { return m_keys.isEmpty(); }
    [[nodiscard]] const QSet<Key> &keys() const { return m_keys; }

    void toggle(const Key &key)
    {
        if (!m_keys.remove(key))
            m_keys.insert(key);
    }
    void set(const Key &key, bool selected)
    {
        if (selected)
            m_keys.insert(key);
        else
            m_keys.remove(key);
    }
    void clear() { m_keys.clear(); }
    /// Drops what `isThere(key)` denies.
    template <typename IsThere>
    void keep(IsThere isThere)
    {
        m_keys.removeIf([&isThere](const Key &key) { return !isThere(key); });
    }

private:
    QSet<Key> m_keys;
};
