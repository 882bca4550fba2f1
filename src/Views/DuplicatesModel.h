// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Duplicates.h"
#include "Views/RecordListModel.h"
#include "Views/SelectionSet.h"

#include <QByteArray>
#include <QSet>

/// One row of the duplicates list: the head of a group, or one of its files.
struct DuplicateRow {
    QString groupId;
    bool isHead = false;
    DuplicateFile file; // of a head: the group's first file, if any
    bool isFirst = false;
    bool isLast = false;    // nothing of the group follows
    bool collapsed = false; // of a head
    qint64 copies = 0;      // of a head
    qint64 reclaimable = 0; // of a head, in bytes
    friend bool operator==(const DuplicateRow &, const DuplicateRow &) = default;
};

namespace DuplicatesModelDetail {
// A path begins with a slash, which no digest holds: heads and files never share a key.
[[nodiscard]] inline QByteArray keyOf(const DuplicateRow &row)
{
    return row.isHead ? row.groupId.toLatin1() : row.file.url.path();
}
} // namespace DuplicatesModelDetail

/// The groups of identical files as one flat list, so that a list of any length stays virtual: the head of each group,
/// followed by its files unless it is collapsed. Main thread.
class DuplicatesModel : public RecordListModel<DuplicateRow, DuplicatesModelDetail::keyOf>
{
public:
    enum Role {
        ItemIdRole = Qt::UserRole + 1, // of a head: the group's id
        IsHeadRole,
        NameRole,
        PathRole,
        DetailRole,
        OriginalRole,
        LastRole,
        CollapsedRole,
        SelectedRole,
        SelectableRole, // whether it may be ticked, or is: one copy of each group stays unticked
    };

    /// `selection` outlives the model.
    explicit DuplicatesModel(const SelectionSet<FileURL> &selection, QObject *parent = nullptr);

    void setGroups(const QList<DuplicateGroup> &groups);
    /// Hides or shows the files of a listed group; it stays so over scans.
    void toggleCollapsed(const QString &groupId);
    /// The ticks of a group have changed.
    void touchGroup(const QString &groupId);

    [[nodiscard]] bool hasGroup(const QString &groupId) const { return m_groupAt.contains(groupId); }
    /// The group of a known id.
    [[nodiscard]] const DuplicateGroup &group(const QString &groupId) const
    {
        return m_groups.at(m_groupAt.value(groupId));
    }
    /// The row of a file in sight; null for a file that is hidden or not listed.
    [[nodiscard]] const DuplicateRow *rowOfFile(const FileURL &file) const;

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    [[nodiscard]] DuplicateRow headOf(const DuplicateGroup &group) const;
    [[nodiscard]] static QList<DuplicateRow> filesOf(const DuplicateGroup &group);
    [[nodiscard]] QVariant headData(const DuplicateRow &row, int role) const;
    [[nodiscard]] QVariant fileData(const DuplicateRow &row, int role) const;

    const SelectionSet<FileURL> &m_selection;
    QList<DuplicateGroup> m_groups;
    QHash<QString, qsizetype> m_groupAt;
    QSet<QString> m_collapsed;
};
