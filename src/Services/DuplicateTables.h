// SPDX-License-Identifier: MIT
#pragma once

#include "Services/CompareContext.h"

#include <map>
#include <memory>
#include <mutex>
#include <span>
#include <unordered_map>
#include <vector>

namespace DuplicateCompare {

/// What a reader found out about one unit.
struct Beginning {
    quint32 unit = 0;
    OpenFile file; // small files are closed again by the time they are sorted
    FileReading::Stamp stamp;
    const char *bytes = nullptr; // the first bytes of the file, in the reader's own memory
    size_t hash = 0;             // of those bytes
};

using Work = WorkQueue::Work;

/// Sorts the files of one size that are read as a whole: each is compared with those of its hash at once. The slices
/// of one size may be added by several readers at a time.
class SmallFiles : public std::enable_shared_from_this<SmallFiles>
{
public:
    SmallFiles(Context &context, qint64 size, int slices);
    /// Adds a slice. With the last one, answers the work that is left: hashing what is equal.
    [[nodiscard]] std::vector<Work> add(std::span<Beginning> slice);

private:
    struct Copies {
        std::vector<Member> members;
        const char *bytes = nullptr; // their content; null when it would take too much memory to keep
        std::shared_ptr<const char[]> own;
        std::shared_ptr<Budget::Share> room;
    };
    void place(const Beginning &file);
    [[nodiscard]] bool hasBytes(Copies &copies, const char *bytes);
    void keepIfRoom(Copies &copies, const char *bytes) const;
    void keep(Copies &copies, const char *bytes, Budget::Share room) const;
    [[nodiscard]] bool readAgain(std::vector<Member> &members, char *into) const;
    [[nodiscard]] std::vector<Work> finish();
    void hash(Copies copies) const;

    Context &m_context;
    const qint64 m_size;
    const bool m_isWhole; // one slice holds all files of this size
    std::mutex m_mutex;   // guards what follows
    int m_slices;         // still to come
    std::unordered_map<size_t, std::vector<Copies>> m_copies;
};

/// Sorts the files of one size that are longer than what a reader reads: files whose beginnings are alike are compared
/// block by block on the workers, each opened once as long as descriptors last.
class LargeFiles : public std::enable_shared_from_this<LargeFiles>
{
public:
    LargeFiles(Context &context, qint64 size, int slices);
    /// Adds a slice and answers the work that it gives rise to.
    [[nodiscard]] std::vector<Work> add(std::span<Beginning> slice);

private:
    struct Copies {
        std::vector<Member> members;
        OpenFile file;         // the first member, while it is open
        bool isParked = false; // `file` stays open between two slices
    };
    struct Arrival {
        quint32 unit = 0;
        OpenFile file;
    };
    /// Different contents that are alike up to `known`. Too many of them are sorted further by a hash of what follows,
    /// so that a file is never compared with more than a few.
    struct Node {
        qint64 known = 0;
        qint64 childrenKnow = 0; // when there are any
        std::vector<Copies> copies;
        std::map<size_t, std::unique_ptr<Node>> children;
    };
    /// Files with like beginnings. One thread at a time works on the node.
    struct Alike {
        Node node;
        std::vector<Arrival> arrivals; // guarded by m_mutex, as are the flags
        bool isStarted = false;
        bool isBusy = false;
    };

    void place(Beginning &file);
    void dropIdle();
    void compareArrivals(Alike &alike);
    void insert(Node &node, std::vector<Arrival> arrivals);
    void compare(Node &node, std::vector<Arrival> arrivals);
    [[nodiscard]] bool join(Node &node, std::vector<Arrival> &arrivals, size_t known,
                            const std::vector<std::vector<int>> &equal);
    void settleAlone(Node &node, Arrival arrival);
    void splitIfCrowded(Node &node);
    [[nodiscard]] bool openFirst(Copies &copies);
    void dropFirst(Copies &copies);
    void park(Copies &copies);
    void leave();
    static void collect(Node &node, std::vector<Copies> &result);
    void finish();
    void hash(Copies &copies);

    Context &m_context;
    const qint64 m_size;
    const bool m_isWhole;
    std::mutex m_mutex; // guards what follows
    int m_slices;       // still to come
    int m_outstanding;  // slices and comparisons under way
    std::unordered_map<size_t, Alike> m_alike;
};

} // namespace DuplicateCompare
