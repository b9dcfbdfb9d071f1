// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/simulated/PcDescription.h"
#include "platform/simulated/Presence.h"
#include "platform/simulated/SelfTests.h"

#include <QByteArray>
#include <QHash>
#include <QMutex>
#include <QStringList>

namespace simulated
{

/// `smartctl` on a described PC: prints the described texts, and runs self-tests of its own. Understands -a,
/// -c, -l selftest, -t short, -t long, -X and any -d, in any order, with one device. Any thread.
class SimulatedSmartctl
{
public:
    /// The description and what is present have to outlive this object. The state of the tests is kept in
    /// `stateFile`.
    SimulatedSmartctl(const PcDescription &pc, const Presence &presence, const QString &stateFile,
                      Clock clock);

    /// The standard output of one run.
    QByteArray run(const QStringList &arguments);

private:
    struct Request {
        bool report = false;
        bool capabilities = false;
        bool log = false;
        bool abort = false;
        QString test; ///< empty: none
        QStringList devices;
        QByteArray wrong; ///< what the tool says of arguments that it does not take
    };

    static Request parse(const QStringList &arguments);
    const Disk *diskOf(const QString &device) const;
    QByteArray report(const Disk &disk);
    QByteArray log(const Disk &disk);
    QByteArray startTest(const Disk &disk, const QString &test);
    QByteArray abortTest(const Disk &disk);

    const PcDescription &m_pc;
    const Presence &m_presence;
    QMutex m_mutex;
    SelfTests m_tests;
    Clock m_clock;
    QHash<int, int> m_runs; ///< reports printed so far, by disk
};

} // namespace simulated
