// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FrontDoor.h"

#include <QCoreApplication>
#include <QLocalServer>
#include <QLocalSocket>

namespace frontdoor
{

namespace
{

constexpr int WaitMs = 500;

} // namespace

void open(const QString &socket, const std::function<void()> &come)
{
    auto *server = new QLocalServer(QCoreApplication::instance());
    server->setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(server, &QLocalServer::newConnection, server, [server, come] {
        while (QLocalSocket *visitor = server->nextPendingConnection())
            visitor->deleteLater();
        come();
    });
    // One that was killed leaves its socket behind.
    QLocalServer::removeServer(socket);
    server->listen(socket);
}

bool knock(const QString &socket)
{
    QLocalSocket visitor;
    visitor.connectToServer(socket);
    return visitor.waitForConnected(WaitMs);
}

} // namespace frontdoor
