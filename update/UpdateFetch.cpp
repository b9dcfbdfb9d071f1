// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/UpdateFetch.h"

#include "inventory/CommandRunner.h"
#include "platform/Log.h"
#include "platform/OwnFiles.h"
#include "state/GlobalApp.h"
#include "state/Product.h"
#include "state/SettingsStore.h"
#include "update/UpdateTrust.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace update
{

namespace
{

constexpr qint32 CancelMs = 2000; ///< for the end of a transfer that took too long

/// The folder of the last fetch; empty where there is none.
QMutex folderMutex;
QString currentFolder;

QString brand()
{
    return g_App.m_bKorvaneBrand ? QStringLiteral("KorvaneHalvane") : QStringLiteral("VelmoraHalvane");
}

QString folderNow()
{
    const QMutexLocker lock(&folderMutex);
    return currentFolder;
}

QString freshFolder()
{
    removeLeftovers();
    const QMutexLocker lock(&folderMutex);
    currentFolder = Platform::current().MakePrivateFolder(QStringLiteral("updatetmp"));
    return currentFolder;
}

QString keptBase()
{
    const QString folder = Platform::current().StateFolder();
    return folder.isEmpty() ? QString() : folder + QLatin1String("/update");
}

QString transferTool()
{
    return Platform::current().GetSystemDirectoryW() + QLatin1String("\\bitsadmin.exe");
}

void fetchByConsole(const QString &url, const QString &path, const DownloadLimits &limits)
{
    const QString command = consoleCommand(url, path);
    if (command.isEmpty() || limits.milliseconds <= CancelMs)
        return;
    Platform &platform = Platform::current();
    const QString begin = QString::fromUtf8(platform.CommandInterpreter()) + QLatin1String(" /c ");
    const auto fits = [&limits] { return loadedBytes() <= limits.bytes; };
    // The service behind the tool would go on with the job.
    const QString cancel = begin + transferTool() + QLatin1String(" /cancel myDownloadJob");
    if (!platform.CreateProcessAndWaitFor((begin + command).toStdWString(), limits.milliseconds - CancelMs,
                                          fits))
        platform.CreateProcessAndWaitFor(cancel.toStdWString(), CancelMs, [] { return true; });
}

/// Puts a copy of our own in the place of the tool's file: whoever owns a file can change it at any time.
bool takeOver(const QString &path, qint64 mostBytes)
{
    QFile theirs;
    QFile ours;
    if (!ownfiles::openRegular(&theirs, path, QIODevice::ReadOnly) || theirs.size() > mostBytes)
        return false;
    const QByteArray bytes = theirs.readAll();
    theirs.close();
    return QFile::remove(path) && ownfiles::makeFile(&ours, path) && ours.write(bytes) == bytes.size() &&
           ours.flush();
}

} // namespace

QString versionsName()
{
    return brand() + QLatin1String(".txt");
}

QString installerName()
{
    return brand() + QLatin1String(".exe");
}

int expectedSize()
{
    const int size = SettingsStore().number(key::AverageUpdateSize);
    return size > 0 ? size : product::number(QLatin1String(key::AverageUpdateSize.name));
}

DownloadLimits installerLimits(qint64 expectedBytes)
{
    constexpr qint32 Hour = 3600000;
    return {Hour, 4 * std::max<qint64>(expectedBytes, 10 * 1024 * 1024)};
}

QString fetch(const QString &url, const QString &name, const DownloadLimits &limits)
{
    QElapsedTimer clock;
    clock.start();
    const QString folder = freshFolder();
    if (folder.isEmpty()) {
        qCDebug(logs::update) << "no private folder can be made";
        return QString();
    }
    const QString path = nativePath(folder + QLatin1Char('\\') + name);
    DownloadLimits own = limits;
    own.onlyHttps = !g_publisherKey.isEmpty();
    const qint32 result = Platform::current().URLDownloadToFileW(url, path, own);
    // What a rule or a limit forbade is not tried in another way.
    if (result != 0 && result != Platform::DownloadRefused && !own.onlyHttps) {
        fetchByConsole(url, path, {static_cast<qint32>(limits.milliseconds - clock.elapsed()), limits.bytes});
        if (!takeOver(path, limits.bytes))
            QFile::remove(path);
    }
    const QFileInfo file(path);
    qCDebug(logs::update) << "the download ended with" << result << "and left bytes:" << file.size();
    if (file.isFile() && file.size() <= limits.bytes)
        return path;
    removeLeftovers();
    return QString();
}

QString consoleCommand(const QString &url, const QString &path)
{
    // These characters mean something to the interpreter: with them a setting could run a command.
    static const QRegularExpression forInterpreter(QStringLiteral("[\\s&|<>^\"']"));
    const QString address = QString::fromLatin1(QUrl(url).toEncoded());
    if (address.isEmpty() || address.contains(forInterpreter) || path.contains(forInterpreter))
        return QString();
    return transferTool() + QLatin1String(" /transfer myDownloadJob /download /priority normal ") + address +
           QLatin1Char(' ') + path;
}

QString keptFolder(const QString &ofFile)
{
    removeLeftovers();
    const QString base = keptBase();
    // An empty path would be the working folder.
    if (base.isEmpty())
        return freshFolder();
    for (const QString &other : QDir(base).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (other != ofFile)
            QDir(base + QLatin1Char('/') + other).removeRecursively();
    }
    const QString folder = base + QLatin1Char('/') + ofFile;
    if (!ownfiles::makeFolder(nativePath(folder)).isEmpty())
        return freshFolder();
    const QMutexLocker lock(&folderMutex);
    return currentFolder = folder;
}

void leaveKeptFolder()
{
    const QString base = keptBase();
    const QMutexLocker lock(&folderMutex);
    // One that was made afresh is not found again: it is removed as ever.
    if (!base.isEmpty() && currentFolder.startsWith(base + QLatin1Char('/')))
        currentFolder.clear();
}

void removeKept()
{
    const QString base = keptBase();
    if (!base.isEmpty())
        QDir(base).removeRecursively();
}

void removeLeftovers()
{
    const QMutexLocker lock(&folderMutex);
    if (!currentFolder.isEmpty())
        QDir(currentFolder).removeRecursively();
    currentFolder.clear();
}

qint64 loadedBytes()
{
    const QString folder = folderNow();
    if (folder.isEmpty())
        return 0;
    const auto entries = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::System);
    qint64 bytes = 0;
    for (const QFileInfo &entry : entries)
        bytes += entry.size();
    return bytes;
}

QString megabytes(qint64 bytes)
{
    return QString::number(static_cast<double>(bytes) * 9.5367431640625e-7, 'f', 2);
}

} // namespace update
