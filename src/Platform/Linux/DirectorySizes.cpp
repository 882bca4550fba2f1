// SPDX-License-Identifier: MIT
#include "Platform/Linux/DirectorySizes.h"

#include <QSet>

QList<DirectorySizes::Line> DirectorySizes::parse(QByteArrayView text)
{
    QList<Line> lines;
    for (const QByteArray &row : text.toByteArray().split('\n')) {
        const QList<QByteArray> fields = row.split(' ');
        if (fields.size() != 3)
            continue;
        bool sizeIsNumber = false;
        bool timeIsNumber = false;
        const Line line{.name = QByteArray::fromPercentEncoding(fields[2]),
                        .size = fields[0].toLongLong(&sizeIsNumber),
                        .recorded = fields[1].toLongLong(&timeIsNumber)};
        // A name is one component; anything else would lead elsewhere.
        const bool isName = !line.name.isEmpty() && line.name != "." && line.name != ".." && !line.name.contains('/') &&
                            !line.name.contains('\0');
        if (sizeIsNumber && timeIsNumber && line.size >= 0 && isName)
            lines.append(line);
    }
    return lines;
}

QByteArray DirectorySizes::text(const QList<Line> &lines)
{
    QByteArray result;
    for (const Line &line : lines)
        result += QByteArray::number(line.size) + ' ' + QByteArray::number(line.recorded) + ' ' +
                  line.name.toPercentEncoding() + '\n';
    return result;
}

QList<DirectorySizes::Line> DirectorySizes::merged(const QList<Line> &lines, const QList<Line> &added,
                                                   const std::function<bool(const QByteArray &name)> &isThere)
{
    QSet<QByteArray> replaced;
    for (const Line &line : added)
        replaced.insert(line.name);
    QList<Line> result;
    for (const Line &line : lines) {
        if (!replaced.contains(line.name) && isThere(line.name))
            result.append(line);
    }
    return result + added;
}
