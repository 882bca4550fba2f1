// SPDX-License-Identifier: MIT
#pragma once

#include "Models/StartupItem.h"
#include "Views/RecordListModel.h"

/// A startup item as its row shows it.
struct StartupEntry {
    StartupItem item;
    bool removing = false; // whether a removal runs, of whatever
    friend bool operator==(const StartupEntry &, const StartupEntry &) = default;
};

[[nodiscard]] inline const FileURL &definitionOf(const StartupEntry &entry)
{
    return entry.item.path;
}

/// The startup items, in the order published. Main thread.
class StartupModel : public RecordListModel<StartupEntry, definitionOf>
{
    Q_OBJECT

public:
    enum Role {
        ItemIdRole = Qt::UserRole + 1,
        NameRole,
        TypeLabelRole,
        PathRole,
        SwitchedOnRole,
        ToggleTextRole,
        CanToggleRole,
        CanRemoveRole,
        ToggleTipRole, // why it cannot be switched; empty when it can
        RemoveTipRole
    };

    using RecordListModel::RecordListModel;

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};
