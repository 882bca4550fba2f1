// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/MountPoints.h"

#include <QByteArrayView>

/// The kernel's table of mounts as text, without asking the kernel.
namespace MountTable {

/// Reads the text of /proc/self/mountinfo; lines that are not understood are left out.
[[nodiscard]] QList<MountPoints::Mount> parse(QByteArrayView text);

/// The mount that holds a path free of links: the one mounted nearest above it, the latest where several lie on one
/// folder. Null when the table has none.
[[nodiscard]] const MountPoints::Mount *holding(const QList<MountPoints::Mount> &mounts, const FileURL &path);

} // namespace MountTable
