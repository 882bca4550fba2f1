// SPDX-License-Identifier: MIT
#pragma once

#include "Fakes/ScratchTree.h"

#include <QByteArray>
#include <QList>

#include <iterator>
#include <random>

/// A tree of folders, files, links, pipes and odd names that a seed decides.
class RandomTree
{
public:
    explicit RandomTree(unsigned seed, int items = 300)
        : m_random(seed)
    {
        QList<QByteArray> folders{{}};
        for (int i = 0; i < items; ++i) {
            const QByteArray folder = folders.at(below(static_cast<int>(folders.size())));
            QByteArray item = (folder.isEmpty() ? QByteArray() : folder + '/') + name(i);
            if (ScratchTree::exists(m_tree.at(item)))
                item += QByteArray::number(i);
            switch (below(10)) {
            case 0:
            case 1:
                m_tree.folder(item);
                folders.append(item);
                break;
            case 2:
                m_tree.link(item, below(2) == 0 ? QByteArray("..") : m_tree.root().path());
                break;
            case 3:
                if (::mkfifo(m_tree.at(item).path().constData(), 0600) != 0)
                    throw std::runtime_error("a scratch pipe could not be made");
                break;
            case 4:
                m_tree.sparseFile(item, qint64{1} << below(34));
                break;
            default:
                m_tree.file(item, QByteArray(below(9000), 'x'));
            }
        }
    }

    [[nodiscard]] const ScratchTree &tree() const { return m_tree; }
    [[nodiscard]] const FileURL &root() const { return m_tree.root(); }
    /// A number from 0 up to, not including, `limit`.
    [[nodiscard]] int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

private:
    QByteArray name(int number)
    {
        static constexpr const char *kinds[] = {"file%1",        ".hidden%1", "Library",    "Tool%1.app",
                                                "with space %1", "line\n%1",  "\xff\xfe%1", ".Trash",
                                                "\xc3\xa4%1",    "'\"\\$*%1", "-rf %1",     "Pictures%1.photoslibrary"};
        return QByteArray(kinds[below(std::size(kinds))]).replace("%1", QByteArray::number(number));
    }

    std::mt19937 m_random;
    ScratchTree m_tree;
};
