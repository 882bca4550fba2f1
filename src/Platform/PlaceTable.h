// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Places.h"

#include <QHash>

#include <span>

/// What a row of a place table starts from. A desktop fills in those that it has.
enum class PlaceBase {
    root,
    home,
    accountHome, // the account's, whatever HOME says
    library,
    temporary,
    userDownloads, // the download folder that the user chose
    configHome,
    dataHome,
};

/// One folder of a place: a path below a base (the base itself when empty).
struct PlaceRow {
    Place place;
    PlaceBase base;
    const char *below;
};

/// Where things are kept, as data. Any thread.
namespace PlaceTable {

using Bases = QHash<PlaceBase, FileURL>;

/// The documented folders, which hold on every system.
[[nodiscard]] std::span<const PlaceRow> documented();

/// The folders that `rows` name for `place`, in order. A row whose base is not among `bases` names none.
[[nodiscard]] QList<FileURL> folders(std::span<const PlaceRow> rows, Place place, const Bases &bases);

/// The list without every folder that is the same as an earlier one, by path or by device and inode.
[[nodiscard]] QList<FileURL> eachOnce(const QList<FileURL> &folders);

/// A folder and all that hold it, up to the root; by its path and by where its links lead.
[[nodiscard]] QList<FileURL> withAncestors(const FileURL &folder);

/// What no removal may take on any system: the root, both homes and what holds them, the documented Trash, Library
/// and its direct children.
[[nodiscard]] QList<FileURL> documentedGuards(const Places &places);

} // namespace PlaceTable
