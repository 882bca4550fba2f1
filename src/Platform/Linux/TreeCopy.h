// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/ItemStatus.h"

#include <QByteArray>

#include <expected>
#include <system_error>
#include <vector>

/// Copies an item to another file system so that its origin may go: every byte is compared afterwards, and only what
/// was copied and has not changed since is removed. Any thread.
namespace TreeCopy {

/// An item as it was found, with all below it.
struct Node {
    QByteArray name;
    ItemStatus status;
    std::vector<Node> children;
};

struct Survey {
    Node top;
    qint64 bytes = 0; // what a copy takes at most
};

/// Looks at an entry of an open folder before anything is copied. An error when it, or anything below, could not be
/// copied or not be removed afterwards: a pipe, socket or device, another mount, a folder that may not be changed.
[[nodiscard]] std::expected<Survey, std::error_code> survey(int folder, const QByteArray &name);

/// Copies the surveyed item into an open folder under a name that is not taken, with modes, times and extended
/// attributes, written to the disk and compared. On an error nothing of the copy is left.
[[nodiscard]] std::error_code copy(const Node &item, int folder, int target, const QByteArray &targetName);

struct Removal {
    std::error_code failure;
    bool hasRemoved = false; // whether anything went before it failed
};

/// Removes what was surveyed and has not changed since; ends at whatever has.
[[nodiscard]] Removal removeOrigin(const Node &item, int folder);

} // namespace TreeCopy
