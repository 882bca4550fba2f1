// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Models/Removal.h"
#include "Support/CancelToken.h"

#include <QList>

struct Platform;

/// Whether an item that cannot be moved may be taken apart, its children moved one by one.
enum class Whole : bool { No, Yes };

/// The single place where files of the user are removed. Items are handled one after another in the given order; a
/// failure is collected and never stops the rest; what is guarded is refused with `operation_not_permitted`, whatever
/// list it came in. Stops between two items once cancelled. Any thread but the main one.
namespace TrashService {

struct Item {
    FileURL url;
    Whole whole = Whole::No; // Yes for application bundles, for nothing else
};

/// Moves items to the Trash. A folder that cannot be moved is taken apart: its children are moved, each failure being
/// recorded, then the folder is tried once more, without a record. A link is moved as a link, never taken apart.
[[nodiscard]] TrashResult trash(const Platform &platform, const QList<Item> &items, const CancelToken &cancel);
[[nodiscard]] TrashResult trash(const Platform &platform, const QList<FileURL> &items, const CancelToken &cancel);

/// Removes items for good, folders with all their content. One record per item that failed.
[[nodiscard]] TrashResult deletePermanently(const Platform &platform, const QList<FileURL> &items,
                                            const CancelToken &cancel);

} // namespace TrashService
