// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

#include "app/QWaitClass.h"
#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/SettingsStore.h"
#include "state/Startup.h"
#include "ui/widgets/StartLook.h"

#include <QApplication>
#include <QMessageBox>
#include <QWidget>

#include <cstdlib>

namespace
{

const QString InstanceKey = QStringLiteral("7c41e9d2-a06b-4f37-66mm-d3f02a91c5b8");

/// The setting names the temp folder of the last run, which is gone. Others could make a folder of that
/// name, and the companion would run what lies there.
void forgetTool()
{
    SettingsStore store;
    if (!store.text(key::SmartctlFolderPath).isEmpty())
        store.write(key::SmartctlFolderPath, QString());
}

/// Says why the program does not start, and ends it.
[[noreturn]] void refuse(QMessageBox::Icon icon, const char *reason, int code)
{
    QMessageBox box(icon, QString(), QCoreApplication::translate("QObject", reason), QMessageBox::Ok);
    box.exec();
    std::exit(code);
}

void comeToFront()
{
    const auto raise = [](QWidget *window) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
    };
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window->windowType() != Qt::ToolTip && window->windowType() != Qt::Popup)
            raise(window);
    }
    // A question stays above the window that waits for its answer.
    if (QWidget *question = QApplication::activeModalWidget())
        raise(question);
}

} // namespace

int runApplication(int argc, char **argv)
{
    Platform &platform = Platform::current();
    QApplication application(argc, argv);
    startlook::install();
    // Windows hide and come back while the splash lives on; only the close question ends the program.
    QApplication::setQuitOnLastWindowClosed(false);

    g_strStartArgument = QCoreApplication::arguments().value(1);
    g_strRunMode = g_strStartArgument;
    startup::readSettings();
    startlook::speak();

    if (!platform.TakeInstance(InstanceKey))
        refuse(QMessageBox::Information,
               QT_TRANSLATE_NOOP("QObject",
                                 "Velmora Halvane already running. Cannot start more than one instance "
                                 "of the application."),
               0);
    forgetTool();
    // Without a temp folder no tool can be run.
    if (platform.GetTempPathW().isEmpty())
        refuse(QMessageBox::Critical,
               QT_TRANSLATE_NOOP("QObject",
                                 "Velmora Halvane cannot start: there is no folder for its temporary "
                                 "files that other users cannot change."),
               1);
    startup::readMachine();

    (new QWaitClass)->show();
    platform.WhenWanted(&comeToFront);
    return QApplication::exec();
}
