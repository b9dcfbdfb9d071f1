// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

/// A server on the loopback address, on a thread of its own. A derived class calls begin() at the end of its
/// constructor and end() in its destructor.
class LoopbackServer : public QThread
{
public:
    QByteArray link() const { return "http://127.0.0.1:" + QByteArray::number(m_nPort) + '/'; }

protected:
    /// Called when a client has sent something. On the server's thread.
    virtual void serve(QTcpSocket *client) = 0;

    void begin()
    {
        start();
        m_ready.acquire();
    }
    void end()
    {
        quit();
        wait();
    }
    void run() override
    {
        QTcpServer server;
        if (!server.listen(QHostAddress::LocalHost))
            qFatal("no port to serve at");
        m_nPort = server.serverPort();
        m_ready.release();
        connect(&server, &QTcpServer::newConnection, &server, [this, &server] {
            QTcpSocket *client = server.nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, client, [this, client] { serve(client); });
        });
        exec();
    }

private:
    QSemaphore m_ready;
    quint16 m_nPort = 0;
};
