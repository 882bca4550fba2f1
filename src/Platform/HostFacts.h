// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QByteArray>

#include <functional>
#include <optional>

/// What the environment and the user database say of whoever runs the program, so that tests can say otherwise.
struct HostFacts {
    std::function<std::optional<QByteArray>(const char *name)> variable;  // of the environment; absent when not set
    quint32 user = 0;                                                     // whose permissions the program has
    std::function<std::optional<QByteArray>(quint32 user)> accountFolder; // the user database's home folder

    /// Those of this process.
    [[nodiscard]] static HostFacts ofThisProcess();

    /// The value of a variable that names a folder: only when set and absolute.
    [[nodiscard]] std::optional<FileURL> folder(const char *name) const;
};

/// Which folder is home. Looks at the disk; any thread.
namespace HomeRule {

/// `path` as a home folder of `user`: absent when it is relative, the root, no folder, or another user's.
[[nodiscard]] std::optional<FileURL> usable(const QByteArray &path, quint32 user);

/// HOME when set and not empty, else the account's home folder; absent when that is not usable. A HOME that is not
/// usable never falls back to the account's: whoever set it meant it.
[[nodiscard]] std::optional<FileURL> home(const HostFacts &facts);

/// The account's home folder whatever HOME says; absent when it is not usable.
[[nodiscard]] std::optional<FileURL> accountHome(const HostFacts &facts);

} // namespace HomeRule
