// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

#include "app/QWaitClass.h"
#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"
#include "ui/widgets/Style.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QMessageBox>

#include <cstdlib>

// A resource of a static library has to be asked for from outside any namespace.
static void initialiseResources()
{
    Q_INIT_RESOURCE(images);
}

namespace
{

const QString InstanceKey = QStringLiteral("7c41e9d2-a06b-4f37-66mm-d3f02a91c5b8");

void substituteFonts()
{
    // The families behind the first one supply the letters that it lacks. Without one for Chinese the
    // system takes any, often with Japanese shapes.
    const QStringList chinese =
        g_App.m_bChinese ? QStringList{QStringLiteral("Microsoft YaHei"), QStringLiteral("Noto Sans CJK SC")}
                         : QStringList();
    QFont::insertSubstitutions(QStringLiteral("Segoe UI"),
                               QStringList{QStringLiteral("Open Sans")} + chinese);
}

void setDefaults()
{
    languages::setFlag(-1);
    g_strApplicationFolder = QCoreApplication::applicationDirPath();
    g_App.m_bStandalone = true;
    g_App.m_bKorvaneBrand = false;
    g_App.m_bHelpOnline = true;
    g_App.m_bShowLanguageMenu = true;
    g_App.m_bWriteSiblingLanguage = true;
    g_App.m_strSibling1 = QStringLiteral("VelmoraDataRescue.exe");
    g_App.m_strSibling2 = QStringLiteral("VelmoraFilmMender.exe");
    g_App.m_strSibling3 = QStringLiteral("VelmoraSnapshotMender.exe");
}

/// The registry paths by packaging and brand. Every settings object opens the one with the redirection node.
void chooseRegistryPaths()
{
    const bool korvane = g_App.m_bKorvaneBrand && !g_App.m_bStandalone;
    const QString machine = QStringLiteral("HKEY_LOCAL_MACHINE\\");
    const QString maker = korvane               ? QStringLiteral("Kestrin Korvane\\EasyMend\\")
                          : g_App.m_bStandalone ? QStringLiteral("Velmora Data Rescue\\")
                                                : QStringLiteral("Velmora Data Rescue\\Data Rescue\\");
    const QString brand = korvane ? QStringLiteral("Korvane ") : QStringLiteral("Velmora ");
    const QString redirected = machine + QStringLiteral("Software\\Wow6432Node\\") + maker;
    const QString native = machine + (korvane ? QStringLiteral("Software\\") : QStringLiteral("SOFTWARE\\"));
    g_App.m_strSettingsPath = redirected + brand + QStringLiteral("Halvane for Windows");
    g_App.m_strNativeSettingsPath = native + maker + brand + QStringLiteral("Halvane for Windows");
    if (g_App.m_bStandalone)
        return;
    g_App.m_strSiblingKey1 = redirected + brand + QStringLiteral("Data Rescue for Windows");
    g_App.m_strSiblingKey2 = redirected + brand + QStringLiteral("Film Mender for Windows");
    g_App.m_strSiblingKey3 = redirected + brand + QStringLiteral("Snapshot Mender for Windows");
}

/// Takes the run mode from the settings, and gives the type of the language.
int readStartSettings()
{
    const SettingsStore store;
    const QString scheduled = QStringLiteral("Schedular");
    g_strRunMode = store.text(key::TaskName) == scheduled ? scheduled : QString();
    return store.text(key::LanguageType).toInt();
}

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

void readMachine()
{
    Platform &platform = Platform::current();
    g_App.m_strUserName = platform.GetUserNameW();
    g_App.m_bUse64BitTool = true;
    g_App.m_strApplicationFolder = g_strApplicationFolder;
    g_App.m_strAppFolderCopy = g_strApplicationFolder;
    g_App.m_strSystemFolder = platform.GetSystemDirectoryW();
}

} // namespace

int runApplication(int argc, char **argv)
{
    Platform &platform = Platform::current();
    QApplication application(argc, argv);
    initialiseResources();
    QApplication::setPalette(style::lightPalette());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/img_AppIcon.png")));
    // Windows hide and come back while the splash lives on; only the close question ends the program.
    QApplication::setQuitOnLastWindowClosed(false);

    g_strStartArgument = QCoreApplication::arguments().value(1);
    g_strRunMode = g_strStartArgument;
    setDefaults();
    // The tools beside the program are called without a folder.
    platform.SetCurrentDirectoryW(g_strApplicationFolder);
    chooseRegistryPaths();
    languages::setFlag(readStartSettings());
    substituteFonts();
    languages::setOffered();
    languages::loadAtStart();

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
    readMachine();

    (new QWaitClass)->show();
    return QApplication::exec();
}
