// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/DesktopAppearance.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

/// What the desktop's settings portal says on the session's bus. Asks without waiting, hears of changes, and asks again
/// when a portal starts; one that goes away takes nothing back.
class PortalAppearance final : public DesktopAppearance
{
    Q_OBJECT

public:
    explicit PortalAppearance(const QDBusConnection &bus);

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void askForAll();
    void ask(const QString &group, const QString &key);
    void take(const QString &group, const QString &key, const QVariant &value);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_portal;
};
