// SPDX-License-Identifier: MIT
#include "Views/LargeFilesModel.h"

#include "Theme/Format.h"
#include "Views/ItemId.h"

LargeFilesModel::LargeFilesModel(const SelectionSet<FileURL> &selection, QObject *parent)
    : RecordListModel(parent)
    , m_selection(selection)
{
}

QVariant LargeFilesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const LargeFile &file = recordAt(index);
    switch (role) {
    case ItemIdRole:
        return ItemId::of(file.url);
    case NameRole:
        return file.url.nameText();
    case FolderRole:
        return file.url.parent().text();
    case PathRole:
        return file.url.text();
    case SizeTextRole:
        return Format::bytes(file.size);
    case DateTextRole:
        return file.modified ? Format::date(*file.modified) : QString();
    case SelectedRole:
        return m_selection.contains(file.url);
    default:
        return {};
    }
}

QHash<int, QByteArray> LargeFilesModel::roleNames() const
{
    return {{ItemIdRole, "itemId"},     {NameRole, "name"},         {FolderRole, "folder"},    {PathRole, "path"},
            {SizeTextRole, "sizeText"}, {DateTextRole, "dateText"}, {SelectedRole, "selected"}};
}
