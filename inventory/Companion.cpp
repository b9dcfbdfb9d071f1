// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/Companion.h"

#include "inventory/CommandRunner.h"
#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/SettingsStore.h"

#include <QCoreApplication>
#include <QTextStream>

namespace companion
{

namespace
{
const QString TaskListFile = QStringLiteral("\\tmpFile");
const QString FirstBrand = QStringLiteral("VelmoraSMART.exe");

/// Whether the user has ended the companion in this logon.
bool isEnded()
{
    const QString logon = SettingsStore().text(key::TrayQuit);
    return !logon.isEmpty() && logon == Platform::current().LogonMark();
}

/// Whether it runs for the metrics, with or without the tray.
bool writesMetrics()
{
    return !SettingsStore().text(key::MetricsPath).isEmpty();
}

} // namespace

QString fileName()
{
    return g_App.m_bKorvaneBrand ? QStringLiteral("KorvaneSMART.exe") : FirstBrand;
}

QString taskName()
{
    return g_App.m_bKorvaneBrand ? QStringLiteral("KorvaneSMART") : QStringLiteral("VelmoraSMART");
}

State check()
{
    const QString system = g_App.m_strSystemFolder;
    const QString command =
        system + QStringLiteral("\\tasklist.exe | ") + system + QStringLiteral("\\findstr.exe ") + fileName();
    State state = State::Unknown;
    runner::runAndRead(command, TaskListFile, [&state](QTextStream &stream) {
        state =
            stream.readAll().contains(fileName(), Qt::CaseInsensitive) ? State::Running : State::NotRunning;
    });
    return state;
}

void start()
{
    Platform::current().ShellExecuteW(g_App.m_strApplicationFolder + QLatin1Char('\\') + fileName(),
                                      QString(), QString());
}

void ensureRunning()
{
    if (check() == State::NotRunning && !isEnded())
        start();
}

void startAgain()
{
    kill();
    if (!isEnded())
        start();
}

void takeQuitBack()
{
    SettingsStore store;
    if (!store.text(key::TrayQuit).isEmpty())
        store.write(key::TrayQuit, QString());
}

void markEnded()
{
    SettingsStore().write(key::TrayQuit, Platform::current().LogonMark());
}

void kill()
{
    RunSilent(g_App.m_strSystemFolder + QStringLiteral("\\Taskkill.exe /IM ") + fileName() +
              QStringLiteral(" /F"));
}

void setWanted(bool wanted)
{
    SettingsStore store;
    if (wanted) {
        LogonTask task;
        task.name = taskName();
        task.author = g_App.m_strUserName;
        task.program = QCoreApplication::applicationDirPath() + QLatin1Char('/') + fileName();
        task.arguments = QStringLiteral("Schedular");
        Platform::current().CreateLogonTask(task);
        // Ok without a new tick leaves Quit as it is.
        if (!store.flag(key::ShowTrayIcon))
            takeQuitBack();
        ensureRunning();
    }
    store.write(key::ShowTrayIcon, wanted ? 1 : 0);
    if (!wanted && !writesMetrics()) {
        Platform::current().DeleteLogonTask(taskName());
        kill();
    }
}

void killAfterRead()
{
    if (!writesMetrics())
        RunSilent(g_App.m_strSystemFolder + QStringLiteral("\\TASKKILL.exe /F /IM ") + FirstBrand);
}

} // namespace companion
