// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/FileSystem.h"

#include <QByteArrayView>

/// Puts new content in the place of a regular file's, so that whoever opens it sees the old or the new and never a
/// part, also after a power cut. Mode, and owner and group where that is permitted, stay. `read` are the attributes
/// that the file had when its content was read: one that has changed since is left alone, with
/// `resource_unavailable_try_again`. On any error the file is as it was. Any thread.
[[nodiscard]] std::expected<void, std::error_code> replaceFile(const FileURL &file, QByteArrayView content,
                                                               const FileSystem::Attributes &read);
