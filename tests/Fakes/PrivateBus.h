// SPDX-License-Identifier: MIT
#pragma once

#include "Fakes/ScratchTree.h"

#include <QDBusConnection>
#include <QProcess>
#include <QString>

#include <csignal>
#include <stdexcept>
#include <sys/prctl.h>

/// A session's message bus of the test's own, on which nothing is but what the test puts there; this process's session
/// bus from now on, if it is made before that is first used.
class PrivateBus
{
public:
    PrivateBus()
    {
        const FileURL settings =
            tree.file("bus.conf", "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
                                  "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">"
                                  "<busconfig><type>session</type><listen>unix:path=" +
                                      tree.at("bus").path() +
                                      "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
                                      "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
                                      "<allow own=\"*\"/></policy></busconfig>");
        m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        // It ends with the test, however that ends.
        m_daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--config-file=") + settings.text(), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address=1")});
        while (!m_daemon.canReadLine()) {
            if (!m_daemon.waitForReadyRead())
                throw std::runtime_error("no bus could be started");
        }
        m_address = QString::fromLatin1(m_daemon.readLine().trimmed());
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_address.toLatin1());
    }
    ~PrivateBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    /// Another program on the bus.
    [[nodiscard]] QDBusConnection connect(const QString &name) const
    {
        return QDBusConnection::connectToBus(m_address, name);
    }

private:
    ScratchTree tree;
    QProcess m_daemon;
    QString m_address;
};
