// SPDX-License-Identifier: MIT
#include "App/ActivationService.h"

#include <QDBusConnection>

using namespace Qt::StringLiterals;

bool ActivationService::publish()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    // The object first: who finds the name calls it at once.
    return bus.isConnected() &&
           bus.registerObject(u"/com/brisko/Brisko"_s, this, QDBusConnection::ExportScriptableSlots) &&
           bus.registerService(u"com.brisko.Brisko"_s);
}

void ActivationService::Activate(const QVariantMap &platformData)
{
    Q_EMIT activated(platformData.value(u"activation-token"_s).toString().toUtf8());
}

void ActivationService::Open(const QStringList & /*addresses*/, const QVariantMap &platformData)
{
    Activate(platformData);
}

void ActivationService::ActivateAction(const QString & /*name*/, const QVariantList & /*parameters*/,
                                       const QVariantMap &platformData)
{
    Activate(platformData);
}
