// SPDX-License-Identifier: MIT
#include "Platform/Linux/TrashRecords.h"

#include "Platform/Descriptor.h"
#include "Platform/Linux/ItemStatus.h"
#include "Platform/Linux/TrashNames.h"
#include "Platform/Linux/WholeWrite.h"

#include <QDateTime>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int kMostTries = 1000; // names taken under our hands by somebody else

QByteArray recordOf(const QByteArray &name)
{
    return name + TrashNames::kRecordEnding.toByteArray();
}

} // namespace

TrashRecords::TrashRecords(int info, int files, qsizetype longestItemName)
    : m_info(info)
    , m_files(files)
    , m_longestItemName(longestItemName)
{
}

std::expected<QByteArray, std::error_code> TrashRecords::claim(const QByteArray &wishedName, const QByteArray &path)
{
    const std::lock_guard lock(m_mutex);
    const QByteArray text = TrashNames::record(path, now());
    quint64 number = m_next.value(wishedName, 1);
    for (int tries = 0; tries < kMostTries; ++tries) {
        const QByteArray name = named(wishedName, number);
        const std::error_code failure = write(recordOf(name), text);
        if (!failure) {
            if (number > 1)
                m_next.insert(wishedName, number + 1);
            return name;
        }
        if (failure != std::errc::file_exists)
            return std::unexpected(failure);
        number = firstFree(wishedName, number);
    }
    return std::unexpected(std::make_error_code(std::errc::file_exists));
}

void TrashRecords::drop(const QByteArray &wishedName, const QByteArray &name)
{
    const std::lock_guard lock(m_mutex);
    remove(name);
    if (const auto next = m_next.find(wishedName); next != m_next.end() && named(wishedName, *next - 1) == name)
        --*next;
}

void TrashRecords::dropTaken(const QByteArray &wishedName, const QByteArray &name)
{
    const std::lock_guard lock(m_mutex);
    remove(name);
    m_next.insert(wishedName, firstFree(wishedName, m_next.value(wishedName, 2) - 1));
}

QByteArray TrashRecords::named(const QByteArray &wishedName, quint64 number) const
{
    return TrashNames::numbered(wishedName, number, m_longestItemName);
}

bool TrashRecords::isTaken(const QByteArray &name) const
{
    return ::faccessat(m_info, recordOf(name).constData(), F_OK, AT_SYMLINK_NOFOLLOW) == 0 ||
           ::faccessat(m_files, name.constData(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
}

quint64 TrashRecords::firstFree(const QByteArray &wishedName, quint64 taken) const
{
    return TrashNames::firstFree(taken, [&](quint64 number) { return isTaken(named(wishedName, number)); });
}

/// On an error no record is left.
std::error_code TrashRecords::write(const QByteArray &recordName, const QByteArray &text) const
{
    Descriptor file(
        ::openat(m_info, recordName.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file.isOpen())
        return lastError();
    const std::error_code failure = writeWholeAndClose(std::move(file), text);
    if (failure)
        ::unlinkat(m_info, recordName.constData(), 0);
    return failure;
}

void TrashRecords::remove(const QByteArray &name) const
{
    ::unlinkat(m_info, recordOf(name).constData(), 0);
}

const QByteArray &TrashRecords::now()
{
    const time_t now = ::time(nullptr);
    if (now != m_second || m_secondText.isEmpty()) {
        m_second = now;
        m_secondText = QDateTime::fromSecsSinceEpoch(now).toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")).toLatin1();
    }
    return m_secondText;
}
