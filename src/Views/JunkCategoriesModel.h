// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Junk.h"
#include "Views/RecordListModel.h"
#include "Views/SelectionSet.h"

#include <QSet>

namespace JunkCategoriesModelDetail {
// Every scan gives a category a fresh id; its name says which row it is.
[[nodiscard]] inline QString keyOf(const JunkCategory &category)
{
    return category.name;
}
} // namespace JunkCategoriesModelDetail

/// The junk categories as cards, each with its first files. Main thread.
class JunkCategoriesModel : public RecordListModel<JunkCategory, JunkCategoriesModelDetail::keyOf>
{
public:
    static constexpr qsizetype kFilesShown = 10;

    enum Role {
        ItemIdRole = Qt::UserRole + 1,
        NameRole,
        SymbolRole,
        DetailRole,
        SelectedRole,
        ExpandedRole,
        FileNamesRole, // of the first files, in order; as long as the next three
        FileSizesRole,
        FilePathsRole,
        FileIdsRole,
        MoreRole, // "… and 3 more"; empty when all are shown
    };

    /// `selection` outlives the model.
    explicit JunkCategoriesModel(const SelectionSet<QUuid> &selection, QObject *parent = nullptr);

    /// Opens or closes a category's card; it stays so over scans.
    void toggleExpanded(const QString &name);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    const SelectionSet<QUuid> &m_selection;
    QSet<QString> m_expanded;
};
