// SPDX-License-Identifier: MIT
#pragma once

#include "Services/FeedServer.h"

#include <QByteArray>
#include <QUrl>

/// A feed on this machine that announces version 99.1, with these further members.
class UpdateFeed
{
public:
    explicit UpdateFeed(const QByteArray &members = {})
        : m_body(R"({"latestVersion":"99.1","downloadURL":"https://example.org/b.dmg",)" + members +
                 R"("releaseNotes":{"en":"Better","de":"Besser"},"criticalUpdate":false})")
    {
    }
    [[nodiscard]] QUrl url() const { return m_server.url(); }

private:
    QByteArray m_body;
    FeedServer m_server{
        [this](QTcpSocket &socket, const QByteArray &) { FeedServer::answer(socket, "200 OK", m_body); }};
};
