// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/FolderPanel.h"

#include <QPointer>
#include <QWindow>

/// Asks with the toolkit's file dialog, the desktop's own where there is one.
class DialogFolderPanel final : public FolderPanel
{
public:
    /// The window that the dialog belongs to.
    void setOwner(QWindow *owner) { m_owner = owner; }

    QCoro::Task<std::optional<FileURL>> choose(std::optional<FileURL> hint, QString message,
                                               QString buttonText) override;

private:
    QPointer<QWindow> m_owner;
};
