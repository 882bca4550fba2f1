// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

/// Sees to it that one window runs for each user: the first start keeps a lock and listens on a socket, both in a
/// folder that is the user's own; a later one hands over to it and ends. A crash leaves nothing that stands in the way.
/// Main thread.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    /// `folder` is only the user's to enter.
    explicit SingleInstance(const QString &folder, QObject *parent = nullptr);

    /// Becomes the one that runs, and listens; false when another one is it already.
    [[nodiscard]] bool begin();
    /// Asks the one that runs to come to the front, with the token by which the display lets it; answers whether it
    /// heard. Waits for it, but not for long.
    [[nodiscard]] bool handOver(const QByteArray &activationToken);

Q_SIGNALS:
    /// Another start handed over.
    void activated(const QByteArray &activationToken);

private:
    void serve();

    QString m_socket;
    QLockFile m_lock;
    QLocalServer m_server;
};
