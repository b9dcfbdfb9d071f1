#pragma once

#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include <atomic>

/// A server on the loopback address that answers every request with `head`, and then with `piece` again and
/// again, each `interval` ms, for as long as somebody listens.
class AttackServer : public QThread
{
public:
    AttackServer(const QByteArray &head, const QByteArray &piece, int interval)
        : m_head(head), m_piece(piece), m_nInterval(interval)
    {
        start();
        m_ready.acquire();
    }
    ~AttackServer() override
    {
        quit();
        wait();
    }

    QString link() const { return QStringLiteral("http://127.0.0.1:%1/").arg(m_nPort); }

    std::atomic<int> requests{0};
    std::atomic<qint64> sent{0}; ///< bytes that somebody took

protected:
    void run() override
    {
        QTcpServer server;
        if (!server.listen(QHostAddress::LocalHost))
            qFatal("no port to serve at");
        m_nPort = server.serverPort();
        m_ready.release();
        connect(&server, &QTcpServer::newConnection, &server, [this, &server] {
            QTcpSocket *client = server.nextPendingConnection();
            connect(client, &QTcpSocket::bytesWritten, client, [this](qint64 bytes) { sent += bytes; });
            connect(client, &QTcpSocket::readyRead, client, [this, client] {
                if (client->readAll().endsWith("\r\n\r\n"))
                    answer(client);
            });
        });
        exec();
    }

private:
    void answer(QTcpSocket *client)
    {
        ++requests;
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
    QSemaphore m_ready;
    quint16 m_nPort = 0;
};
