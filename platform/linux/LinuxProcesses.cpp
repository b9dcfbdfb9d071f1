// SPDX-License-Identifier: GPL-3.0-or-later
// The part of LinuxPlatform that starts other programs and asks them about the PC.

#include "platform/OwnFiles.h"
#include "platform/PlainText.h"
#include "platform/linux/DesktopUser.h"
#include "platform/linux/LinuxDisks.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/LinuxTools.h"
#include "platform/tools/SystemTools.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStorageInfo>
#include <QUrl>

namespace
{

QByteArray outputOf(const QString &tool, const QStringList &arguments)
{
    const QString program = linuxtools::find(tool);
    if (program.isEmpty())
        return {};
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments, QIODevice::ReadOnly);
    return linuxtools::outputOf(&process);
}

/// The label as the volume has it. Other output formats of blkid, and lsblk without udev, escape letters
/// beyond ASCII.
QString labelOf(const QString &node)
{
    const QByteArray told = outputOf(QStringLiteral("blkid"),
                                     {QStringLiteral("-p"), QStringLiteral("-o"), QStringLiteral("value"),
                                      QStringLiteral("-s"), QStringLiteral("LABEL"), node});
    return plaintext::line(QString::fromUtf8(told).remove(QLatin1Char('\n')));
}

/// lsblk knows file systems from udev only. Without udev the volume itself is read; if that is not allowed,
/// the mount table tells its file system.
void identifyFileSystem(inventory::Volume &volume, const QString &node, const QStorageInfo &storage)
{
    static const QRegularExpression escape(QStringLiteral("\\\\(.)"));
    QHash<QString, QString> found;
    // The label is not asked for, as it could hold line ends and so forge further lines.
    const QString told = QString::fromUtf8(
        outputOf(QStringLiteral("blkid"),
                 {QStringLiteral("-p"), QStringLiteral("-o"), QStringLiteral("export"), QStringLiteral("-s"),
                  QStringLiteral("TYPE"), QStringLiteral("-s"), QStringLiteral("VERSION"), node}));
    for (QString line : told.split(QLatin1Char('\n'))) {
        line.replace(escape, QStringLiteral("\\1"));
        found.insert(line.section(QLatin1Char('='), 0, 0), line.section(QLatin1Char('='), 1));
    }
    const QString type =
        found.value(QStringLiteral("TYPE"), QString::fromLocal8Bit(storage.fileSystemType()));
    volume.fileSystem = lsblk::fileSystemName(type, found.value(QStringLiteral("VERSION")));
}

/// As root, the session of the user who is logged on opens a page or document, if there is one: a browser
/// should not run as root.
bool openOnDesktop(const QString &target)
{
    const QString opener = linuxtools::find(QStringLiteral("xdg-open"));
    if (opener.isEmpty())
        return false;
    const auto user = desktopuser::loggedOn();
    return user ? desktopuser::start(*user, opener, {target}) : QProcess::startDetached(opener, {target});
}

} // namespace

QStringList LinuxPlatform::onlyNodes()
{
    QStringList nodes;
    for (const QString &node :
         qEnvironmentVariable("HALVANE_DISKS").split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        const QString real = QFileInfo(node).canonicalFilePath();
        // As root, a link that another user could change is not followed. Its own name is no disk's.
        const QString stranger = ownfiles::isElevated() ? ownfiles::strangerOn(node) : QString();
        if (!stranger.isEmpty())
            qWarning("HALVANE_DISKS: %s", qUtf8Printable(stranger));
        nodes.append(real.isEmpty() || !stranger.isEmpty() ? node : real);
    }
    return nodes;
}

