// SPDX-License-Identifier: MIT
#include "Platform/Linux/MountTable.h"

namespace {

/// The kernel writes space, tab, newline and backslash as a backslash and three octal digits.
QByteArray unescaped(QByteArrayView field)
{
    QByteArray result;
    result.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isOctal = false;
        const int value =
            field[i] == '\\' && i + 3 < field.size() ? field.sliced(i + 1, 3).toByteArray().toInt(&isOctal, 8) : 0;
        if (isOctal && value > 0 && value < 256) {
            result.append(static_cast<char>(value));
            i += 3;
        } else {
            result.append(field[i]);
        }
    }
    return result;
}

} // namespace

QList<MountPoints::Mount> MountTable::parse(QByteArrayView text)
{
    // mount id, parent id, device, root, mount point, options, optional fields ..., "-", type, source, options
    constexpr qsizetype pointField = 4;
    constexpr qsizetype firstOptional = 6;
    QList<MountPoints::Mount> mounts;
    for (const QByteArray &line : text.toByteArray().split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        const qsizetype separator = fields.indexOf("-", firstOptional);
        if (separator < 0 || separator + 1 >= fields.size())
            continue;
        if (const auto folder = FileURL::fromPath(unescaped(fields[pointField])))
            mounts.append({.folder = *folder, .type = fields[separator + 1]});
    }
    return mounts;
}

const MountPoints::Mount *MountTable::holding(const QList<MountPoints::Mount> &mounts, const FileURL &path)
{
    const MountPoints::Mount *nearest = nullptr;
    for (const MountPoints::Mount &mount : mounts) {
        if (mount.folder != path && !path.isBelow(mount.folder))
            continue;
        if (nearest == nullptr || mount.folder.path().size() >= nearest->folder.path().size())
            nearest = &mount;
    }
    return nearest;
}
