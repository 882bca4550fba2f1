// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>
#include <QVariant>

/// Lets the desktop bring the running program to the front, as its launchers do. Main thread.
class ActivationService final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    using QObject::QObject;

    /// Becomes reachable; false where the desktop has no such thing, or another program is reached there already.
    bool publish();

public Q_SLOTS:
    // Named and typed as the desktop calls them. There is nothing to open with this program and it has no actions:
    // everything brings it to the front.
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_SCRIPTABLE void Open(const QStringList &addresses, const QVariantMap &platformData);
    Q_SCRIPTABLE void ActivateAction(const QString &name, const QVariantList &parameters,
                                     const QVariantMap &platformData);

Q_SIGNALS:
    /// With the token by which the display lets the window come to the front; empty without one.
    void activated(const QByteArray &activationToken);
};
