// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QDateTime>

#include <optional>

/// A file above the size threshold. Identity is `url`.
struct LargeFile {
    FileURL url;
    qint64 size = 0; // logical, in bytes
    std::optional<QDateTime> modified;
    friend bool operator==(const LargeFile &, const LargeFile &) = default;
};