lsblk::Inventory LinuxPlatform::readPc()
{
    lsblk::Inventory previous;
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        previous = m_pc.value_or(lsblk::Inventory());
    }
    lsblk::Inventory read =
        lsblk::parse(outputOf(QStringLiteral("lsblk"), lsblk::arguments()), onlyNodes(), previous);
    for (inventory::Volume &volume : read.machine.volumes) {
        const QStorageInfo storage(volume.mountPoint);
        volume.size = static_cast<quint64>(std::max<qint64>(0, storage.bytesTotal()));
        volume.free = static_cast<quint64>(std::max<qint64>(0, storage.bytesFree()));
        const QString node = read.volumeNodes.value(volume.letter);
        const bool unknown = volume.fileSystem.isEmpty();
        if (unknown)
            identifyFileSystem(volume, node, storage);
        if (unknown || volume.label.contains(QLatin1String("\\x"))) {
            if (const QString label = labelOf(node); !label.isEmpty())
                volume.label = label;
        }
    }
    for (inventory::Disk &disk : read.machine.disks) {
        const auto device = RawDevice::open(disk.node, false);
        if (!device)
            continue;
        disk.medium = device->medium();
        if (disk.sectors == 0) {
            disk.sectors = static_cast<quint64>(device->size()) / 512;
            disk.bytesPerSector = device->bytesPerSector();
        }
    }
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_pc = read;
    return read;
}

void LinuxPlatform::addTools()
{
    const auto smartctl = [this](const QStringList &arguments, const QByteArray &) {
        return linuxtools::smartctl(pc().machine, arguments);
    };
    m_interpreter.addTool(QStringLiteral("smartctl"), smartctl);
    m_interpreter.addTool(QStringLiteral("smartctl64bit"), smartctl);
    m_interpreter.addTool(QStringLiteral("wmic"), [this](const QStringList &arguments, const QByteArray &) {
        return tools::wmic(pc().machine, arguments);
    });
    m_interpreter.addTool(QStringLiteral("manage-bde"),
                          [this](const QStringList &arguments, const QByteArray &) {
                              return tools::manageBde(pc().machine, arguments);
                          });
    m_interpreter.addTool(QStringLiteral("diskpart"),
                          [this](const QStringList &arguments, const QByteArray &) {
                              linuxdisks::Scripts disks(pc().machine);
                              const auto native = [this](const QString &path) { return NativePath(path); };
                              return tools::diskpart(arguments, native, disks);
                          });
    m_interpreter.addTool(QStringLiteral("tasklist"), [](const QStringList &, const QByteArray &) {
        inventory::Machine machine;
        machine.processes = linuxtools::processes();
        return tools::tasklist(machine);
    });
    m_interpreter.addTool(QStringLiteral("findstr"), tools::findstr);
    m_interpreter.addTool(QStringLiteral("taskkill"), [](const QStringList &arguments, const QByteArray &) {
        return linuxtools::taskkill(arguments);
    });
    m_interpreter.addTool(QStringLiteral("shutdown"), [](const QStringList &arguments, const QByteArray &) {
        return linuxtools::shutdown(arguments);
    });
}

bool LinuxPlatform::CreateProcessAndWait(const std::wstring &line, bool)
{
    return m_interpreter.run(line, [this](const QString &path) { return NativePath(path); });
}

QString LinuxPlatform::findProgram(const QString &file)
{
    // A document can be marked as a program, too: some file systems mark all their files.
    if (!file.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive))
        return {};
    for (const QString &name : {file, file.left(file.size() - 4)}) {
        const QFileInfo program(QDir(QCoreApplication::applicationDirPath()), name);
        if (program.isFile() && program.isExecutable())
            return program.filePath();
    }
    return {};
}

bool LinuxPlatform::ShellExecuteW(const QString &file, const QString &parameters, const QString &, Show)
{
    const QUrl url(file);
    const bool isAddress = url.scheme().size() > 1;
    if (!isAddress) {
        const QString program = findProgram(NativePath(file));
        if (!program.isEmpty())
            return QProcess::startDetached(program, QProcess::splitCommand(parameters));
    }
    return !file.isEmpty() && openOnDesktop(isAddress ? file : NativePath(file));
}

bool LinuxPlatform::OpenUrl(const QUrl &url)
{
    // The toolkit takes the first opener of the search path.
    return ownfiles::isElevated() ? openOnDesktop(QString::fromLatin1(url.toEncoded()))
                                  : QDesktopServices::openUrl(url);
}
