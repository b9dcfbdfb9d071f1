// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/DestinationScripts.h"

#include "inventory/CommandRunner.h"
#include "platform/Log.h"
#include "platform/OwnFiles.h"
#include "platform/Platform.h"
#include "state/GlobalApp.h"

#include <QFile>

#include <memory>

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

/// Writes a script and returns the open file, which nobody can replace while the result lives. Null if the
/// file does not hold what was written.
std::unique_ptr<QFile> writeScript(const QString &path, const QByteArray &script)
{
    QFile file;
    if (!ownfiles::makeFile(&file, path))
        return nullptr;
    file.setTextModeEnabled(true);
    file.write(script);
    file.close();
    std::unique_ptr<QFile> held = Platform::current().HoldFile(path);
    if (!held)
        return nullptr;
    held->setTextModeEnabled(true);
    return held->readAll() == script ? std::move(held) : nullptr;
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
    for (const QString &script : scripts) {
        std::unique_ptr<QFile> held;
        runner::runFresh(ScriptFile, [&script, &held](const QString &path) {
            // A foreign file at that path could name another disk.
            held = writeScript(nativePath(path), script.toLatin1());
            if (!held)
                qCDebug(logs::clone) << "the script could not be written:" << path;
            return held ? g_App.m_strSystemFolder + QLatin1String("\\diskpart.exe /s ") + path : QString();
        });
    }
    runner::freshTempFile(ScriptFile);
}

} // namespace destination
