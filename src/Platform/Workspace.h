// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QString>
#include <QUrl>

#include <optional>

/// What the desktop says of an application bundle.
struct BundleInfo {
    std::optional<QString> identifier;
    std::optional<QString> version;
    std::optional<FileURL> icon; // the file that holds the icon
};

/// The desktop around the program.
class Workspace
{
public:
    virtual ~Workspace() = default;
    /// Hands an address to the desktop: `https:` and `mailto:` only, and the fixed address of the settings pane.
    /// Answers whether it was handed over. Main thread.
    virtual bool open(const QUrl &address) const = 0;
    /// Shows an item in the file manager, chosen in the folder that holds it where the file manager can do that.
    /// Nothing is opened or run but folders. Returns at once. Main thread.
    virtual void showInFileManager(const FileURL &item) const = 0;
    /// The name under which the file manager shows a bundle. Any thread.
    [[nodiscard]] virtual QString displayName(const FileURL &bundle) const = 0;
    /// What the bundle declares of itself; all absent when it cannot be opened. Any thread.
    [[nodiscard]] virtual BundleInfo bundleInfo(const FileURL &bundle) const = 0;
};
