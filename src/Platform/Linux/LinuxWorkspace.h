// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/PropertyList.h"
#include "Platform/Workspace.h"

#include <QStringList>

#include <functional>

/// The desktop reached through its own opener, and bundles read from disk.
class LinuxWorkspace : public Workspace
{
public:
    /// Starts a program on its own and answers whether it could be started.
    using Launch = std::function<bool(const QString &program, const QStringList &arguments)>;

    explicit LinuxWorkspace(Launch launch = startDetached);

    /// This desktop has no settings pane at the one fixed address: that is answered false.
    bool open(const QUrl &address) const override;
    /// Asks the desktop's file manager over the session's bus; opens the folder alone when none answers.
    void showInFileManager(const FileURL &item) const override;
    /// The bundle's file name without its `.app` ending.
    [[nodiscard]] QString displayName(const FileURL &bundle) const override;
    [[nodiscard]] BundleInfo bundleInfo(const FileURL &bundle) const override;

    /// Starts a program that shares neither our terminal's input nor its output.
    static bool startDetached(const QString &program, const QStringList &arguments);

private:
    Launch m_launch;
};
