// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// Marks an English text that is kept to be looked up later, as those in tables are: who collects the texts for
/// translation finds it by this.
[[nodiscard]] constexpr QStringView textKey(QStringView english)
{
    return english;
}
