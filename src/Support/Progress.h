// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Takes one translated line about what a scan is doing. Called on whichever thread works; may be empty.
using Progress = std::function<void(const QString &)>;

/// Sends `text` when anybody listens.
inline void report(const Progress &progress, const QString &text)
{
    if (progress)
        progress(text);
}
