#include "clone/DestinationScripts.h"

#include "app/state/GlobalApp.h"
#include "inventory/CommandRunner.h"

#include <QFile>
#include <QTextStream>

namespace destination
{

namespace
{

const QString ScriptFile = QStringLiteral("\\TempFile.txt");

/// The letter case of the lines is part of each script.
QString scriptFor(int disk, const QStringList &commands)
{
    const QStringList first{QStringLiteral("SELECT DISK %1").arg(disk)};
    return (first + commands + QStringList{QStringLiteral("EXIT")}).join(QLatin1Char('\n'));
}

bool writeScript(const QString &path, const QString &script)
{
    QFile file(nativePath(path));
    if (!file.open(QIODevice::ReadWrite | QIODevice::Text))
        return false;
    QTextStream stream(&file);
    stream << script;
    stream.flush();
    return stream.status() == QTextStream::Ok;
}

} // namespace

QStringList prepareScripts(int disk)
{
    return {scriptFor(disk, {QStringLiteral("online disk")}), scriptFor(disk, {QStringLiteral("clean")}),
            scriptFor(disk, {QStringLiteral("convert MBR"), QStringLiteral("create partition primary")})};
}

QStringList finishScripts(int disk)
{
    return {scriptFor(disk, {QStringLiteral("ONLINE disk"), QStringLiteral("RESCAN")}),
            scriptFor(disk, {QStringLiteral("RESCAN")})};
}

void runScripts(const QStringList &scripts)
{
    QString path;
    for (const QString &script : scripts) {
        path = runner::freshTempFile(ScriptFile);
        // What else may lie at that path could name another disk.
        if (!writeScript(path, script))
            continue;
        RunSilent(g_App.m_strSystemFolder + QLatin1String("\\diskpart.exe") + QLatin1String(" /s ") + path);
    }
    QFile::remove(nativePath(path));
}

} // namespace destination
