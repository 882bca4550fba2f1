// SPDX-License-Identifier: MIT
#include "Platform/Linux/PortalAppearance.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kService{"org.freedesktop.portal.Desktop"};
constexpr QLatin1StringView kObject{"/org/freedesktop/portal/desktop"};
constexpr QLatin1StringView kInterface{"org.freedesktop.portal.Settings"};

constexpr QLatin1StringView kAppearance{"org.freedesktop.appearance"};
constexpr QLatin1StringView kColorScheme{"color-scheme"};
constexpr QLatin1StringView kGnome{"org.gnome.desktop.interface"};
constexpr QLatin1StringView kAnimations{"enable-animations"};

/// A value without the variants around it: an answer wraps it twice, a change once.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

ColorScheme schemeOf(uint number)
{
    switch (number) {
    case 1:
        return ColorScheme::dark;
    case 2:
        return ColorScheme::light;
    default: // numbers to come count as none
        return ColorScheme::noPreference;
    }
}

} // namespace

PortalAppearance::PortalAppearance(const QDBusConnection &bus)
    : m_bus(bus)
    , m_portal(kService, bus, QDBusServiceWatcher::WatchForRegistration)
{
    if (!m_bus.isConnected())
        return;
    // Listening comes first, so that no change is missed between answer and change.
    m_bus.connect(kService, kObject, kInterface, u"SettingChanged"_s, this,
                  SLOT(settingChanged(QString, QString, QDBusVariant)));
    connect(&m_portal, &QDBusServiceWatcher::serviceRegistered, this, &PortalAppearance::askForAll);
    askForAll();
}

void PortalAppearance::settingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    take(group, key, value.variant());
}

void PortalAppearance::askForAll()
{
    ask(kAppearance, kColorScheme);
    ask(kGnome, kAnimations);
}

void PortalAppearance::ask(const QString &group, const QString &key)
{
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kObject, kInterface, u"Read"_s);
    call << group << key;
    auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, group, key] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError())
            take(group, key, reply.value().variant());
    });
}

void PortalAppearance::take(const QString &group, const QString &key, const QVariant &wrapped)
{
    const QVariant value = unwrapped(wrapped);
    if (group == kAppearance && key == kColorScheme && value.metaType() == QMetaType::fromType<uint>())
        setColorScheme(schemeOf(value.toUInt()));
    else if (group == kGnome && key == kAnimations && value.metaType() == QMetaType::fromType<bool>())
        setReducesMotion(!value.toBool());
}

std::unique_ptr<DesktopAppearance> makeDesktopAppearance()
{
    return std::make_unique<PortalAppearance>(QDBusConnection::sessionBus());
}
