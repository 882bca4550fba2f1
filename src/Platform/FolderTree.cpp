// SPDX-License-Identifier: MIT
#include "Platform/FolderTree.h"

#include "Models/CheckedSum.h"
#include "Platform/FolderPrimitives.h"

#include <fcntl.h>

#include <algorithm>
#include <climits>
#include <system_error>

namespace {

using FileSystem::Attributes;
using FileSystem::Hidden;
using FileSystem::Kind;
using FileSystem::Measure;
using FileSystem::Want;
using FolderPrimitives::FolderStream;
using FolderPrimitives::RawEntry;

constexpr size_t kBlock = 64 * 1024;       // bytes read of a folder at a time
constexpr size_t kMaxHelpers = 11;         // beside the owner; on a cold disk more threads than processors pay
constexpr size_t kWorthAHelper = 8;        // folders to take before another thread is started
constexpr size_t kMostWaiting = 64 * 1024; // entries read ahead
constexpr size_t kRoomAgain = kMostWaiting / 2;
constexpr size_t kMostOpen = 64;         // folders kept open for their subfolders
constexpr size_t kChunk = 1024;          // entries completed at a time in a large folder
constexpr size_t kCancelStep = 256;      // entries between two looks at the token
constexpr qsizetype kLongestKept = 4096; // bytes of path kept for every level of a deep tree
constexpr size_t kLongestStep = PATH_MAX - 1;

void add(Measure &sum, const Attributes &attributes)
{
    sum.allocated = checkedSum(sum.allocated, attributes.allocated);
    if (attributes.kind == Kind::regular)
        sum.logical = checkedSum(sum.logical, attributes.size.value_or(0));
}

void add(Measure &sum, const Measure &part)
{
    sum.logical = checkedSum(sum.logical, part.logical);
    sum.allocated = checkedSum(sum.allocated, part.allocated);
    sum.entries += part.entries;
}

} // namespace

FolderTree::FolderTree(const FileURL &root, Descriptor opened, const FileSystem::WalkOptions &options, Purpose purpose,
                       const CancelToken &cancel)
    : m_rootOpen(std::make_shared<const Descriptor>(std::move(opened)))
    , m_options(options)
    , m_purpose(purpose)
    , m_cancel(cancel)
    , m_ownDesk(makeDesk())
    , m_mostHelpers(kMaxHelpers)
{
    m_root = &makeFolder();
    m_root->url = root;
    m_first = m_root;
    Lock lock(m_mutex);
    run({.folder = m_root, .chunk = {}, .closing = {}}, m_ownDesk, lock);
}

FolderTree::~FolderTree()
{
    stop();
}

FolderTree::Folder &FolderTree::root()
{
    Lock lock(m_mutex);
    await(*m_root, lock);
    return *m_root;
}

FolderTree::Folder *FolderTree::next(Folder &folder)
{
    Lock lock(m_mutex);
    if (!folder.firstTaken) {
        // Folders are taken in the order of the walk, and all before this one are done with: it is the next.
        auto task = take(Ahead::asNeeded);
        if (!task)
            return nullptr;
        Q_ASSERT(task->folder->parent == &folder);
        run(*std::move(task), m_ownDesk, lock);
    }
    Folder *next = folder.firstTaken;
    await(*next, lock);
    folder.firstTaken = next->nextTaken;
    if (!folder.firstTaken)
        folder.lastTaken = nullptr;
    return next;
}

void FolderTree::leave(Folder &folder)
{
    const std::lock_guard lock(m_mutex);
    const bool wasFull = m_waiting >= kRoomAgain;
    recycle(folder);
    // Helpers go on only when there is room for a good deal of reading.
    if (wasFull && m_waiting < kRoomAgain)
        rouse();
}

FileURL FolderTree::urlOf(const Folder &folder) const
{
    std::vector<const Folder *> way;
    qsizetype length = 0;
    const Folder *at = &folder;
    for (; at->url.isEmpty(); at = at->parent) {
        way.push_back(at);
        length += at->length + 1;
    }
    if (way.empty())
        return at->url;
    QByteArray path = at->url.path();
    path.reserve(path.size() + length);
    if (path.endsWith('/'))
        path.chop(1);
    for (auto step = way.rbegin(); step != way.rend(); ++step)
        path.append('/').append((*step)->parent->names.data() + (*step)->name, (*step)->length);
    return FileURL::fromCleanPath(std::move(path));
}

