// SPDX-License-Identifier: MIT
#include "Platform/Linux/TrashNames.h"

#include <algorithm>

namespace {

/// An ending longer than this is no ending but part of a name that happens to hold a dot.
constexpr qsizetype kLongestEnding = 32; // bytes, the dot included

/// The dot and what follows it; empty for ".name", "name." and "name".
QByteArray endingOf(const QByteArray &name)
{
    const qsizetype dot = name.lastIndexOf('.');
    const bool isEnding = dot > 0 && dot + 1 < name.size() && name.size() - dot <= kLongestEnding;
    return isEnding ? name.sliced(dot) : QByteArray();
}

qsizetype sequenceLength(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    if (byte >= 0xF0)
        return 4;
    if (byte >= 0xE0)
        return 3;
    return byte >= 0xC0 ? 2 : 1;
}

/// The first `length` bytes at most, without the beginning of a character whose end is cut off.
QByteArray cutAtCharacter(const QByteArray &text, qsizetype length)
{
    if (text.size() <= length)
        return text;
    const qsizetype earliest = std::max<qsizetype>(length - 3, 0);
    for (qsizetype lead = length - 1; lead >= earliest; --lead) {
        const auto byte = static_cast<unsigned char>(text[lead]);
        const bool isContinuation = byte >= 0x80 && byte < 0xC0;
        if (isContinuation)
            continue;
        return text.first(lead + sequenceLength(text[lead]) > length ? lead : length);
    }
    return text.first(length);
}

} // namespace

qsizetype TrashNames::limitFor(qsizetype longestName)
{
    return longestName - kRecordEnding.size();
}

QByteArray TrashNames::numbered(const QByteArray &name, quint64 number, qsizetype limit)
{
    if (number <= 1 && name.size() <= limit)
        return name;
    const QByteArray ending = endingOf(name);
    const QByteArray tail = (number <= 1 ? QByteArray() : '.' + QByteArray::number(number)) + ending;
    return cutAtCharacter(name.chopped(ending.size()), std::max<qsizetype>(limit - tail.size(), 1)) + tail;
}

QByteArray TrashNames::record(QByteArrayView path, QByteArrayView date)
{
    return "[Trash Info]\nPath=" + path.toByteArray().toPercentEncoding("/") + "\nDeletionDate=" + date.toByteArray() +
           '\n';
}
