// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Support/CancelToken.h"

#include <QList>

#include <expected>
#include <memory>
#include <system_error>

/// One run of removals. What is costly, such as open folders and a sync, is shared by all of its items; it ends when
/// the object goes. Used on one thread.
class TrashBatch
{
public:
    virtual ~TrashBatch() = default;
    /// Tells which items are about to be moved, in this order, so that what they need can be made ready beforehand. A
    /// promise that need not be kept.
    virtual void expect(const QList<FileURL> &items) { Q_UNUSED(items) }
    /// Moves one item, a folder with all its content, to the Trash and answers where it lies now. A link is moved as a
    /// link. On an error the item is still whole and in its place.
    [[nodiscard]] virtual std::expected<FileURL, std::error_code> moveToTrash(const FileURL &item) = 0;
    /// Removes one item for good, a folder with all its content, never through a link. An item of a Trash takes its
    /// record along. Stops between two entries, with `operation_canceled`, once `cancel` is cancelled.
    [[nodiscard]] virtual std::expected<void, std::error_code> removeForGood(const FileURL &item,
                                                                             const CancelToken &cancel) = 0;
};

/// The desktop's Trash. Any thread.
class TrashCan
{
public:
    virtual ~TrashCan() = default;
    [[nodiscard]] virtual std::unique_ptr<TrashBatch> begin() const = 0;
};
