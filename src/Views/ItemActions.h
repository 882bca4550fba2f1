// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QObject>
#include <QtQmlIntegration>

#include <functional>
#include <memory>

struct Platform;

/// What the context menu of an item in a list does. Main thread.
class ItemActions : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    /// `copyText` puts a text on the clipboard.
    ItemActions(std::shared_ptr<const Platform> platform, std::function<void(const QString &)> copyText,
                QObject *parent = nullptr);

    /// Shows the item in the file manager; nothing of it is opened or run.
    void showInFileManager(const FileURL &item) const;
    /// Puts the item's path on the clipboard.
    void copyPath(const FileURL &item) const;

private:
    std::shared_ptr<const Platform> m_platform;
    std::function<void(const QString &)> m_copyText;
};
