// SPDX-License-Identifier: MIT
#include "Models/FileURL.h"

#include <cstring>

namespace {

/// Drops `.`, empty components and the component before each `..`; the result begins with a slash.
QByteArray cleaned(QByteArrayView path)
{
    QByteArray result;
    result.reserve(path.size() + 1);
    qsizetype from = 0;
    while (from <= path.size()) {
        qsizetype to = path.indexOf('/', from);
        if (to < 0)
            to = path.size();
        const QByteArrayView part = path.sliced(from, to - from);
        from = to + 1;
        if (part.isEmpty() || part == ".")
            continue;
        if (part == "..") {
            result.truncate(std::max<qsizetype>(result.lastIndexOf('/'), 0));
            continue;
        }
        result.append('/').append(part);
    }
    if (result.isEmpty())
        result.append('/');
    return result;
}

} // namespace

std::optional<FileURL> FileURL::fromPath(QByteArrayView absolutePath)
{
    if (!absolutePath.startsWith('/') || absolutePath.contains('\0'))
        return std::nullopt;
    return fromCleanPath(cleaned(absolutePath));
}

std::optional<FileURL> FileURL::fromPath(QByteArrayView path, const FileURL &base)
{
    if (path.isEmpty() || path.contains('\0'))
        return std::nullopt;
    return path.startsWith('/') ? fromPath(path) : std::optional{base.appending(path)};
}

std::optional<FileURL> FileURL::fromEncoded(QByteArrayView fileUrl)
{
    constexpr QByteArrayView prefix = "file:///";
    if (!fileUrl.startsWith(prefix))
        return std::nullopt;
    return fromPath(QByteArray::fromPercentEncoding(fileUrl.sliced(prefix.size() - 1).toByteArray()));
}

FileURL FileURL::fromCleanPath(QByteArray path)
{
    FileURL url;
    url.m_path = std::move(path);
    return url;
}

FileURL FileURL::root()
{
    return fromCleanPath(QByteArrayLiteral("/"));
}

QString FileURL::text() const
{
    return QString::fromUtf8(m_path);
}

QByteArray FileURL::encoded() const
{
    return "file://" + m_path.toPercentEncoding("/");
}

QByteArray FileURL::name() const
{
    return m_path.size() <= 1 ? m_path : m_path.sliced(m_path.lastIndexOf('/') + 1);
}

QString FileURL::nameText() const
{
    return QString::fromUtf8(name());
}

QByteArray FileURL::extension() const
{
    const QByteArray last = name();
    const qsizetype dot = last.lastIndexOf('.');
    return dot <= 0 ? QByteArray() : last.sliced(dot + 1);
}

FileURL FileURL::parent() const
{
    const qsizetype slash = m_path.lastIndexOf('/');
    return slash <= 0 ? root() : fromCleanPath(m_path.first(slash));
}

FileURL FileURL::child(QByteArrayView name) const
{
    QByteArray path;
    path.reserve(m_path.size() + 1 + name.size());
    path.append(m_path);
    if (!path.endsWith('/'))
        path.append('/');
    path.append(name);
    return fromCleanPath(std::move(path));
}

FileURL FileURL::appending(QByteArrayView relativePath) const
{
    return fromCleanPath(cleaned(m_path + '/' + relativePath.toByteArray()));
}

bool FileURL::isBelow(const FileURL &folder) const
{
    if (folder.m_path.isEmpty() || m_path.size() <= folder.m_path.size() || !m_path.startsWith(folder.m_path))
        return false;
    return folder.m_path.endsWith('/') || m_path.at(folder.m_path.size()) == '/';
}

std::strong_ordering operator<=>(const FileURL &a, const FileURL &b)
{
    // QByteArray compares as C strings; a path is compared by all its bytes, unsigned.
    const auto common = static_cast<size_t>(std::min(a.m_path.size(), b.m_path.size()));
    const int order = common == 0 ? 0 : std::memcmp(a.m_path.constData(), b.m_path.constData(), common);
    return order != 0 ? order <=> 0 : a.m_path.size() <=> b.m_path.size();
}
