#pragma once

#include <QHash>
#include <QMutex>
#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

/// A web folder on the loopback address, served by a thread of its own: the program asks while its main
/// thread waits.
class WebFolder : public QThread
{
public:
    struct File {
        QByteArray body;
        int sent = -1;    ///< bytes that come before the connection ends; -1: all
        int refusals = 0; ///< requests that are refused before one is answered
        int pause = 0;    ///< ms between the halves
    };

    explicit WebFolder(QHash<QByteArray, File> files) : m_files(std::move(files))
    {
        start();
        m_ready.acquire();
    }
    ~WebFolder() override
    {
        quit();
        wait();
    }

    QByteArray link() const { return "http://127.0.0.1:" + QByteArray::number(m_nPort) + '/'; }

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
            connect(client, &QTcpSocket::readyRead, client, [this, client] { answer(client); });
        });
        exec();
    }

private:
    void answer(QTcpSocket *client)
    {
        const QByteArray request = client->property("request").toByteArray() + client->readAll();
        client->setProperty("request", request);
        if (!request.contains("\r\n\r\n"))
            return;
        const auto file = m_files.find(request.split(' ').at(1).mid(1));
        if (file == m_files.end() || file->refusals-- > 0) {
            client->write("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
            client->disconnectFromHost();
            return;
        }
        client->write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(file->body.size()) +
                      "\r\nConnection: close\r\n\r\n");
        const QByteArray bytes = file->body.left(file->sent < 0 ? file->body.size() : file->sent);
        client->write(bytes.left(bytes.size() / 2));
        client->flush();
        QTimer::singleShot(file->pause, client, [client, bytes] {
            client->write(bytes.mid(bytes.size() / 2));
            client->disconnectFromHost();
        });
    }

    QHash<QByteArray, File> m_files; ///< the thread's own once it runs
    QSemaphore m_ready;
    quint16 m_nPort = 0;
};
