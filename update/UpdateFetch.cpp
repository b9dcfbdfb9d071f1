#include "update/UpdateFetch.h"

#include "inventory/CommandRunner.h"
#include "platform/Platform.h"
#include "update/UpdateLink.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUrl>

namespace update
{

namespace
{

QString pathIn(const QString &folderPath, const QString &name)
{
    return folderPath + QLatin1Char('\\') + name;
}

/// A file from before must not pass for the one that was asked for.
bool clearWay(const QString &folderPath, const QString &path)
{
    QDir().mkpath(nativePath(folderPath));
    const QString native = nativePath(path);
    return !QFile::exists(native) || QFile::remove(native);
}

QString fetchByConsole(const QString &url, const QString &name)
{
    const QString path = pathIn(fallbackFolder(), name);
    if (!clearWay(fallbackFolder(), path))
        return QString();
    const QString command = consoleCommand(url, path);
    Platform &platform = Platform::current();
    if (!command.isEmpty()) {
        const QString interpreter = QString::fromLocal8Bit(platform.CommandInterpreter());
        const QString line = (interpreter.isEmpty() ? QStringLiteral("CMD.EXE") : interpreter) +
                             QLatin1String(" /c ") + command;
        platform.CreateProcessAndWait(line.toStdWString(), false);
    }
    return nativePath(path);
}

} // namespace

QString fetch(const QString &url, const QString &name)
{
    const QString path = pathIn(folder(), name);
    if (clearWay(folder(), path) && Platform::current().URLDownloadToFileW(url, path) == 0)
        return nativePath(path);
    return fetchByConsole(url, name);
}

QString consoleCommand(const QString &url, const QString &path)
{
    // The interpreter would take these for its own, so that a setting could say what it runs.
    static const QRegularExpression forInterpreter(QStringLiteral("[\\s&|<>^\"']"));
    const QString address = QString::fromLatin1(QUrl(url).toEncoded());
    if (address.isEmpty() || address.contains(forInterpreter))
        return QString();
    return QLatin1String("bitsadmin.exe /transfer myDownloadJob /download /priority normal ") + address +
           QLatin1Char(' ') + path;
}

void removeLeftovers()
{
    QDir(nativePath(folder())).removeRecursively();
    for (const QString &name : {versionsName(), installerName()})
        QFile::remove(nativePath(pathIn(fallbackFolder(), name)));
}

qint64 loadedBytes()
{
    const auto entries = QDir(nativePath(folder())).entryInfoList(QDir::Files | QDir::Hidden | QDir::System);
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
