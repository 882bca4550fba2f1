// SPDX-License-Identifier: MIT
#include "State/Selections.h"

#include <algorithm>

namespace {

bool keepsNoCopy(const DuplicateGroup &group, const QSet<FileURL> &selected)
{
    return !group.files.isEmpty() && std::ranges::all_of(group.files, [&selected](const DuplicateFile &file) {
        return selected.contains(file.url);
    });
}

} // namespace

bool Selections::maySelect(const DuplicateGroup &group, const QSet<FileURL> &selected, const FileURL &file)
{
    return std::ranges::any_of(
        group.files, [&](const DuplicateFile &other) { return other.url != file && !selected.contains(other.url); });
}

QSet<FileURL> Selections::allButFirst(const QList<DuplicateGroup> &groups)
{
    QSet<FileURL> rest;
    for (const DuplicateGroup &group : groups) {
        for (qsizetype i = 1; i < group.files.size(); ++i)
            rest.insert(group.files.at(i).url);
    }
    return rest;
}

const DuplicateGroup *Selections::groupWithoutACopyLeft(const QList<DuplicateGroup> &groups,
                                                        const QSet<FileURL> &selected)
{
    const auto found =
        std::ranges::find_if(groups, [&selected](const DuplicateGroup &group) { return keepsNoCopy(group, selected); });
    return found == groups.cend() ? nullptr : &*found;
}

QSet<FileURL> Selections::keepingACopy(const QList<DuplicateGroup> &groups, const QSet<FileURL> &selected)
{
    QSet<FileURL> kept = selected;
    for (const DuplicateGroup &group : groups) {
        if (keepsNoCopy(group, selected))
            kept.remove(group.files.first().url);
    }
    return kept;
}

QList<DuplicateFile> Selections::selectedFiles(const QList<DuplicateGroup> &groups, const QSet<FileURL> &selected)
{
    QList<DuplicateFile> files;
    for (const DuplicateGroup &group : groups) {
        std::ranges::copy_if(group.files, std::back_inserter(files),
                             [&selected](const DuplicateFile &file) { return selected.contains(file.url); });
    }
    return files;
}
