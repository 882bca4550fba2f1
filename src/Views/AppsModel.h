// SPDX-License-Identifier: MIT
#pragma once

#include "Models/InstalledApp.h"
#include "Views/RecordListModel.h"

#include <QObject>
#include <QString>

/// An application as its row shows it.
struct AppEntry {
    InstalledApp app;
    bool unused = false;
    bool selected = false;
    bool expanded = false;
    friend bool operator==(const AppEntry &, const AppEntry &) = default;
};

[[nodiscard]] inline const FileURL &bundleOf(const AppEntry &entry)
{
    return entry.app.url;
}

/// The applications, in the order published. Main thread.
class AppsModel : public RecordListModel<AppEntry, bundleOf>
{
    Q_OBJECT

public:
    enum Role {
        ItemIdRole = Qt::UserRole + 1,
        NameRole,
        VersionRole,
        PathRole,
        IconRole, // the address of its image; empty without one
        UnusedRole,
        SizeTextRole,
        SummaryRole, // of the related files, in one line
        SelectedRole,
        ExpandedRole,
        // The related files, in parallel lists.
        FileIdsRole,
        FilePathsRole,
        FileSizesRole,
        FileSymbolsRole, // a lock where access is missing, else empty
        EmptyTextRole    // what an expanded row without related files says
    };

    using RecordListModel::RecordListModel;

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};
