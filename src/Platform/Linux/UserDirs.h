// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QByteArrayView>

#include <optional>

/// The desktop's file of folders that the user chose, `user-dirs.dirs`.
namespace UserDirs {

/// The folder that `content` names under `key` ("XDG_DOWNLOAD_DIR"); the last line that is well-formed counts. Absent
/// when there is none, and for `/`, the home folder and what holds it, which all mean that there is no such folder.
[[nodiscard]] std::optional<FileURL> folder(QByteArrayView content, QByteArrayView key, const FileURL &home);

} // namespace UserDirs
