// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/SimulatedPlatform.h"

#include "platform/FrontDoor.h"
#include "platform/HttpDownload.h"
#include "platform/JsonSettings.h"
#include "platform/NativePlatform.h"
#include "platform/OwnFiles.h"
#include "platform/simulated/StateFolder.h"
#include "platform/tools/SystemTools.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutexLocker>
#include <QProcess>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>
#include <cstdio>

namespace
{

const QLatin1String logonTaskFile("/logon-task.json");
const QLatin1String volumesChanged("/volumes-changed");

/// The real transfer tool has no limits, but nobody could end it here.
constexpr DownloadLimits TransferLimits{15000, 64 * 1024 * 1024};

/// The paths of the product's own settings, whichever branch of the registry they are in.
bool isProductPath(const QString &registryPath)
{
    return registryPath.endsWith(QLatin1String("Velmora Halvane for Windows")) ||
           registryPath.endsWith(QLatin1String("Korvane Halvane for Windows"));
}

QString imageNameOf(const QString &file)
{
    return file.mid(std::max(file.lastIndexOf(QLatin1Char('\\')), file.lastIndexOf(QLatin1Char('/'))) + 1);
}

/// Whether a drive-letter path means the described PC. In a build for a system that has drive letters itself,
/// real paths come along too.
bool isDescribedPath(const QString &path)
{
#ifdef Q_OS_WIN
    return !QFileInfo::exists(path.section(QLatin1Char('/'), 0, 1));
#else
    (void)path;
    return true;
#endif
}

bool makeStateFolder(const QString &folder, QString *error)
{
    // A folder that others can change could lead the program to other files of its user.
    QString wrong = ownfiles::makeFolder(folder);
    if (wrong.isEmpty())
        wrong = ownfiles::strangerIn(folder);
    if (wrong.isEmpty() && !ownfiles::irregularIn(folder).isEmpty())
        wrong = ownfiles::irregularIn(folder) + QLatin1String(": no regular file");
    for (const char *part : {"temp", "images", "registry", "running", "volumes-changed", "drives/C"}) {
        if (wrong.isEmpty())
            wrong = ownfiles::makeFolder(folder + QLatin1Char('/') + QLatin1String(part));
    }
    if (!wrong.isEmpty())
        *error = QLatin1String("the state of the PC cannot be kept: ") + wrong;
    return wrong.isEmpty();
}

} // namespace

std::unique_ptr<SimulatedPlatform> SimulatedPlatform::open(const QString &folder, const QString &stateFolder,
                                                           QString *error, simulated::Clock clock)
{
    // An administrator's program takes no description that another user could change.
    const QString stranger = ownfiles::isElevated() ? ownfiles::strangerIn(folder) : QString();
    if (!stranger.isEmpty()) {
        *error = stranger + QLatin1String(", and this program runs as an administrator");
        return nullptr;
    }
    std::optional<simulated::PcDescription> pc = simulated::readPc(folder, error);
    if (!pc)
        return nullptr;
    const bool ownsState = stateFolder.isEmpty();
    const QString state = ownsState ? simulated::makePrivateFolder() : QDir(stateFolder).absolutePath();
    if (state.isEmpty()) {
        *error = QLatin1String("no private temp folder can be made for the state of the PC");
        return nullptr;
    }
    if (!makeStateFolder(state, error))
        return nullptr;
    if (!clock)
        clock = &QDateTime::currentMSecsSinceEpoch;
    return std::unique_ptr<SimulatedPlatform>(new SimulatedPlatform(std::move(*pc), state, ownsState, clock));
}

