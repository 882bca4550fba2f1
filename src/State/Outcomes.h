// SPDX-License-Identifier: MIT
#pragma once

#include "Models/ActivityRecord.h"
#include "Models/Notices.h"
#include "Models/Removal.h"
#include "Models/TextKey.h"

#include <QDateTime>
#include <QString>
#include <QStringView>

#include <optional>

/// Turns the facts of a removal into what the user is told: pure functions, one table of cases. Any thread.
namespace Outcomes {

/// What one kind of removal says; English texts, looked up when used.
struct Wording {
    QStringView alertTitle;
    QStringView toast; // filled with the arguments that `Facts` gives
};

/// Whether the toast names how many went, before how much.
enum class Count { unsaid, said };

struct Facts {
    qint64 removedCount = 0; // entries of the list that went
    qint64 failedCount = 0;
    qint64 bytes = 0;
    std::optional<std::error_code> firstError;
    std::optional<QString> partialTitle; // of the alert when some were skipped; the wording's own when absent
    Count count = Count::unsaid;
};

struct Notice {
    std::optional<ToastData> toast;
    std::optional<AlertData> alert;
    friend bool operator==(const Notice &, const Notice &) = default;
};

/// Nothing went: an alert with the first error's own words, or nothing when the removal was stopped before its first
/// item. Some went: an alert that says how much, and how many were skipped. All went: a green toast.
[[nodiscard]] Notice outcomeOf(const Facts &facts, const Wording &wording);

/// An error in the system's own words.
[[nodiscard]] QString words(const std::error_code &error);

inline constexpr Wording junk{textKey(u"Can't clean junk"), textKey(u"Cleaned — %@ freed")};
inline constexpr Wording largeFiles{textKey(u"Can't move to Trash"), textKey(u"Moved to Trash — %@ freed")};
inline constexpr Wording duplicates{textKey(u"Can't move to Trash"), textKey(u"Removed %lld duplicates — %@ freed")};
inline constexpr Wording apps{textKey(u"Can't move to Trash"), textKey(u"Moved to Trash — %@ freed")};

} // namespace Outcomes
