// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QByteArray>

#include <expected>
#include <system_error>

/// The small files that the program keeps for itself. What is made here is for the user alone. Errors are the
/// system's. Any thread.
namespace OwnFiles {

/// The whole file. No folder, pipe or device is ever read (`std::errc::invalid_argument`), nor a file of more than
/// `limit` bytes (`std::errc::file_too_large`).
[[nodiscard]] std::expected<QByteArray, std::error_code> read(const FileURL &file, qint64 limit);

/// Replaces the file by one of this content, at once: whoever reads sees the old content or the new, also after a
/// crash. Makes the file, but not its folder.
[[nodiscard]] std::expected<void, std::error_code> write(const FileURL &file, const QByteArray &content);

/// Makes a folder and those on the way to it.
[[nodiscard]] std::expected<void, std::error_code> makeFolder(const FileURL &folder);

/// Renames a file that cannot be understood to `NAME.broken-N` beside it, N being the first number from 1 that is
/// free, and answers the new place. Nothing is ever replaced; on an error the file is still where it was.
[[nodiscard]] std::expected<FileURL, std::error_code> keepAside(const FileURL &file);

} // namespace OwnFiles
