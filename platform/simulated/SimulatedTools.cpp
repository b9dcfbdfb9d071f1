// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/DiskScripts.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/tools/SystemTools.h"

#include <QMutexLocker>

#include <algorithm>
#include <iterator>

// The tools that a described PC has behind its command interpreter.

namespace
{

/// The real tool has no limits, but nobody could end it here.
constexpr DownloadLimits TransferLimits{15000, 64 * 1024 * 1024};

} // namespace

inventory::Machine SimulatedPlatform::machine()
{
    inventory::Machine machine;
    for (const simulated::Disk &disk : m_pc.disks) {
        if (m_presence.hasDisk(disk.record.number)) {
            machine.disks.append(disk.record);
        }
    }
    std::copy_if(m_pc.volumes.cbegin(), m_pc.volumes.cend(), std::back_inserter(machine.volumes),
                 [this](const inventory::Volume &volume) { return m_presence.has(volume); });
    std::copy_if(m_pc.partitions.cbegin(), m_pc.partitions.cend(), std::back_inserter(machine.partitions),
                 [this](const inventory::Partition &row) { return m_presence.hasDisk(row.disk); });
    const QMutexLocker lock(&m_mutex);
    machine.processes = m_processes;
    return machine;
}

void SimulatedPlatform::stopProcess(const QString &imageName)
{
    const QMutexLocker lock(&m_mutex);
    for (int i = m_processes.size() - 1; i >= 0; --i) {
        if (m_processes.at(i).compare(imageName, Qt::CaseInsensitive) == 0) {
            m_processes.removeAt(i);
        }
    }
}

void SimulatedPlatform::addTools()
{
    addSystemTools();
    if (m_pc.hasSmartctl) {
        const tools::Tool smartctl = [this](const QStringList &arguments, const QByteArray &) {
            return m_smartctl.run(arguments);
        };
        for (const char *name : {"smartctl", "smartctl64bit"}) {
            m_interpreter.addTool(QLatin1String(name), smartctl, m_pc.toolMilliseconds);
        }
    }
    m_interpreter.addTool(QStringLiteral("bitsadmin"), [this](const QStringList &arguments,
                                                              const QByteArray &) {
        const int last = arguments.size() - 1;
        const bool loaded =
            last >= 1 && arguments.contains(QStringLiteral("/transfer"), Qt::CaseInsensitive) &&
            URLDownloadToFileW(arguments.at(last - 1), arguments.at(last), TransferLimits) == 0;
        return loaded ? QByteArray("Transfer complete.\r\n") : QByteArray("Unable to complete transfer.\r\n");
    });
    // The command line is in the log of commands; switching a described PC off does nothing else.
    m_interpreter.addTool(QStringLiteral("shutdown"),
                          [](const QStringList &, const QByteArray &) { return QByteArray(); });
}

void SimulatedPlatform::addSystemTools()
{
    m_interpreter.addTool(QStringLiteral("wmic"), [this](const QStringList &arguments, const QByteArray &) {
        return tools::wmic(machine(), arguments);
    });
    m_interpreter.addTool(QStringLiteral("manage-bde"),
                          [this](const QStringList &arguments, const QByteArray &) {
                              return tools::manageBde(machine(), arguments);
                          });
    m_interpreter.addTool(QStringLiteral("tasklist"), [this](const QStringList &, const QByteArray &) {
        return tools::tasklist(machine());
    });
    m_interpreter.addTool(QStringLiteral("findstr"), &tools::findstr);
    m_interpreter.addTool(QStringLiteral("diskpart"),
                          [this](const QStringList &arguments, const QByteArray &) {
                              simulated::DiskScripts disks(m_pc, m_presence, m_devices);
                              const auto native = [this](const QString &path) { return NativePath(path); };
                              return tools::diskpart(arguments, native, disks);
                          });
    m_interpreter.addTool(QStringLiteral("taskkill"),
                          [this](const QStringList &arguments, const QByteArray &) {
                              stopProcess(tools::taskkillTarget(arguments));
                              return QByteArray();
                          });
}
