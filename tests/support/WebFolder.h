// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/LoopbackServer.h"

#include <QHash>
#include <QTimer>

/// A web folder on the loopback address. It has a thread of its own, because the main thread of the program
/// waits for the answer.
class WebFolder : public LoopbackServer
{
public:
    struct File {
        QByteArray body;
        int sent = -1;    ///< bytes that come before the connection ends; -1: all
        int refusals = 0; ///< requests that are refused before one is answered
        int pause = 0;    ///< ms between the halves
    };

    explicit WebFolder(QHash<QByteArray, File> files) : m_files(std::move(files)) { begin(); }
    ~WebFolder() override { end(); }

protected:
    void serve(QTcpSocket *client) override
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

private:
    QHash<QByteArray, File> m_files; ///< only for the thread, once it runs
};
