// SPDX-License-Identifier: MIT
#pragma once

#include "Models/LargeFile.h"
#include "Views/RecordListModel.h"
#include "Views/SelectionSet.h"

namespace LargeFilesModelDetail {
[[nodiscard]] inline FileURL keyOf(const LargeFile &file)
{
    return file.url;
}
} // namespace LargeFilesModelDetail

/// The large files found, as rows. Main thread.
class LargeFilesModel : public RecordListModel<LargeFile, LargeFilesModelDetail::keyOf>
{
public:
    enum Role {
        ItemIdRole = Qt::UserRole + 1,
        NameRole,
        FolderRole,
        PathRole,
        SizeTextRole,
        DateTextRole,
        SelectedRole
    };

    /// `selection` outlives the model.
    explicit LargeFilesModel(const SelectionSet<FileURL> &selection, QObject *parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    const SelectionSet<FileURL> &m_selection;
};
