// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/LoopbackServer.h"

#include <QTimer>

#include <atomic>

/// A server on the loopback address that answers every request with `head`, and then with `piece` again and
/// again, each `interval` ms, for as long as somebody listens.
class AttackServer : public LoopbackServer
{
public:
    AttackServer(const QByteArray &head, const QByteArray &piece, int interval)
        : m_head(head), m_piece(piece), m_nInterval(interval)
    {
        begin();
    }
    ~AttackServer() override { end(); }

    QString link() const { return QString::fromLatin1(LoopbackServer::link()); }

    std::atomic<int> requests{0};
    std::atomic<qint64> sent{0}; ///< bytes that were taken

protected:
    void serve(QTcpSocket *client) override
    {
        if (client->readAll().endsWith("\r\n\r\n"))
            answer(client);
    }

private:
    void answer(QTcpSocket *client)
    {
        ++requests;
        connect(client, &QTcpSocket::bytesWritten, client, [this](qint64 bytes) { sent += bytes; });
        client->write(m_head);
        if (m_piece.isEmpty())
            return client->disconnectFromHost();
        auto *clock = new QTimer(client);
        connect(clock, &QTimer::timeout, client, [this, client] {
            if (client->bytesToWrite() < 4 * m_piece.size())
                client->write(m_piece);
        });
        clock->start(m_nInterval);
    }

    const QByteArray m_head;
    const QByteArray m_piece;
    const int m_nInterval;
};
