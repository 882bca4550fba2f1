// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/FileReading.h"
#include "Services/Sha256.h"
#include "Support/CancelToken.h"

#include <QByteArray>

#include <functional>
#include <optional>
#include <span>

/// The digest of a file's whole content.
namespace FileDigest {

/// Told the bytes of each chunk read and hashed.
using Hashed = std::function<void(qint64)>;

/// The 32 bytes of the SHA-256 of an open regular file, read in chunks of 1 MiB. Absent when it cannot be read whole,
/// is no longer what `stamp` says, or `cancel` is cancelled. Any thread.
[[nodiscard]] std::optional<QByteArray> ofOpenFile(const Sha256 &algorithm, int descriptor,
                                                   const FileReading::Stamp &stamp, const CancelToken &cancel,
                                                   const Hashed &hashed = {});
/// The same, read into `chunk`, which has room for 1 MiB, or for the whole file where that is shorter.
[[nodiscard]] std::optional<QByteArray> ofOpenFile(const Sha256 &algorithm, int descriptor,
                                                   const FileReading::Stamp &stamp, std::span<char> chunk,
                                                   const CancelToken &cancel, const Hashed &hashed = {});

} // namespace FileDigest
