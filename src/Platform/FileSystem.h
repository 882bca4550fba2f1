// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Support/CancelToken.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QList>

#include <expected>
#include <functional>
#include <limits>
#include <optional>
#include <system_error>

/// The only code that reads folders. Plain functions over directory descriptors: nothing here follows a link (but for
/// a root, where asked), opens a pipe, socket or device, or changes an access time where the system lets it. Names are
/// bytes. Every function may be called on any thread.
namespace FileSystem {

enum class Kind : quint8 { regular, folder, link, other };

/// Hidden entries are those whose name begins with a dot.
enum class Hidden : bool { skip, include };

/// How much is asked of the system for each entry.
enum class Want : quint8 {
    kinds,     // the kind alone, which the folder itself mostly tells
    files,     // the attributes of regular files, and the kind of the rest
    everything // the attributes of every entry
};

enum class Root : bool { doNotFollow, follow };

struct Attributes {
    Kind kind = Kind::other;
    std::optional<qint64> size; // logical bytes; absent when unknown or beyond what a disk can hold
    qint64 allocated = 0;       // bytes on disk
    qint64 modified = 0;        // nanoseconds since 1970-01-01 UTC
    qint64 accessed = 0;        // likewise
    quint64 device = 0;
    quint64 inode = 0;
    quint64 links = 1;
    quint32 owner = 0;
    quint32 permissions = 0; // the mode bits below 010000
};

struct Entry {
    QByteArray name;
    Kind kind = Kind::other;
    std::optional<Attributes> attributes; // absent when not asked for, or not to be had
};

/// One entry as a walk shows it; what it points to lasts for the call alone.
struct EntryView {
    QByteArrayView name;
    Kind kind = Kind::other;
    const Attributes *attributes = nullptr; // null when not asked for, or not to be had
};

/// The moment as people's records carry it: UTC, in milliseconds.
[[nodiscard]] QDateTime dateTime(qint64 nanoseconds);

/// The attributes of one item. A link is answered as a link unless `root` says to follow it.
[[nodiscard]] std::expected<Attributes, std::error_code> attributes(const FileURL &item, Root root = Root::doNotFollow);

/// Whether there is such an item; a link is one, wherever it leads.
[[nodiscard]] bool exists(const FileURL &item);

/// The item with every link on the way resolved; the item itself where that cannot be done.
[[nodiscard]] FileURL resolved(const FileURL &item);

/// The direct children of a folder, in the folder's own order.
[[nodiscard]] std::expected<QList<Entry>, std::error_code> list(const FileURL &folder, Hidden hidden, Want want,
                                                                Root root = Root::follow);

/// The first bytes of a regular file, `limit` at most; an error for whatever is no readable regular file, links
/// included.
[[nodiscard]] std::expected<QByteArray, std::error_code> read(const FileURL &file, qint64 limit);

struct WalkOptions {
    Hidden hidden = Hidden::skip;
    Want want = Want::files;
    int levels = std::numeric_limits<int>::max(); // how many levels of folders are listed; 1 lists the root alone
    Root root = Root::follow;
    /// Whether an entry counts at all; one that does not is neither reported nor entered, nor are its attributes
    /// asked for. Called on several threads at once; absent: every entry counts.
    std::function<bool(const FileURL &folder, QByteArrayView name, Kind kind)> takes = {};
};

/// What a walk reports, on the thread that called it, in the order of a serial walk from the top: a folder, then its
/// entries in the folder's order, each folder among them at once followed by what lies below it.
class Visitor
{
public:
    virtual ~Visitor() = default;
    /// A folder is about to be listed; `depth` is 0 for the root. Called for folders that cannot be read as well.
    virtual void folder(const FileURL &folder, int depth)
    {
        Q_UNUSED(folder)
        Q_UNUSED(depth)
    }
    /// One entry of `folder`, folders included.
    virtual void entry(const FileURL &folder, const EntryView &entry) = 0;
};

/// Walks the tree below `root`, several folders at a time. What cannot be read contributes nothing. Ends early, with
/// part of the tree reported, once `cancel` is cancelled.
void walk(const FileURL &root, const WalkOptions &options, Visitor &visitor, const CancelToken &cancel);

/// What lies below a folder, not counting the folder itself.
struct Measure {
    qint64 logical = 0;   // the sum of the lengths of regular files
    qint64 allocated = 0; // the sum of the bytes on disk of all that is no folder, each hard link counted
    qint64 entries = 0;   // how many entries of any kind were seen
};

/// Measures the tree below a folder, several folders at a time; an error only when the folder itself cannot be listed,
/// or is a link that is not to be followed.
[[nodiscard]] std::expected<Measure, std::error_code> measure(const FileURL &folder, Hidden hidden,
                                                              const CancelToken &cancel, Root root = Root::doNotFollow);

/// What lies below a path too long for the system is reached step by step; this opens such an item. `flags` are
/// open(2)'s; O_CLOEXEC and O_NOFOLLOW are added, and what is opened for reading keeps its access time where the system
/// allows it. The caller closes the descriptor.
[[nodiscard]] std::expected<int, std::error_code> openItem(const FileURL &item, int flags);

} // namespace FileSystem
