// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/ToolInvocation.h"

#include "platform/Log.h"
#include "smart/ReportParser.h"
#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QFile>
#include <QTextStream>

#include <array>

namespace
{

constexpr int NamedDevices = 14;
constexpr int ComboRow = 10; ///< the self-test table's row that goes by the combo index

struct ToolCommand {
    const char *arguments;
    const char *file;
};

/// In the order of ToolPurpose.
constexpr std::array<ToolCommand, ToolPurposeCount> Commands = {{
    {" -a ", "SMART.txt"},
    {" -c ", "SMART1234.txt"},
    {" -c ", "ShortTestStatus.txt"},
    {" -t short ", "ShortTest.txt"},
    {" -t long ", "ShortTest.txt"},
    {" -X ", "SMART1234.txt"},
    {" -l selftest ", "PreviousResult.txt"},
    {" -n standby -a ", "WatchReport.txt"},
    {" -n standby -a ", "OnceReport.txt"},
}};

const ToolCommand &commandOf(ToolPurpose purpose)
{
    return Commands.at(static_cast<std::size_t>(purpose));
}

QString toolProgram(ToolPurpose purpose)
{
    if (purpose == ToolPurpose::FullReport && g_strRunMode == QLatin1String("Schedular"))
        return g_App.m_strSmartctlPath;
    return g_App.m_bUse64BitTool ? QStringLiteral("smartctl64Bit.exe") : QStringLiteral("smartctl.exe");
}

} // namespace

QString deviceName(int diskIndex)
{
    if (diskIndex < 0 || diskIndex >= NamedDevices)
        return QString();
    return QStringLiteral("/dev/sd") + QLatin1Char(static_cast<char>('a' + diskIndex));
}

QString deviceString(int diskIndex, const QString &interfaceText)
{
    const QString name = deviceName(diskIndex);
    return interfaceText == QLatin1String("USB") ? QStringLiteral(" -d sat,12 ") + name : name;
}

QString selfTestDevice(int diskIndex, int comboIndex)
{
    for (int row = 0; row < NamedDevices; ++row) {
        const int compared = row == ComboRow ? comboIndex : diskIndex;
        if (compared == row)
            return deviceName(row);
    }
    return QString();
}

QString toolFileName(ToolPurpose purpose)
{
    return QLatin1String(commandOf(purpose).file);
}

QString storedDevice(ToolPurpose purpose)
{
    switch (purpose) {
    case ToolPurpose::FullReport:
        return QString();
    case ToolPurpose::SelfTestLog:
        return g_strSmartDevice;
    default:
        return g_strSelfTestDevice;
    }
}

QString commandLine(ToolPurpose purpose, const QString &device, const QString &file)
{
    return toolProgram(purpose) + QLatin1String(commandOf(purpose).arguments) + device +
           QLatin1String(" >> ") + file;
}

QString runTool(ToolPurpose purpose, const QString &device)
{
    return runner::runFresh(toolFileName(purpose), [purpose, &device](const QString &path) {
        return commandLine(purpose, device, path);
    });
}

bool readTool(ToolPurpose purpose, const QString &device, const runner::OutputReader &read)
{
    const bool opened = runner::readOutput(runTool(purpose, device), read);
    if (!opened)
        qCDebug(logs::smart) << "the tool wrote no file:" << commandOf(purpose).arguments << device;
    return opened;
}

bool readToolWithin(ToolPurpose purpose, const QString &device, qint32 milliseconds,
                    const std::function<bool()> &mayGoOn, const runner::OutputReader &read)
{
    // A tool that does not even end by force still has its file, so each disk has one of its own.
    const QString path = runner::freshTempFile(
        toolFileName(purpose).replace(QLatin1Char('.'), device.right(1) + QLatin1Char('.')));
    return !QFile::exists(nativePath(path)) &&
           runner::runWithin(commandLine(purpose, device, path), milliseconds, mayGoOn) &&
           runner::readOutput(path, read);
}

LoadedReport LoadSmartReport(int diskIndex)
{
    const WmicDiskRecord *record = findWmicDisk(static_cast<quint32>(diskIndex + PhysicalDriveBase));
    const QString device = deviceString(diskIndex, record ? record->szInterface.text() : QString());
    return {diskIndex, device, runTool(ToolPurpose::FullReport, device)};
}

ProbedIdentity ProbeDiskIdentity(int diskIndex, const QString &interfaceText)
{
    report::Identity identity;
    readTool(ToolPurpose::FullReport, deviceString(diskIndex, interfaceText),
             [&identity](QTextStream &stream) { identity = report::readProbedIdentity(stream); });
    return {identity.model.value_or(QString()), identity.serial.value_or(QString()),
            identity.firmware.value_or(QString())};
}
