// SPDX-License-Identifier: MIT
#include "Support/UserDefaults.h"

#include "Models/FileURL.h"
#include "Support/OwnFiles.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QMetaType>
#include <QSettings>

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Settings are a few kilobytes; what is larger than this is something else.
constexpr qint64 kMaxBytes = 16 * 1024 * 1024;

/// How long another of our processes may take to put a broken file aside.
constexpr auto kLockPatience = std::chrono::milliseconds{2000};

enum class Condition { usable, broken, unusable };

FileURL urlOf(const QString &file)
{
    // The path was made absolute; one with a NUL byte names nothing that could be opened.
    return FileURL::fromPath(QFile::encodeName(file)).value_or(FileURL::root());
}

/// Whether a line is one that the settings writer could have written, or a person by hand.
bool isSoundLine(QByteArrayView line)
{
    line = line.trimmed();
    if (line.isEmpty() || line.startsWith(';'))
        return true;
    if (line.startsWith('['))
        return line.endsWith(']');
    bool inQuotes = false;
    for (qsizetype at = 0; at < line.size(); ++at) {
        if (line[at] == '\\')
            ++at;
        else if (line[at] == '"')
            inQuotes = !inQuotes;
    }
    return !inQuotes && line.contains('=');
}

/// The settings reader makes what it can of anything at all, and the next write would seal the loss. So what it
/// reads must be text, whole to its last line break, and each line in form.
bool isSound(const QByteArray &content)
{
    if (content.isEmpty())
        return true;
    if (content.contains('\0') || !content.isValidUtf8() || !content.endsWith('\n'))
        return false;
    // Some editors begin a text with a mark of its byte order.
    constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");
    const QList<QByteArray> lines = content.sliced(content.startsWith(byteOrderMark) ? 3 : 0).split('\n');
    return std::all_of(lines.cbegin(), lines.cend(), [](const QByteArray &line) { return isSoundLine(line); });
}

/// Whether the settings writer can take its lock. It waits without end for one that it can neither make nor remove.
bool isLockable(const QString &file)
{
    struct stat status {
    };
    const QByteArray lock = QFile::encodeName(file) + ".lock";
    return ::lstat(lock.constData(), &status) != 0 || S_ISREG(status.st_mode);
}

Condition conditionOf(const QString &file)
{
    if (!isLockable(file))
        return Condition::unusable;
    const auto content = OwnFiles::read(urlOf(file), kMaxBytes);
    if (content)
        return isSound(*content) ? Condition::usable : Condition::broken;
    if (content.error() == std::errc::no_such_file_or_directory)
        return Condition::usable;
    return content.error() == std::errc::file_too_large ? Condition::broken : Condition::unusable;
}

/// Makes the file and its folder where they are missing, before the settings writer does it for all to read: it keeps
/// the permissions that it finds. Also tightens a file that others could read.
void makePrivate(const QString &file)
{
    const FileURL url = urlOf(file);
    if (!OwnFiles::makeFolder(url.parent()))
        return; // the write that follows fails as well
    const int descriptor = ::open(url.path().constData(), O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return;
    struct stat status {
    };
    if (::fstat(descriptor, &status) == 0 && (status.st_mode & 0077) != 0)
        ::fchmod(descriptor, status.st_mode & 0700);
    ::close(descriptor);
}

} // namespace

UserDefaults::UserDefaults(const QString &file)
    : m_file(QDir::current().absoluteFilePath(file))
{
    if (makeUsable())
        m_settings = std::make_unique<QSettings>(m_file, QSettings::IniFormat);
}

UserDefaults::~UserDefaults() = default;