Measure FolderTree::sum()
{
    Lock lock(m_mutex);
    for (;;) {
        if (auto task = take(Ahead::asNeeded)) {
            run(*std::move(task), m_ownDesk, lock);
        } else if (m_busy == 0) {
            break;
        } else {
            m_ownerWaits = true;
            m_handed.wait(lock);
            m_ownerWaits = false;
        }
    }
    lock.unlock();
    stop();
    Measure all = m_sum;
    add(all, m_ownDesk.measure);
    return all;
}

FolderTree::Desk FolderTree::makeDesk() const
{
    return {.block = std::make_unique_for_overwrite<char[]>(kBlock), .measure = {}};
}

/// Waits until `folder` has been read.
void FolderTree::await(const Folder &folder, Lock &lock)
{
    while (!folder.isRead) {
        // Rather than wait for the thread that reads it, read what comes after it, or a part of it.
        if (auto task = take(Ahead::bounded)) {
            run(*std::move(task), m_ownDesk, lock);
            continue;
        }
        m_ownerWaits = true;
        m_handed.wait(lock);
        m_ownerWaits = false;
    }
}

/// Under the lock: the first task in the order of the walk.
std::optional<FolderTree::Task> FolderTree::take(Ahead ahead)
{
    if (m_available == 0)
        return std::nullopt;
    // At the front stand at most as many folders with nothing to take as threads read right now.
    for (Folder *folder = m_first; folder; folder = folder->after) {
        if (folder->takenChunks < folder->chunks && folder->isListed) {
            --m_available;
            return Task{.folder = folder, .chunk = folder->takenChunks++, .closing = {}};
        }
        if (!folder->isRead || folder->takenSubfolders == folder->subfolders.size())
            continue;
        if (m_cancel.isCancelled() || (ahead == Ahead::bounded && m_waiting >= kMostWaiting))
            continue; // chunks of what is listed are still taken, or nobody could wait for their folder
        --m_available;
        return takeSubfolder(*folder);
    }
    return std::nullopt;
}

/// Under the lock.
FolderTree::Task FolderTree::takeSubfolder(Folder &folder)
{
    Folder &taken = makeFolder();
    const Record &record = folder.records[folder.subfolders[folder.takenSubfolders++]];
    taken.parent = &folder;
    taken.name = record.name;
    taken.length = record.length;
    taken.depth = folder.depth + 1;
    taken.way = folder.open;
    if (m_purpose == Purpose::walk) {
        (folder.lastTaken ? folder.lastTaken->nextTaken : folder.firstTaken) = &taken;
        folder.lastTaken = &taken;
    } else {
        ++folder.unfinished;
    }

    // What will be found in it comes before the rest of this folder.
    taken.before = folder.before;
    taken.after = &folder;
    (taken.before ? taken.before->after : m_first) = &taken;
    folder.before = &taken;
    Task task{.folder = &taken, .chunk = {}, .closing = {}};
    if (folder.takenSubfolders == folder.subfolders.size()) {
        unlink(folder);
        if (folder.open)
            --m_open;
        task.closing = std::move(folder.open);
    }
    return task;
}

/// Does one task, with the lock released meanwhile.
void FolderTree::run(Task task, Desk &desk, Lock &lock)
{
    Folder &folder = *task.folder;
    ++m_busy;
    rouse();
    lock.unlock();
    doTask(task, desk);
    task.closing.reset();
    if (!task.chunk)
        folder.way.reset();
    lock.lock();
    --m_busy;
    if (task.chunk) {
        ++folder.completedChunks;
    } else {
        folder.isListed = true;
        m_available += folder.chunks;
    }
    if (folder.completedChunks == folder.chunks) {
        auto closing = completed(folder);
        rouse();
        if (closing) {
            lock.unlock();
            closing.reset();
            lock.lock();
        }
    } else {
        rouse();
    }
}

void FolderTree::doTask(const Task &task, Desk &desk)
{
    if (!task.chunk) {
        read(*task.folder, desk);
        return;
    }
    const size_t from = *task.chunk * kChunk;
    const size_t to = std::min(from + kChunk, task.folder->records.size());
    complete(*task.folder, task.folder->open->get(), from, to, desk);
}

