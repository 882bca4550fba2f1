// SPDX-License-Identifier: MIT
#pragma once

#include "Models/ActivityRecord.h"
#include "Models/FileURL.h"
#include "Models/Notices.h"

#include <QList>

#include <optional>
#include <system_error>

/// An item that could not be removed, with the system's error. Of a folder taken apart, the child that stayed.
struct FailedTrash {
    FileURL url;
    std::error_code error;
    friend bool operator==(const FailedTrash &, const FailedTrash &) = default;
};

/// What a removal of the trash service did. An item that was not reached because the removal was stopped is in none
/// of the lists.
struct TrashResult {
    QList<FileURL> removed; // items gone from their place; of a folder that stayed, the children that went
    QList<FailedTrash> failed;
    QList<FileURL> notReached; // the items left when the removal was stopped
    friend bool operator==(const TrashResult &, const TrashResult &) = default;
};

struct RemovedItem {
    FileURL url;
    std::optional<qint64> size; // bytes, as the list that named the item gave them; absent for a child of such an item
    friend bool operator==(const RemovedItem &, const RemovedItem &) = default;
};

/// What one removal of the state did and what it told the user: the answer of every operation that removes.
struct RemovalReport {
    QList<RemovedItem> removed;
    QList<FailedTrash> failed;
    qint64 bytes = 0;     // the figure that was reported as freed; 0 when nothing went
    bool stopped = false; // ended early by `stopScans`
    std::optional<ToastData> toast;
    std::optional<AlertData> alert;
    std::optional<ActivityRecord> activity;
    friend bool operator==(const RemovalReport &, const RemovalReport &) = default;
};
