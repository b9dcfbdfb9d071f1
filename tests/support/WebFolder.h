// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/LoopbackServer.h"

#include <QHash>
#include <QTimer>

/// A web folder on the loopback address.
class WebFolder : public LoopbackServer
{
public:
    struct File {
        QByteArray body;
        int sent = -1;    ///< bytes that come before the connection ends; -1: all
        int refusals = 0; ///< requests that are refused before one is answered
        int pause = 0;    ///< ms between the halves
    };

    explicit WebFolder(QHash<QByteArray, File> files)
        : LoopbackServer([files](QTcpSocket *client, const QByteArray &request) mutable {
              const auto file = files.find(request.split(' ').at(1).mid(1));
              const bool refused = file == files.end() || file->refusals-- > 0;
              const QByteArray body = refused ? QByteArray() : file->body;
              client->write("HTTP/1.1 " + QByteArray(refused ? "404 Not Found" : "200 OK") +
                            "\r\nContent-Length: " + QByteArray::number(body.size()) +
                            "\r\nConnection: close\r\n\r\n");
              const QByteArray bytes = refused ? body : body.left(file->sent < 0 ? body.size() : file->sent);
              client->write(bytes.left(bytes.size() / 2));
              client->flush();
              QTimer::singleShot(refused ? 0 : file->pause, client, [client, bytes] {
                  client->write(bytes.mid(bytes.size() / 2));
                  client->disconnectFromHost();
              });
          })
    {
    }
};
