// SPDX-License-Identifier: MIT
#include "App/SingleInstance.h"

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QByteArrayView kAnswer{"ok\n"};
constexpr qint64 kMaxRequest = 4'096; // no token is longer
constexpr auto kPatience = 3s;
constexpr std::chrono::milliseconds kPause{50};

/// One line, sent to whoever listens; answers whether that was answered.
bool send(const QString &socketName, const QByteArray &line, QDeadlineTimer deadline)
{
    const auto left = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    socket.connectToServer(socketName);
    if (!socket.waitForConnected(left()))
        return false;
    socket.write(line);
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(left()))
            return false;
    }
    return socket.readLine() == kAnswer;
}

} // namespace

SingleInstance::SingleInstance(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_socket(folder + u"/com.brisko.Brisko.socket"_s)
    , m_lock(folder + u"/com.brisko.Brisko.lock"_s)
{
    m_lock.setStaleLockTime(0); // however long it runs; only a process that is gone loses its lock
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::serve);
}

bool SingleInstance::begin()
{
    if (!m_lock.tryLock(0) && m_lock.error() == QLockFile::LockFailedError)
        return false;
    // Whose lock it is may clear away what a crash left. Where no lock can be had, none can be shared either.
    QLocalServer::removeServer(m_socket);
    if (!m_server.listen(m_socket))
        qWarning("brisko: a second start will open a second window: %s", qPrintable(m_server.errorString()));
    return true;
}

bool SingleInstance::handOver(const QByteArray &activationToken)
{
    const QDeadlineTimer deadline(kPatience);
    const QByteArray line = "activate " + activationToken + '\n';
    while (!deadline.hasExpired()) {
        if (send(m_socket, line, deadline))
            return true;
        // It has its lock but may not listen yet.
        QThread::msleep(kPause.count());
    }
    return false;
}

void SingleInstance::serve()
{
    while (QLocalSocket *client = m_server.nextPendingConnection()) {
        connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        const auto read = [this, client] {
            if (!client->canReadLine()) {
                if (client->bytesAvailable() > kMaxRequest)
                    client->abort();
                return;
            }
            const QByteArray line = client->readLine(kMaxRequest).trimmed();
            if (!line.startsWith("activate")) {
                client->abort();
                return;
            }
            client->write(kAnswer.data(), kAnswer.size());
            client->disconnectFromServer();
            Q_EMIT activated(line.sliced(qstrlen("activate")).trimmed());
        };
        connect(client, &QLocalSocket::readyRead, this, read);
        read(); // what came with the connection
    }
}