/// Puts a broken file aside; answers whether the place can be used then.
bool UserDefaults::makeUsable()
{
    Condition condition = conditionOf(m_file);
    if (condition != Condition::broken)
        return condition == Condition::usable;
    // The settings writer takes the same lock. Whoever comes second finds the file sound, and leaves it.
    QLockFile lock(m_file + u".lock"_s);
    if (!lock.tryLock(static_cast<int>(kLockPatience.count())))
        return false;
    condition = conditionOf(m_file);
    if (condition != Condition::broken)
        return condition == Condition::usable;
    const auto aside = OwnFiles::keepAside(urlOf(m_file));
    if (!aside)
        return false;
    m_brokenCopy = QFile::decodeName(aside->path());
    return true;
}

QVariant UserDefaults::value(const QString &key) const
{
    return m_settings ? m_settings->value(key) : m_memory.value(key);
}

int UserDefaults::integer(const QString &key) const
{
    return text(key).value_or(QString()).toInt();
}

std::optional<QString> UserDefaults::text(const QString &key) const
{
    const QVariant found = value(key);
    if (found.typeId() == QMetaType::QString || found.typeId() == QMetaType::Int)
        return found.toString();
    return std::nullopt;
}

QStringList UserDefaults::textList(const QString &key) const
{
    // The file does not tell a list of one from a text, and reads a list with a NUL in it as one of values.
    const QVariant found = value(key);
    const bool isList = found.typeId() == QMetaType::QStringList || found.typeId() == QMetaType::QVariantList;
    return isList || found.typeId() == QMetaType::QString ? found.toStringList() : QStringList();
}

std::optional<QByteArray> UserDefaults::data(const QString &key) const
{
    const QVariant found = value(key);
    return found.typeId() == QMetaType::QByteArray ? std::optional(found.toByteArray()) : std::nullopt;
}

bool UserDefaults::contains(const QString &key) const
{
    return m_settings ? m_settings->contains(key) : m_memory.contains(key);
}

void UserDefaults::setInteger(const QString &key, int value)
{
    prepareChange();
    if (text(key) != QString::number(value))
        store(key, value);
}

void UserDefaults::setText(const QString &key, const QString &value)
{
    prepareChange();
    if (text(key) != value)
        store(key, value);
}

void UserDefaults::setTextList(const QString &key, const QStringList &value)
{
    prepareChange();
    if (!contains(key) || data(key) || textList(key) != value)
        store(key, value);
}

void UserDefaults::setData(const QString &key, const QByteArray &value)
{
    prepareChange();
    if (data(key) != value)
        store(key, value);
}

void UserDefaults::store(const QString &key, const QVariant &value)
{
    if (!m_settings) {
        m_memory.insert(key, value);
        return;
    }
    m_settings->setValue(key, value);
    write();
}

void UserDefaults::remove(const QString &key)
{
    prepareChange();
    if (!contains(key))
        return;
    if (!m_settings) {
        m_memory.remove(key);
        return;
    }
    // To the settings store a slash makes a group, and removing "a" takes "a/b" along: those are put back.
    QMap<QString, QVariant> below;
    const QStringList keys = m_settings->allKeys();
    for (const QString &other : keys) {
        if (other.startsWith(key + u'/'))
            below.insert(other, m_settings->value(other));
    }
    m_settings->remove(key);
    for (auto other = below.cbegin(); other != below.cend(); ++other)
        m_settings->setValue(other.key(), other.value());
    write();
}

/// Looks again before a change: other programs may have changed the file since, or spoilt it, or its place.
void UserDefaults::prepareChange()
{
    if (!m_settings)
        return;
    const std::optional<QString> before = m_brokenCopy;
    const bool usable = makeUsable();
    if (usable && m_brokenCopy == before) {
        m_settings->sync(); // what is set already need not be written again
        return;
    }
    const QStringList keys = m_settings->allKeys();
    for (const QString &key : keys)
        m_memory.insert(key, m_settings->value(key));
    if (!usable) {
        m_settings.reset();
        return;
    }
    // What was known goes into the new file.
    for (auto known = m_memory.cbegin(); known != m_memory.cend(); ++known)
        m_settings->setValue(known.key(), known.value());
    m_memory.clear();
    write();
}

void UserDefaults::write()
{
    makePrivate(m_file);
    m_settings->sync();
}
