// SPDX-License-Identifier: MIT
#pragma once

#include "Models/LargeFile.h"
#include "Services/ScanRules.h"
#include "Support/CancelToken.h"
#include "Support/Progress.h"

#include <QList>

/// Finds the largest files under chosen folders. Only reads.
namespace LargeFileScanService {

inline constexpr qint64 kDefaultMinSize = 104'857'600; // bytes

struct Options {
    QList<FileURL> folders;
    qint64 minSize = kDefaultMinSize; // bytes
};

using ScanRules::deduplicateFolders;

/// Files of at least `options.minSize`, largest first, equal sizes in the order found. Any thread.
[[nodiscard]] QList<LargeFile> scanSync(const Options &options, const Progress &progress, const CancelToken &cancel);

} // namespace LargeFileScanService