SimulatedPlatform::SimulatedPlatform(simulated::PcDescription pc, const QString &stateFolder, bool ownsState,
                                     simulated::Clock clock)
    : RawDevices(std::move(pc), stateFolder + QLatin1String("/images")), m_state(stateFolder),
      m_ownsState(ownsState), m_clock(std::move(clock)), m_begin(m_clock()),
      m_smartctl(m_pc, m_presence, stateFolder + QLatin1String("/self-tests.json"), m_clock,
                 [this] { return age(); }),
      m_programs(stateFolder + QLatin1String("/running")), m_processes(m_pc.processes)
{
    if (m_pc.hasSmartctl)
        addSmartctl([this](const QStringList &words) { return m_smartctl.run(words); },
                    m_pc.toolMilliseconds);
    addTool("taskkill", [this](const QStringList &words) {
        stopProcess(tools::taskkillTarget(words));
        return QByteArray();
    });
    addTool("bitsadmin", [this](const QStringList &words) {
        const int last = words.size() - 1;
        const bool loaded = last >= 1 && words.contains(QStringLiteral("/transfer"), Qt::CaseInsensitive) &&
                            URLDownloadToFileW(words.at(last - 1), words.at(last), TransferLimits) == 0;
        return loaded ? QByteArray("Transfer complete.\r\n") : QByteArray("Unable to complete transfer.\r\n");
    });
    // The command line is in the log of commands; switching a described PC off does nothing else.
    addTool("shutdown", [](const QStringList &) { return QByteArray(); });
}

SimulatedPlatform::~SimulatedPlatform()
{
    delete m_notifier.data();
    if (m_ownsState) {
        closeAll(); // an open image could not be removed everywhere
        QDir(m_state).removeRecursively();
    }
}

QStringList SimulatedPlatform::processes()
{
    const QStringList real = m_programs.names();
    const QMutexLocker lock(&m_mutex);
    return m_processes + real;
}

void SimulatedPlatform::stopProcess(const QString &imageName)
{
    m_programs.end(imageName);
    const QMutexLocker lock(&m_mutex);
    for (int i = m_processes.size() - 1; i >= 0; --i) {
        if (m_processes.at(i).compare(imageName, Qt::CaseInsensitive) == 0)
            m_processes.removeAt(i);
    }
}

void SimulatedPlatform::record(const QString &fileName, const QByteArray &line)
{
    const QMutexLocker lock(&m_mutex);
    QFile file(m_state + QLatin1Char('/') + fileName);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append))
        file.write(line + '\n');
}

bool SimulatedPlatform::CreateProcessAndWait(const std::wstring &line, bool hidden)
{
    // The program widens its lines byte by byte; narrowed again they show what it composed.
    record(QStringLiteral("commands.log"), QString::fromStdWString(line).toLatin1());
    return InventoryPlatform::CreateProcessAndWait(line, hidden);
}

bool SimulatedPlatform::ShellExecuteW(const QString &file, const QString &parameters, const QString &verb,
                                      Show)
{
    record(QStringLiteral("opened.log"),
           QStringList{verb, file, parameters}.join(QLatin1Char('\t')).toUtf8());
    const QString name = imageNameOf(file);
    if (!name.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive))
        return true;
    if (!m_pc.installed.contains(name, Qt::CaseInsensitive))
        return false;
    const QString program = simulated::RunningPrograms::fileOf(name);
    if (!program.isEmpty())
        return startProgram(program, parameters);
    const QMutexLocker lock(&m_mutex);
    if (!m_processes.contains(name, Qt::CaseInsensitive))
        m_processes.append(name);
    return true;
}

bool SimulatedPlatform::startProgram(const QString &program, const QString &parameters) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HALVANE_PC"), QDir(m_pc.folder).absolutePath());
    environment.insert(QStringLiteral("HALVANE_PC_STATE"), m_state);
    process.setProcessEnvironment(environment);
    process.setProgram(program);
    process.setArguments(QProcess::splitCommand(parameters));
    return process.startDetached();
}

bool SimulatedPlatform::BringToFront(const QString &)
{
    return frontdoor::knock(nativeSocket(QStringLiteral("front-") + mark()));
}

void SimulatedPlatform::WhenWanted(const std::function<void()> &come)
{
    frontdoor::open(nativeSocket(QStringLiteral("front-") + mark()), come);
}

