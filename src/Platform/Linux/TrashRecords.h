// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>

#include <ctime>
#include <expected>
#include <mutex>
#include <system_error>

/// The records of one Trash folder, each of which keeps a name for an item. Any thread.
class TrashRecords
{
public:
    /// `info` and `files` are the open folders; they outlive this object. Names have `longestItemName` bytes at most.
    TrashRecords(int info, int files, qsizetype longestItemName);

    /// Writes a record, whole and checked, under a name that no item has yet, as like to the wished one as can be, and
    /// answers the name. `path` is what the record says, exact bytes. On an error no record is left.
    [[nodiscard]] std::expected<QByteArray, std::error_code> claim(const QByteArray &wishedName,
                                                                   const QByteArray &path);
    /// Removes a record that was claimed and is not needed, so that its name is free again.
    void drop(const QByteArray &wishedName, const QByteArray &name);
    /// Removes a record whose name an item without a record has; the next claim looks further.
    void dropTaken(const QByteArray &wishedName, const QByteArray &name);

private:
    [[nodiscard]] QByteArray named(const QByteArray &wishedName, quint64 number) const;
    [[nodiscard]] bool isTaken(const QByteArray &name) const;
    [[nodiscard]] quint64 firstFree(const QByteArray &wishedName, quint64 taken) const;
    [[nodiscard]] std::error_code write(const QByteArray &recordName, const QByteArray &text) const;
    void remove(const QByteArray &name) const;
    const QByteArray &now();

    const int m_info;
    const int m_files;
    const qsizetype m_longestItemName; // bytes
    std::mutex m_mutex;
    QHash<QByteArray, quint64>
        m_next; // the next number to try for a name that was met again; guarded by m_mutex, as is the rest
    time_t m_second = 0;
    QByteArray m_secondText; // in local time, as records carry it
};
