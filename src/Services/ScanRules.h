// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QByteArrayView>
#include <QList>

/// What the large-file and the duplicate scan share.
namespace ScanRules {

/// Resolves every folder and drops those that lie inside another; a folder that swallows earlier ones takes the place
/// of the first of them. The rest keep their order.
[[nodiscard]] QList<FileURL> deduplicateFolders(const QList<FileURL> &folders);

/// Whether a name marks a media library or a bundle, which are never taken apart. Case-sensitive.
[[nodiscard]] bool isOpaque(QByteArrayView name);

} // namespace ScanRules
