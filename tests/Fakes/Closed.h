// SPDX-License-Identifier: MIT
#pragma once

#include "Fakes/ScratchTree.h"

/// While it lives, an item has fewer permissions, and the scratch folder around it can be entered by an ordinary user.
/// The item is opened again at the end, so that the scratch folder can be removed whoever runs the tests.
class Closed
{
public:
    Closed(const ScratchTree &tree, const FileURL &item, mode_t mode = 0)
        : m_item(item)
    {
        if (::chmod(tree.root().path().constData(), 0755) != 0 || ::chmod(item.path().constData(), mode) != 0)
            throw std::runtime_error("a scratch item could not be closed");
    }
    ~Closed() { ::chmod(m_item.path().constData(), 0755); }
    Closed(const Closed &) = delete;
    Closed &operator=(const Closed &) = delete;

private:
    FileURL m_item;
};
