// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// The sum of two byte counts. An overflow is a broken invariant and ends the program. Any thread.
[[nodiscard]] inline qint64 checkedSum(qint64 a, qint64 b)
{
    qint64 sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        qFatal("Byte counts overflow: %lld + %lld", static_cast<long long>(a), static_cast<long long>(b));
    return sum;
}

/// The sum of `size(element)` over a range; as `checkedSum` for two. Any thread.
template <typename Range, typename Size>
[[nodiscard]] qint64 checkedTotal(const Range &range, Size size)
{
    qint64 total = 0;
    for (const auto &element : range)
        total = checkedSum(total, size(element));
    return total;
}
