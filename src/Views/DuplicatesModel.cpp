// SPDX-License-Identifier: MIT
#include "Views/DuplicatesModel.h"

#include "State/Selections.h"
#include "Support/Text.h"
#include "Theme/Format.h"
#include "Views/ItemId.h"

DuplicatesModel::DuplicatesModel(const SelectionSet<FileURL> &selection, QObject *parent)
    : RecordListModel(parent)
    , m_selection(selection)
{
}

void DuplicatesModel::setGroups(const QList<DuplicateGroup> &groups)
{
    m_groups = groups;
    m_groupAt.clear();
    m_groupAt.reserve(groups.size());
    for (qsizetype at = 0; at < groups.size(); ++at)
        m_groupAt.insert(groups.at(at).id, at);

    QList<DuplicateRow> rows;
    for (const DuplicateGroup &group : groups) {
        rows.append(headOf(group));
        if (!rows.constLast().collapsed)
            rows.append(filesOf(group));
    }
    setRecords(std::move(rows));
}

void DuplicatesModel::toggleCollapsed(const QString &groupId)
{
    const bool collapsed = !m_collapsed.remove(groupId);
    if (collapsed)
        m_collapsed.insert(groupId);
    const DuplicateGroup &toggled = group(groupId);
    const DuplicateRow head = headOf(toggled);
    const int row = rowOf(DuplicatesModelDetail::keyOf(head));
    replaceRecord(row, head);
    if (collapsed)
        removeRecords(row + 1, static_cast<int>(toggled.files.size()));
    else
        insertRecords(row + 1, filesOf(toggled));
}

void DuplicatesModel::touchGroup(const QString &groupId)
{
    // Whether a file may be ticked depends on its neighbours.
    for (const DuplicateFile &file : group(groupId).files)
        touch(file.url.path(), {SelectedRole, SelectableRole});
}

const DuplicateRow *DuplicatesModel::rowOfFile(const FileURL &file) const
{
    const int row = rowOf(file.path());
    return row < 0 ? nullptr : &records().at(row);
}

DuplicateRow DuplicatesModel::headOf(const DuplicateGroup &group) const
{
    const bool collapsed = m_collapsed.contains(group.id);
    return {.groupId = group.id,
            .isHead = true,
            .file = group.files.value(0),
            .isLast = collapsed || group.files.isEmpty(),
            .collapsed = collapsed,
            .copies = group.files.size(),
            .reclaimable = group.reclaimable()};
}

QList<DuplicateRow> DuplicatesModel::filesOf(const DuplicateGroup &group)
{
    QList<DuplicateRow> rows;
    for (qsizetype at = 0; at < group.files.size(); ++at) {
        rows.append({.groupId = group.id,
                     .file = group.files.at(at),
                     .isFirst = at == 0,
                     .isLast = at == group.files.size() - 1});
    }
    return rows;
}

QVariant DuplicatesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const DuplicateRow &row = recordAt(index);
    switch (role) {
    case IsHeadRole:
        return row.isHead;
    case PathRole:
        return row.file.url.text();
    case LastRole:
        return row.isLast;
    default:
        return row.isHead ? headData(row, role) : fileData(row, role);
    }
}

QVariant DuplicatesModel::headData(const DuplicateRow &row, int role) const
{
    switch (role) {
    case ItemIdRole:
        return row.groupId;
    case NameRole:
        return row.copies == 0 ? Text::lookup(u"Unknown") : row.file.url.nameText();
    case DetailRole:
        return Text::filled(u"%lld copies · %@ reclaimable", {row.copies, Format::bytes(row.reclaimable)});
    case CollapsedRole:
        return row.collapsed;
    case OriginalRole:
    case SelectedRole:
    case SelectableRole:
        return false;
    default:
        return {};
    }
}

QVariant DuplicatesModel::fileData(const DuplicateRow &row, int role) const
{
    switch (role) {
    case ItemIdRole:
        return ItemId::of(row.file.url);
    case NameRole:
        return row.file.url.nameText();
    case DetailRole:
        return row.file.modified
                   ? Text::filled(u"%@ · %@", {Format::bytes(row.file.size), Format::date(*row.file.modified)})
                   : Format::bytes(row.file.size);
    case CollapsedRole:
        return false;
    case OriginalRole:
        return row.isFirst;
    case SelectedRole:
        return m_selection.contains(row.file.url);
    case SelectableRole:
        return m_selection.contains(row.file.url) ||
               Selections::maySelect(group(row.groupId), m_selection.keys(), row.file.url);
    default:
        return {};
    }
}

QHash<int, QByteArray> DuplicatesModel::roleNames() const
{
    return {{ItemIdRole, "itemId"},     {IsHeadRole, "isHead"},        {NameRole, "name"}, {PathRole, "path"},
            {DetailRole, "detail"},     {OriginalRole, "original"},    {LastRole, "last"}, {CollapsedRole, "collapsed"},
            {SelectedRole, "selected"}, {SelectableRole, "selectable"}};
}
