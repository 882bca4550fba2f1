// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <functional>
#include <memory>
#include <stdexcept>

/// A true HTTP server on this machine that answers whatever a test tells it to, well-formed or not.
class FeedServer : public QObject
{
public:
    using Handler = std::function<void(QTcpSocket &socket, const QByteArray &path)>;

    explicit FeedServer(Handler handler)
        : FeedServer(std::make_unique<QTcpServer>(), "http", std::move(handler))
    {
    }
    FeedServer(const QSslConfiguration &configuration, Handler handler)
        : FeedServer(secureServer(configuration), "https", std::move(handler))
    {
    }

    [[nodiscard]] QUrl url(const QString &path = QStringLiteral("/feed")) const
    {
        QUrl address;
        address.setScheme(QString::fromLatin1(m_scheme));
        address.setHost(m_server->serverAddress().toString());
        address.setPort(m_server->serverPort());
        address.setPath(path);
        return address;
    }
    /// The head of each request, in the order they came.
    [[nodiscard]] const QList<QByteArray> &requests() const { return m_requests; }

    /// A whole answer, after which the connection is closed.
    static void answer(QTcpSocket &socket, const QByteArray &status, const QByteArray &body,
                       const QByteArray &headers = {})
    {
        socket.write("HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
                     "\r\nConnection: close\r\n" + headers + "\r\n" + body);
        socket.disconnectFromHost();
    }
    static void redirect(QTcpSocket &socket, const QByteArray &target, const QByteArray &status = "302 Found")
    {
        answer(socket, status, "moved", "Location: " + target + "\r\n");
    }

private:
    FeedServer(std::unique_ptr<QTcpServer> server, const QByteArray &scheme, Handler handler)
        : m_server(std::move(server))
        , m_scheme(scheme)
        , m_handler(std::move(handler))
    {
        if (!m_server->listen(QHostAddress::LocalHost))
            throw std::runtime_error("the test's server could not listen");
        connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, this, &FeedServer::take);
    }

    static std::unique_ptr<QTcpServer> secureServer(const QSslConfiguration &configuration)
    {
        auto server = std::make_unique<QSslServer>();
        server->setSslConfiguration(configuration);
        return server;
    }

    void take()
    {
        while (QTcpSocket *socket = m_server->nextPendingConnection()) {
            connect(socket, &QIODevice::readyRead, this, [this, socket] { read(*socket); });
            connect(socket, &QAbstractSocket::disconnected, socket, &QObject::deleteLater);
            read(*socket);
        }
    }

    void read(QTcpSocket &socket)
    {
        QByteArray &head = m_heads[&socket];
        head += socket.readAll();
        if (!head.contains("\r\n\r\n"))
            return;
        const QByteArray request = std::exchange(head, QByteArray());
        m_requests.append(request);
        m_handler(socket, request.split(' ').value(1));
    }

    std::unique_ptr<QTcpServer> m_server;
    QByteArray m_scheme;
    Handler m_handler;
    QHash<QTcpSocket *, QByteArray> m_heads;
    QList<QByteArray> m_requests;
};
