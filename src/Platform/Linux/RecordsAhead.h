// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Platform/Linux/TrashRecords.h"
#include "Platform/MountPoints.h"

#include <QByteArray>

#include <atomic>
#include <optional>
#include <thread>
#include <vector>

/// Writes the records of items that are about to be moved on a thread of its own, a few items ahead of the moves.
/// Making a file in one folder and moving one between two others then happen at the same time, which takes a file
/// system far less long than one after the other. Used on one thread.
class RecordsAhead
{
public:
    /// The items will be asked for in this order, but not all of them need be; those whose folder is on another device
    /// are left out. Where the system has no thread to spare, nothing is written.
    RecordsAhead(TrashRecords &records, const MountPoints::Identity &trash, std::vector<FileURL> items);
    /// Removes what was written and not asked for.
    ~RecordsAhead();
    RecordsAhead(const RecordsAhead &) = delete;
    RecordsAhead &operator=(const RecordsAhead &) = delete;

    /// The name that an item's record keeps, if there is one; the caller's from now on.
    [[nodiscard]] std::optional<QByteArray> take(const FileURL &item);

private:
    void write();
    [[nodiscard]] bool isOnDevice(const FileURL &folder);
    void moveOn(size_t to);

    TrashRecords &m_records;
    const MountPoints::Identity m_trash;
    const std::vector<FileURL> m_items;
    std::vector<QByteArray> m_names;   // of the records; empty where there is none; the writer's below m_written
    std::atomic<size_t> m_written = 0; // items that the writer is done with
    std::atomic<size_t> m_taken = 0;   // items that the moves are past
    std::atomic<bool> m_isOver = false;
    FileURL m_folder; // the writer's: the last one asked about, and the answer
    bool m_isFolderOnDevice = false;
    std::thread m_writer; // last: it uses the rest
};
