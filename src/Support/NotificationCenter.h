// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QObject>
#include <QString>

/// The names that are posted.
namespace Notification {
/// The main window is to come to the front.
inline constexpr QLatin1StringView openMainWindow{"OpenMainWindow"};
/// The panel of the status area is to close.
inline constexpr QLatin1StringView closeMenuPopover{"CloseMenuPopover"};
} // namespace Notification

/// Passes names from those who ask for something to whoever does it, so that a panel need not know the windows. Owned
/// by the application's delegate and handed to who posts. Main thread.
class NotificationCenter : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Tells every listener, before it returns.
    void post(const QString &name) { Q_EMIT posted(name); }

Q_SIGNALS:
    void posted(const QString &name);
};
