// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Descriptor.h"
#include "Platform/FileSystem.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

/// Reads a tree of folders, several at a time. Folders are taken in the order in which a serial walk would reach them,
/// by the thread that owns the object and by helpers that are only started when there is enough to read. What has
/// been read waits until the owner asks for it, in that same order; how much may wait is bounded. FileSystem's own.
class FolderTree
{
public:
    enum class Purpose : quint8 { walk, measure };

    /// One entry of a folder that has been read.
    struct Record {
        static constexpr quint32 kNone = ~quint32{0};
        quint32 name = 0; // where it begins in the folder's names
        quint16 length = 0;
        FileSystem::Kind kind = FileSystem::Kind::other;
        bool isEntered = false;
        quint32 attributes = kNone; // its place in the folder's attributes
    };

    /// One folder, from when a thread takes it until the owner leaves it.
    struct Folder {
        Folder *parent = nullptr;
        quint32 name = 0; // where it begins in the parent's names
        quint16 length = 0;
        int depth = 0;
        FileURL url;         // left empty where it would be too long to keep for every level
        bool isRead = false; // from then on the next four stay as they are
        std::string names;   // each ended by a NUL byte
        std::vector<Record> records;
        std::vector<FileSystem::Attributes> attributes;
        std::vector<quint32> subfolders; // the records that are entered
        size_t delivered = 0;            // how many records the owner has dealt with

    private:
        friend class FolderTree;
        std::shared_ptr<const Descriptor> way;  // the parent, open; without it the way is taken from the root
        std::shared_ptr<const Descriptor> open; // this folder, for its subfolders' sake
        Folder *before = nullptr;               // in the list of folders with something left to take
        Folder *after = nullptr;
        Folder *firstTaken = nullptr; // subfolders taken and not yet asked for, in order
        Folder *lastTaken = nullptr;
        Folder *nextTaken = nullptr;
        bool isListed = false; // its names are read, though not all of their attributes
        size_t takenSubfolders = 0;
        size_t unfinished = 0; // subfolders taken and not yet given back
        size_t chunks = 0;     // the records are completed in so many parts
        size_t takenChunks = 0;
        size_t completedChunks = 0;
    };

    FolderTree(const FileURL &root, Descriptor opened, const FileSystem::WalkOptions &options, Purpose purpose,
               const CancelToken &cancel);
    ~FolderTree();
    Q_DISABLE_COPY_MOVE(FolderTree)

    /// The folder at the top, when it has been read.
    [[nodiscard]] Folder &root();
    /// The next subfolder of `folder` that is entered, when it has been read; null once the walk is cancelled.
    [[nodiscard]] Folder *next(Folder &folder);
    /// Gives back a folder with which the owner is done.
    void leave(Folder &folder);
    /// Where `folder` is.
    [[nodiscard]] FileURL urlOf(const Folder &folder) const;

    /// Reads the whole tree, for its sums.
    [[nodiscard]] FileSystem::Measure sum();
    /// What kept the folder at the top from being read, or 0.
    [[nodiscard]] int rootError() const { return m_rootError; }

private:
    /// What one thread works with.
    struct Desk {
        std::unique_ptr<char[]> block;
        FileSystem::Measure measure;
    };
    /// A folder to read, or a part of one to complete.
    struct Task {
        Folder *folder = nullptr;
        std::optional<size_t> chunk;
        std::shared_ptr<const Descriptor> closing; // closed with the task, out of the lock
    };
    enum class Ahead : bool { bounded, asNeeded };
    using Lock = std::unique_lock<std::mutex>;

    [[nodiscard]] Desk makeDesk() const;
    [[nodiscard]] std::optional<Task> take(Ahead ahead);
    [[nodiscard]] Task takeSubfolder(Folder &folder);
    void run(Task task, Desk &desk, Lock &lock);
    void doTask(const Task &task, Desk &desk);
    [[nodiscard]] std::shared_ptr<const Descriptor> completed(Folder &folder);
    void await(const Folder &folder, Lock &lock);
    void rouse();
    void startHelper();
    void help();
    void stop();

    void read(Folder &folder, Desk &desk);
    [[nodiscard]] int readEntries(Folder &folder, int descriptor, Desk &desk) const;
    void complete(Folder &folder, int descriptor, size_t from, size_t to, Desk &desk) const;
    [[nodiscard]] bool wantsAttributes(FileSystem::Kind kind) const;
    [[nodiscard]] Descriptor openFolder(const Folder &folder) const;
    [[nodiscard]] Descriptor openFromRoot(const Folder &folder) const;

    [[nodiscard]] Folder &makeFolder();
    void recycle(Folder &folder);
    void finish(Folder *folder);
    void unlink(Folder &folder);
    [[nodiscard]] static size_t costOf(const Folder &folder) { return folder.records.size() + 8; }

    const std::shared_ptr<const Descriptor> m_rootOpen;
    const FileSystem::WalkOptions &m_options;
    const Purpose m_purpose;
    const CancelToken m_cancel;

    Desk m_ownDesk;
    std::mutex m_mutex; // guards what follows, and of folders what is neither read by one thread nor handed over
    std::condition_variable m_work;   // for helpers
    std::condition_variable m_handed; // for the owner that waits for a folder, or for the end
    std::vector<std::thread> m_helpers;
    std::vector<std::unique_ptr<Folder>> m_folders;
    std::vector<Folder *> m_spare;
    Folder *m_root = nullptr;
    Folder *m_first = nullptr;
    size_t m_available = 0; // folders and chunks that can be taken
    size_t m_waiting = 0;   // the cost of what has been read and not yet left
    size_t m_open = 0;      // folders kept open
    size_t m_busy = 0;
    size_t m_idle = 0;
    size_t m_mostHelpers;
    bool m_stopped = false;
    bool m_ownerWaits = false;
    int m_rootError = 0;
    FileSystem::Measure m_sum; // of the helpers that have ended
};