bool SimulatedPlatform::OpenUrl(const QUrl &url)
{
    record(QStringLiteral("opened.log"), "url\t" + url.toEncoded() + '\t');
    return true;
}

QString SimulatedPlatform::GetTempPathW()
{
    return m_state + QLatin1String("/temp/");
}

QString SimulatedPlatform::GetUserNameW()
{
    return m_pc.user;
}

QString SimulatedPlatform::HistoryFolder(const QString &)
{
    const QString folder = m_state + QLatin1String("/history");
    const QMutexLocker lock(&m_mutex);
    if (!QFileInfo::exists(folder)) {
        // The folder gets its name when it is whole, so that a copy that was interrupted is made again.
        const QString unready = folder + QLatin1String(".new");
        QDir(unready).removeRecursively();
        QDir().mkpath(unready);
        if (!m_pc.history.isEmpty())
            simulated::copyFolder(m_pc.history, unready);
        QDir().rename(unready, folder);
    }
    return folder;
}

QString SimulatedPlatform::MakePrivateFolder(const QString &name)
{
    // Other users may be able to read the state folder, so this folder gets rights of its own.
    const QString path = GetTempPathW() + name;
    QDir(path).removeRecursively();
    const bool fresh = QDir().mkdir(path);
    return fresh && QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)
               ? path
               : QString();
}

std::unique_ptr<QFile> SimulatedPlatform::HoldFile(const QString &path)
{
    auto file = std::make_unique<QFile>();
    return ownfiles::openRegular(file.get(), NativePath(path), QIODevice::ReadOnly) ? std::move(file)
                                                                                    : nullptr;
}

QString SimulatedPlatform::NativePath(const QString &path) const
{
    static const QRegularExpression doubled(QStringLiteral("/{2,}"));
    static const QRegularExpression upwards(QStringLiteral("(/[^/]+)?/\\.\\.(/|$)"));
    QString native = path;
    native.replace(QLatin1Char('\\'), QLatin1Char('/'));
    native.replace(doubled, QStringLiteral("/"));
    // The root of a drive comes with and without its separator.
    const bool hasLetter =
        native.size() >= 2 && native.at(0).isLetter() && native.at(0).unicode() < 128 &&
        (native.midRef(1) == QLatin1String(":") || native.midRef(1, 2) == QLatin1String(":/"));
    if (hasLetter && isDescribedPath(native)) {
        QString below = native.mid(2);
        while (below.contains(upwards)) {
            below.replace(upwards, QStringLiteral("/")); // the root of a drive is its own parent
        }
        return m_state + QLatin1String("/drives/") + native.at(0).toUpper() + below;
    }
    return native;
}

QString SimulatedPlatform::mark() const
{
    // With another state folder the same description is another PC.
    const QString scope = m_pc.folder + QLatin1Char('\n') + (m_ownsState ? QString() : m_state);
    return QString::fromLatin1(QCryptographicHash::hash(scope.toUtf8(), QCryptographicHash::Sha1).toHex());
}

bool SimulatedPlatform::TakeInstance(const QString &key)
{
    const bool taken = takeNativeInstance(key + QLatin1Char('-') + mark());
    if (taken)
        m_programs.addThis();
    return taken;
}

void SimulatedPlatform::Leave()
{
    if (!m_ownsState)
        return;
    // Without its state the PC is gone, with all that runs on it.
    m_programs.endAll();
    QDir(m_state).removeRecursively();
}

QString SimulatedPlatform::OperatingSystemName()
{
    return m_pc.operatingSystem;
}

void SimulatedPlatform::SetThreadExecutionState(quint32 flags)
{
    record(QStringLiteral("execution-state.log"),
           "0x" + QByteArray::number(flags, 16).rightJustified(8, '0'));
}

int SimulatedPlatform::LogPixelsX()
{
    return m_pc.dpi;
}

qint32 SimulatedPlatform::URLDownloadToFileW(const QString &url, const QString &path,
                                             const DownloadLimits &limits)
{
    return m_pc.network ? httpDownload(url, NativePath(path), limits, Reach::ThisPc) : DownloadRefused;
}

