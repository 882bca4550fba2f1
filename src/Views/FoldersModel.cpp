// SPDX-License-Identifier: MIT
#include "Views/FoldersModel.h"

#include "Views/ItemId.h"

QVariant FoldersModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const FileURL &folder = recordAt(index);
    switch (role) {
    case ItemIdRole:
        return ItemId::of(folder);
    case NameRole:
        return folder.nameText();
    case PathRole:
        return folder.text();
    default:
        return {};
    }
}

QHash<int, QByteArray> FoldersModel::roleNames() const
{
    return {{ItemIdRole, "itemId"}, {NameRole, "name"}, {PathRole, "path"}};
}
