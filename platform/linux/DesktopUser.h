// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The user who is logged on while this process is root's.
namespace desktopuser
{

struct User {
    quint32 id = 0;
    quint32 group = 0;
    QString name;
    QString home;
};

/// The user who became root by sudo or pkexec; nothing if this process was started in another way.
std::optional<User> loggedOn();

/// Starts a program with that user's rights, folders and session, and does not wait for its end.
bool start(const User &user, const QString &program, const QStringList &arguments);

/// Opens a page or document, without waiting for its end. As root, the session of that user does it, if there
/// is one: a browser should not run as root.
bool open(const QString &target);

} // namespace desktopuser