void SimulatedPlatform::Sleep(quint32 milliseconds)
{
    if (m_pc.pauses)
        QThread::msleep(milliseconds);
}

void SimulatedPlatform::SetProgressValue(quintptr, std::optional<int> percent)
{
    record(QStringLiteral("taskbar.log"), percent ? QByteArray::number(*percent) + '%' : "none");
}

void SimulatedPlatform::Shell_NotifyIconW(quintptr, const QString &title, const QString &text)
{
    record(QStringLiteral("notices.log"),
           title.isEmpty() ? QByteArray("none") : (title + QLatin1Char('\t') + text).toUtf8());
}

qint64 SimulatedPlatform::age() const
{
    return static_cast<qint64>(static_cast<double>(m_clock() - m_begin) * m_pc.clockSpeed);
}

QDateTime SimulatedPlatform::Now()
{
    return QDateTime::fromMSecsSinceEpoch(m_begin + age());
}

int SimulatedPlatform::TimerInterval(int milliseconds)
{
    return std::max(1, static_cast<int>(milliseconds / m_pc.clockSpeed));
}

std::optional<quint64> SimulatedPlatform::DiskActivity(int number)
{
    const simulated::Disk *disk = m_pc.disk(number);
    if (!disk || !m_presence.hasDisk(number))
        return std::nullopt;
    return disk->idle ? 0 : static_cast<quint64>(age());
}

DeviceNotifier *SimulatedPlatform::deviceNotifier()
{
    if (m_notifier.isNull()) {
        m_notifier = new DeviceNotifier;
        const QString folder = m_state + volumesChanged;
        for (const QString &old : QDir(folder).entryList(QDir::Files))
            QFile::remove(folder + QLatin1Char('/') + old);
        auto *watcher = new QFileSystemWatcher({folder}, m_notifier);
        QObject::connect(watcher, &QFileSystemWatcher::directoryChanged, m_notifier,
                         [this] { tellVolumeChanges(); });
    }
    return m_notifier;
}

void SimulatedPlatform::tellVolumeChanges()
{
    const QDir folder(m_state + volumesChanged);
    // Backwards by name: of touches that come together, removals count first.
    for (const QString &name : folder.entryList(QDir::Files, QDir::Name | QDir::Reversed)) {
        const auto notices = m_presence.touch(name);
        // Taking the file away makes the next touch a new one.
        if (notices && QFile::remove(folder.filePath(name))) {
            for (const DeviceChange &notice : *notices)
                emit m_notifier->deviceChange(notice.event, notice.deviceType);
        }
    }
}

void SimulatedPlatform::CreateLogonTask(const LogonTask &task)
{
    const QJsonObject object{{QStringLiteral("name"), task.name},
                             {QStringLiteral("author"), task.author},
                             {QStringLiteral("program"), task.program},
                             {QStringLiteral("arguments"), task.arguments}};
    const QMutexLocker lock(&m_mutex);
    QFile file(m_state + logonTaskFile);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        file.write(QJsonDocument(object).toJson());
        std::printf("\n Success! Task successfully registered. ");
    }
}

void SimulatedPlatform::DeleteLogonTask(const QString &name)
{
    const QMutexLocker lock(&m_mutex);
    QFile file(m_state + logonTaskFile);
    if (file.open(QIODevice::ReadOnly) &&
        QJsonDocument::fromJson(file.readAll()).object().value(QLatin1String("name")).toString() == name) {
        file.remove();
    }
}

std::unique_ptr<QSettings> SimulatedPlatform::OpenSettings(const QString &registryPath)
{
    if (registryPath.isEmpty())
        return jsonsettings::openNothing();
    const QString file = jsonsettings::fileOf(m_state + QLatin1String("/registry"), registryPath);
    if (isProductPath(registryPath)) {
        const QMutexLocker lock(&m_mutex);
        jsonsettings::seed(file, m_pc.settings);
    }
    return jsonsettings::open(file);
}
