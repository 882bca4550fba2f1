// SPDX-License-Identifier: MIT
#include "Platform/Linux/UserDirs.h"

#include <QList>

namespace {

/// The text between the quotes that `value` begins with, a backslash taking the character after it as it is; absent
/// when the closing quote is missing: a line that was cut short may name the wrong folder.
std::optional<QByteArray> unquoted(QByteArrayView value)
{
    if (!value.startsWith('"'))
        return std::nullopt;
    QByteArray result;
    for (qsizetype i = 1; i < value.size(); ++i) {
        if (value.at(i) == '"')
            return result;
        if (value.at(i) == '\\' && ++i == value.size())
            break;
        result.append(value.at(i));
    }
    return std::nullopt;
}

/// The folder that a quoted value names: absolute, or below home when it begins with a bare `$HOME`.
std::optional<FileURL> folderOf(QByteArrayView quoted, const FileURL &home)
{
    constexpr QByteArrayView variable = "\"$HOME";
    const std::optional<QByteArray> value = unquoted(quoted);
    if (!value || !quoted.startsWith(variable))
        return value ? FileURL::fromPath(*value) : std::nullopt;
    const QByteArray rest = value->sliced(variable.size() - 1);
    return rest.isEmpty() || rest.startsWith('/') ? FileURL::fromPath(home.path() + rest) : std::nullopt;
}

} // namespace

std::optional<FileURL> UserDirs::folder(QByteArrayView content, QByteArrayView key, const FileURL &home)
{
    std::optional<FileURL> result;
    for (const QByteArray &each : content.toByteArray().split('\n')) {
        const QByteArray line = each.trimmed();
        const qsizetype equals = line.indexOf('=');
        if (equals < 0 || line.first(equals).trimmed() != key)
            continue;
        if (const auto found = folderOf(line.sliced(equals + 1).trimmed(), home))
            result = found;
    }
    if (result && (*result == home || home.isBelow(*result)))
        return std::nullopt;
    return result;
}
