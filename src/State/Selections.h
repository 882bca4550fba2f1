// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Duplicates.h"
#include "Models/FileURL.h"

#include <QList>
#include <QSet>

/// Which copies of a duplicate may go: pure rules that the page and the command line share. Any thread.
namespace Selections {

/// Whether `file` may be added to the selection: not when it is the last unselected copy of its group.
[[nodiscard]] bool maySelect(const DuplicateGroup &group, const QSet<FileURL> &selected, const FileURL &file);
/// Every file but the first of each group.
[[nodiscard]] QSet<FileURL> allButFirst(const QList<DuplicateGroup> &groups);
/// The first group of which every copy is selected; null when each keeps one.
[[nodiscard]] const DuplicateGroup *groupWithoutACopyLeft(const QList<DuplicateGroup> &groups,
                                                          const QSet<FileURL> &selected);
/// `selected` without the first file of each group of which every copy is selected: what may go while each keeps one.
[[nodiscard]] QSet<FileURL> keepingACopy(const QList<DuplicateGroup> &groups, const QSet<FileURL> &selected);
/// The selected files, in group order and file order.
[[nodiscard]] QList<DuplicateFile> selectedFiles(const QList<DuplicateGroup> &groups, const QSet<FileURL> &selected);

} // namespace Selections
