// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QList>

#include <algorithm>
#include <optional>
#include <type_traits>
#include <utility>

/// A list of records as a model, whose rows keep their identity: new records are compared with the old ones by
/// `keyOf(record)`, and only what differs is inserted, removed or changed, so that scroll position, hover and expansion
/// survive. Keys are unique. Main thread.
template <typename Record, auto keyOf>
class RecordListModel : public QAbstractListModel
{
public:
    using Key = std::remove_cvref_t<decltype(keyOf(std::declval<const Record &>()))>;

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_records.size());
    }
    [[nodiscard]] const QList<Record> &records() const { return m_records; }
    /// The row of a key; absent: -1.
    [[nodiscard]] int rowOf(const Key &key) const
    {
        // Found out again when it is first asked for after a change: a long list would pay for it at every change.
        if (!m_rows)
            m_rows = rowsOf(m_records);
        return m_rows->value(key, -1);
    }

    void setRecords(QList<Record> records)
    {
        if (m_records.isEmpty()) {
            // Nothing to compare with: a long list is there at once.
            if (records.isEmpty())
                return;
            beginResetModel();
            m_records = std::move(records);
            m_rows.reset();
            endResetModel();
            return;
        }
        // The usual change of a long list, which needs no table of its keys: some rows have gone.
        if (const auto gone = rowsLeftOut(records); gone && !records.isEmpty()) {
            for (auto range = gone->crbegin(); range != gone->crend(); ++range)
                removeRecords(range->first, range->second);
            changeTo(std::move(records));
            return;
        }
        const QHash<Key, int> rows = rowsOf(records);
        if (!sharesAKey(rows)) {
            beginResetModel();
            m_records = std::move(records);
            m_rows = rows;
            endResetModel();
            return;
        }
        removeAllBut(rows);
        if (!keepsOrder(rows))
            reorder(rows);
        // Keys are unique: as many as there shall be are all of them.
        if (m_records.size() != records.size())
            insertMissing(records);
        m_rows = rows;
        changeTo(std::move(records));
    }

    /// Tells that a row's roles are to be read again; all of them when none is named. Does nothing for an unknown key.
    void touch(const Key &key, const QList<int> &roles = {})
    {
        const int row = rowOf(key);
        if (row >= 0)
            Q_EMIT dataChanged(index(row), index(row), roles);
    }
    void touchAll(const QList<int> &roles = {})
    {
        if (!m_records.isEmpty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1), roles);
    }

protected:
    /// The record of a valid index of this model.
    [[nodiscard]] const Record &recordAt(const QModelIndex &index) const { return m_records.at(index.row()); }

    // What `setRecords` would do, for who knows the difference already.
    void removeRecords(int first, int count)
    {
        if (count == 0)
            return;
        beginRemoveRows({}, first, first + count - 1);
        m_records.remove(first, count);
        m_rows.reset();
        endRemoveRows();
    }
    void insertRecords(int first, const QList<Record> &records)
    {
        if (records.isEmpty())
            return;
        beginInsertRows({}, first, first + static_cast<int>(records.size()) - 1);
        m_records = m_records.first(first) + records + m_records.sliced(first);
        m_rows.reset();
        endInsertRows();
    }
    /// Puts a record of the same key in the place of another.
    void replaceRecord(int row, Record record)
    {
        m_records[row] = std::move(record);
        Q_EMIT dataChanged(index(row), index(row));
    }

private:
    static QHash<Key, int> rowsOf(const QList<Record> &records)
    {
        QHash<Key, int> rows;
        rows.reserve(records.size());
        for (int row = 0; row < records.size(); ++row)
            rows.insert(keyOf(records.at(row)), row);
        return rows;
    }
    /// The ranges of rows, as first row and count, that the records leave out; absent when they are not the others in
    /// their order.
    [[nodiscard]] std::optional<QList<std::pair<int, int>>> rowsLeftOut(const QList<Record> &records) const
    {
        QList<std::pair<int, int>> ranges;
        qsizetype kept = 0;
        for (int row = 0; row < m_records.size(); ++row) {
            if (kept < records.size() && keyOf(m_records.at(row)) == keyOf(records.at(kept)))
                ++kept;
            else if (!ranges.isEmpty() && ranges.last().first + ranges.last().second == row)
                ++ranges.last().second;
            else
                ranges.append({row, 1});
        }
        return kept == records.size() ? std::optional(ranges) : std::nullopt;
    }
    [[nodiscard]] bool sharesAKey(const QHash<Key, int> &rows) const
    {
        for (const Record &record : m_records) {
            if (rows.contains(keyOf(record)))
                return true;
        }
        return false;
    }
    void removeAllBut(const QHash<Key, int> &rows)
    {
        for (qsizetype last = m_records.size() - 1; last >= 0; --last) {
            if (rows.contains(keyOf(m_records.at(last))))
                continue;
            qsizetype first = last;
            while (first > 0 && !rows.contains(keyOf(m_records.at(first - 1))))
                --first;
            beginRemoveRows({}, static_cast<int>(first), static_cast<int>(last));
            m_records.remove(first, last - first + 1);
            m_rows.reset();
            endRemoveRows();
            last = first;
        }
    }
    [[nodiscard]] bool keepsOrder(const QHash<Key, int> &rows) const
    {
        int before = -1;
        for (const Record &record : m_records) {
            const int row = rows.value(keyOf(record));
            if (row < before)
                return false;
            before = row;
        }
        return true;
    }
    void reorder(const QHash<Key, int> &rows)
    {
        Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
        const QModelIndexList before = persistentIndexList();
        QList<Key> keys;
        for (const QModelIndex &each : before)
            keys.append(keyOf(m_records.at(each.row())));
        std::ranges::sort(m_records, [&rows](const Record &a, const Record &b) {
            return rows.value(keyOf(a)) < rows.value(keyOf(b));
        });
        const QHash<Key, int> now = rowsOf(m_records);
        m_rows.reset();
        QModelIndexList after;
        for (const Key &key : keys)
            after.append(index(now.value(key)));
        changePersistentIndexList(before, after);
        Q_EMIT layoutChanged({}, VerticalSortHint);
    }
    void insertMissing(const QList<Record> &records)
    {
        const QHash<Key, int> present = rowsOf(m_records);
        for (qsizetype first = 0; first < records.size(); ++first) {
            if (present.contains(keyOf(records.at(first))))
                continue;
            qsizetype last = first;
            while (last + 1 < records.size() && !present.contains(keyOf(records.at(last + 1))))
                ++last;
            beginInsertRows({}, static_cast<int>(first), static_cast<int>(last));
            // One piece at a time: taking the list apart for each row would cost the square of its length.
            m_records = m_records.first(first) + records.sliced(first, last - first + 1) + m_records.sliced(first);
            m_rows.reset();
            endInsertRows();
            first = last;
        }
    }
    void changeTo(QList<Record> records)
    {
        QList<std::pair<int, int>> changed;
        for (int row = 0; row < records.size(); ++row) {
            if (m_records.at(row) == records.at(row))
                continue;
            if (!changed.isEmpty() && changed.constLast().second == row - 1)
                changed.last().second = row;
            else
                changed.append({row, row});
        }
        m_records = std::move(records);
        for (const auto &[first, last] : std::as_const(changed))
            Q_EMIT dataChanged(index(first), index(last));
    }

    QList<Record> m_records;
    mutable std::optional<QHash<Key, int>> m_rows;
};