/// Under the lock: the folder is read, and its subfolders can be taken. Answers what is now to be closed.
std::shared_ptr<const Descriptor> FolderTree::completed(Folder &folder)
{
    std::shared_ptr<const Descriptor> closing;
    folder.isRead = true;
    m_waiting += costOf(folder);
    m_available += folder.subfolders.size();
    if (folder.subfolders.empty())
        unlink(folder);
    if (folder.subfolders.empty() || m_open >= kMostOpen)
        closing = std::move(folder.open);
    if (folder.open)
        ++m_open;
    if (m_purpose == Purpose::measure)
        finish(&folder);
    return closing;
}

/// Under the lock: sees that whoever has something to do knows.
void FolderTree::rouse()
{
    if (m_ownerWaits)
        m_handed.notify_one();
    if (m_available < 2 || (m_purpose == Purpose::walk && m_waiting >= kRoomAgain) || m_cancel.isCancelled())
        return;
    if (m_idle > 0)
        m_work.notify_one();
    else if (m_available >= kWorthAHelper && m_helpers.size() < m_mostHelpers)
        startHelper();
}

/// Under the lock.
void FolderTree::startHelper()
{
    try {
        m_helpers.emplace_back([this] { help(); });
    } catch (const std::system_error &) {
        m_mostHelpers = m_helpers.size(); // the system has no more threads for us: those there are do it all
    }
}

void FolderTree::help()
{
    Desk desk = makeDesk();
    Lock lock(m_mutex);
    while (!m_stopped) {
        if (auto task = take(m_purpose == Purpose::walk ? Ahead::bounded : Ahead::asNeeded)) {
            run(*std::move(task), desk, lock);
        } else {
            ++m_idle;
            m_work.wait(lock);
            --m_idle;
        }
    }
    add(m_sum, desk.measure);
}

void FolderTree::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        m_work.notify_all();
    }
    for (std::thread &helper : m_helpers)
        helper.join();
    m_helpers.clear();
}

void FolderTree::read(Folder &folder, Desk &desk)
{
    if (m_cancel.isCancelled())
        return;
    if (m_purpose == Purpose::walk && folder.parent && !folder.parent->url.isEmpty()) {
        const Folder &parent = *folder.parent;
        FileURL url = parent.url.child({parent.names.data() + folder.name, folder.length});
        if (url.path().size() <= kLongestKept)
            folder.url = std::move(url);
    }
    auto open = folder.parent ? std::make_shared<const Descriptor>(openFolder(folder)) : m_rootOpen;
    if (!open->isOpen())
        return;
    const int error = readEntries(folder, open->get(), desk);
    if (!folder.parent)
        m_rootError = error;
    const size_t count = folder.records.size();
    if (count > 2 * kChunk && m_options.want != Want::kinds)
        folder.chunks = (count + kChunk - 1) / kChunk;
    else
        complete(folder, open->get(), 0, count, desk);
    if (folder.chunks > 0 || !folder.subfolders.empty())
        folder.open = std::move(open);
}

/// The names and kinds of what counts; answers what kept the rest from being read, or 0.
int FolderTree::readEntries(Folder &folder, int descriptor, Desk &desk) const
{
    // The URL of a folder too deep to keep it lives for the time of the reading.
    const FileURL url = m_options.takes ? urlOf(folder) : FileURL();
    const bool entersFolders = folder.depth + 1 < m_options.levels;
    quint32 attributes = 0;
    FolderStream stream(descriptor, {desk.block.get(), kBlock});
    RawEntry raw;
    for (size_t count = 1; stream.next(raw); ++count) {
        if (count % kCancelStep == 0 && m_cancel.isCancelled())
            break;
        if (m_options.hidden == Hidden::skip && raw.name[0] == '.')
            continue;
        if (!raw.kind) {
            const auto asked = FolderPrimitives::attributesAt(descriptor, raw.name, false);
            if (!asked)
                continue;
            raw.kind = asked->kind;
        }
        if (m_options.takes && !m_options.takes(url, {raw.name, static_cast<qsizetype>(raw.length)}, *raw.kind))
            continue;
        Record record{.name = static_cast<quint32>(folder.names.size()),
                      .length = static_cast<quint16>(raw.length),
                      .kind = *raw.kind,
                      .isEntered = *raw.kind == Kind::folder && entersFolders};
        if (wantsAttributes(*raw.kind))
            record.attributes = attributes++;
        if (record.isEntered)
            folder.subfolders.push_back(static_cast<quint32>(folder.records.size()));
        folder.names.append(raw.name, raw.length + 1);
        folder.records.push_back(record);
    }
    desk.measure.entries += static_cast<qint64>(folder.records.size());
    if (m_purpose == Purpose::walk)
        folder.attributes.resize(attributes);
    return stream.error();
}

