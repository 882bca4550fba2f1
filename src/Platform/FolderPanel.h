// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QCoro/QCoroTask>
#include <QString>

#include <optional>

/// Asks the user for a folder: one, and no file. Main thread.
class FolderPanel
{
public:
    virtual ~FolderPanel() = default;
    /// Shows a panel opened at `hint` (where it likes when absent). Absent: cancelled.
    virtual QCoro::Task<std::optional<FileURL>> choose(std::optional<FileURL> hint, QString message,
                                                       QString buttonText) = 0;
};
