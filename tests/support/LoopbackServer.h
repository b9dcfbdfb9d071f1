// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSemaphore>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <functional>

/// A web server on the loopback address. It has a thread of its own, because the main thread of the program
/// waits for the answer.
class LoopbackServer : public QThread
{
public:
    /// Answers a whole request. Called on the server's thread.
    using Answer = std::function<void(QTcpSocket *client, const QByteArray &request)>;

    /// With a certificate and its key it is a server of https.
    explicit LoopbackServer(Answer answer, const QSslConfiguration &ssl = {})
        : m_answer(std::move(answer)), m_ssl(ssl)
    {
        start();
        m_ready.acquire();
    }
    ~LoopbackServer() override
    {
        quit();
        wait();
    }
    QByteArray link() const
    {
        return (m_ssl.isNull() ? "http://127.0.0.1:" : "https://127.0.0.1:") + QByteArray::number(m_nPort) +
               '/';
    }

protected:
    void run() override
    {
        Listener server;
        server.ssl = m_ssl;
        if (!server.listen(QHostAddress::LocalHost))
            qFatal("no port to serve at");
        m_nPort = server.serverPort();
        m_ready.release();
        connect(&server, &QTcpServer::newConnection, &server, [this, &server] {
            QTcpSocket *client = server.nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, client, [this, client] {
                const QByteArray request = client->property("request").toByteArray() + client->readAll();
                client->setProperty("request", request);
                if (request.endsWith("\r\n\r\n"))
                    m_answer(client, request);
            });
        });
        exec();
    }

private:
    struct Listener : public QTcpServer {
        QSslConfiguration ssl;

        void incomingConnection(qintptr handle) override
        {
            auto *socket = new QSslSocket(this);
            socket->setSocketDescriptor(handle);
            if (!ssl.isNull()) {
                socket->setSslConfiguration(ssl);
                socket->startServerEncryption();
            }
            addPendingConnection(socket);
        }
    };

    const Answer m_answer;
    const QSslConfiguration m_ssl;
    QSemaphore m_ready;
    quint16 m_nPort = 0;
};
