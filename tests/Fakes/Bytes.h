// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Bytes that look random and are the same for the same seed.
[[nodiscard]] inline QByteArray someBytes(qsizetype count, quint64 seed)
{
    QByteArray made(count, Qt::Uninitialized);
    quint64 state = seed * 0x9E3779B97F4A7C15U + 1U;
    for (char &byte : made) {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        byte = static_cast<char>(state >> 56);
    }
    return made;
}
