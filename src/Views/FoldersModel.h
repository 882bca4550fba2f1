// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Views/RecordListModel.h"

namespace FoldersModelDetail {
[[nodiscard]] inline FileURL keyOf(const FileURL &folder)
{
    return folder;
}
} // namespace FoldersModelDetail

/// The folders that a page searches, as chips. Main thread.
class FoldersModel : public RecordListModel<FileURL, FoldersModelDetail::keyOf>
{
public:
    enum Role { ItemIdRole = Qt::UserRole + 1, NameRole, PathRole };

    using RecordListModel::RecordListModel;

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};