bool FolderTree::wantsAttributes(Kind kind) const
{
    if (m_purpose == Purpose::measure)
        return kind != Kind::folder;
    return m_options.want == Want::everything || (m_options.want == Want::files && kind == Kind::regular);
}

/// Asks for the attributes of some entries of a folder.
void FolderTree::complete(Folder &folder, int descriptor, size_t from, size_t to, Desk &desk) const
{
    for (size_t i = from; i < to; ++i) {
        Record &record = folder.records[i];
        if (record.attributes == Record::kNone)
            continue;
        const bool goesOn = i % kCancelStep != 0 || !m_cancel.isCancelled();
        if (!goesOn)
            return;
        const auto found = FolderPrimitives::attributesAt(descriptor, folder.names.data() + record.name, false);
        if (!found) {
            record.attributes = Record::kNone;
        } else if (m_purpose == Purpose::measure) {
            add(desk.measure, *found);
        } else {
            record.kind = found->kind;
            folder.attributes[record.attributes] = *found;
        }
    }
}

Descriptor FolderTree::openFolder(const Folder &folder) const
{
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW;
    if (!folder.way)
        return openFromRoot(folder);
    return Descriptor(
        FolderPrimitives::openQuietly(folder.way->get(), folder.parent->names.data() + folder.name, flags));
}

/// Opens a folder for which no nearer one was kept open, through as few calls as path lengths allow and no link.
Descriptor FolderTree::openFromRoot(const Folder &folder) const
{
    std::vector<const Folder *> way;
    for (const Folder *at = &folder; at->parent; at = at->parent)
        way.push_back(at);
    Descriptor reached;
    std::string path;
    while (!way.empty()) {
        path.clear();
        while (!way.empty() && path.size() + way.back()->length + 1 < kLongestStep) {
            if (!path.empty())
                path += '/';
            path.append(way.back()->parent->names, way.back()->name, way.back()->length);
            way.pop_back();
        }
        const int flags = way.empty() ? O_RDONLY | O_DIRECTORY : FolderPrimitives::passThroughFlags();
        Descriptor next(FolderPrimitives::openWithoutLinks(reached.isOpen() ? reached.get() : m_rootOpen->get(),
                                                           path.c_str(), flags));
        if (!next.isOpen())
            return next;
        reached = std::move(next);
    }
    return reached;
}

/// Under the lock, as the rest.
FolderTree::Folder &FolderTree::makeFolder()
{
    if (m_spare.empty())
        return *m_folders.emplace_back(std::make_unique<Folder>());
    Folder &spare = *m_spare.back();
    m_spare.pop_back();
    return spare;
}

void FolderTree::recycle(Folder &folder)
{
    m_waiting -= costOf(folder);
    // What it needed for its entries serves the next one, unless it was unusually large.
    Folder fresh;
    if (folder.records.capacity() <= kChunk) {
        folder.names.clear();
        folder.records.clear();
        folder.attributes.clear();
        folder.subfolders.clear();
        fresh.names.swap(folder.names);
        fresh.records.swap(folder.records);
        fresh.attributes.swap(folder.attributes);
        fresh.subfolders.swap(folder.subfolders);
    }
    folder = std::move(fresh);
    m_spare.push_back(&folder);
}

/// Recycles a folder that is summed, and those above it that only waited for it.
void FolderTree::finish(Folder *folder)
{
    while (folder && folder->isRead && folder->unfinished == 0 &&
           folder->takenSubfolders == folder->subfolders.size()) {
        Folder *parent = folder->parent;
        recycle(*folder);
        if (parent)
            --parent->unfinished;
        folder = parent;
    }
}

void FolderTree::unlink(Folder &folder)
{
    (folder.before ? folder.before->after : m_first) = folder.after;
    if (folder.after)
        folder.after->before = folder.before;
    folder.before = nullptr;
    folder.after = nullptr;
}
