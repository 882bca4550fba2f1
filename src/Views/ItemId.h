// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QString>

#include <optional>

/// Files and folders as QML names them: a text that keeps every byte of the path.
namespace ItemId {

[[nodiscard]] inline QString of(const FileURL &url)
{
    return QString::fromLatin1(url.encoded());
}
/// Absent for what is no such name.
[[nodiscard]] inline std::optional<FileURL> toURL(const QString &itemId)
{
    return FileURL::fromEncoded(itemId.toLatin1());
}

} // namespace ItemId
