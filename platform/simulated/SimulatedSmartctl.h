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
/// -c, -l selftest, -t short, -t long, -X, -n standby and any -d, in any order, with one device. Any thread.
class SimulatedSmartctl
{
public:
    /// The description and what is present have to outlive this object. The state of the tests is kept in
    /// `stateFile`. `age` tells the milliseconds since the begin of the process by the PC's clock.
    SimulatedSmartctl(const PcDescription &pc, const Presence &presence, const QString &stateFile,
                      Clock clock, Clock age);

    /// The standard output of one run.
    QByteArray run(const QStringList &arguments);

private:
    struct Request {
        bool report = false;
        bool capabilities = false;
        bool log = false;
        bool abort = false;
        bool unlessAsleep = false;
        QString test; ///< empty: none
        QStringList devices;
        QByteArray wrong; ///< what the tool says of arguments that it does not take
    };

    static Request parse(const QStringList &arguments);
    const Disk *diskOf(const QString &device) const;
    /// The latest change of a disk that names what is asked for; null if there is none yet.
    const ReportChange *lastChange(int disk, bool (*names)(const ReportChange &)) const;
    bool isAsleep(const Disk &disk) const;
    /// The file of the report that the tool prints at its n-th run, counted from 0.
    QString reportFile(const Disk &disk, int run) const;
    QByteArray report(const Disk &disk);
    QByteArray log(const Disk &disk);
    QByteArray startTest(const Disk &disk, const QString &test);
    QByteArray abortTest(const Disk &disk);

    const PcDescription &m_pc;
    const Presence &m_presence;
    QMutex m_mutex;
    SelfTests m_tests;
    Clock m_clock;
    Clock m_age;
    QHash<int, int> m_runs; ///< reports printed so far, by disk
};

} // namespace simulated
