// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QStringList>

#include <functional>

#include "platform/Inventory.h"

/// The system's tools on a Linux PC, behind the names that the program calls them by.
namespace linuxtools
{

/// Where the system keeps its tools, and nobody but root may write.
QStringList systemFolders();

/// The path of an installed tool, in the search path or where the system keeps those of root; empty if it is
/// not installed. Root gets the system's own alone, whatever the search path says.
QString find(const QString &name);

struct Ended {
    bool well = false; ///< by itself and with exit code 0
    QByteArray output;
};

/// While it lives, tools that this thread runs are ended after a time, or when `mayGoOn` says no. One at a
/// time for each thread.
class Limits
{
public:
    Limits(qint32 milliseconds, std::function<bool()> mayGoOn);
    ~Limits();
    Limits(const Limits &) = delete;
    Limits &operator=(const Limits &) = delete;

    bool wereReached() const { return m_reached; }
    /// False if the tool that runs now has to be ended.
    bool allow() const;

private:
    const QDeadlineTimer m_end;
    const std::function<bool()> m_mayGoOn;
    mutable bool m_reached = false;
};

/// Runs an installed tool in the C locale with `input`, and waits for its end, without a limit where there
/// are no Limits. Of its standard output no more than ownfiles::MostBytes are kept; its errors are dropped.
Ended run(const QString &name, const QStringList &arguments, const QByteArray &input = {});

/// The image names of the running processes, each with ".exe" behind it as the program knows its companion.
QStringList processes();

/// Runs the installed smartctl: "/dev/sda" + N becomes the node of disk number N, all other words are passed
/// on. Gives its standard output; nothing where it is not installed or no such disk is known.
QByteArray smartctl(const inventory::Machine &machine, const QStringList &arguments);

/// The words for the installed smartctl; empty where the device named is no disk of the machine.
QStringList smartctlArguments(const inventory::Machine &machine, const QStringList &arguments);

/// Ends this user's processes of the image named, at once with /F.
QByteArray taskkill(const QStringList &arguments);

/// Powers the machine off for `/s`, after a minute in which it can be called off.
QByteArray shutdown(const QStringList &arguments);

} // namespace linuxtools
