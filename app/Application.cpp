// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

#include "app/QWaitClass.h"
#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"

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
    QFont::insertSubstitutions(QStringLiteral("Segoe UI SemiBold"),
                               QStringList{QStringLiteral("Open Sans SemiBold")} + chinese);
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
    struct Paths {
        const char *redirected;
        const char *native;
    };
    static const Paths standalone = {
        "HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Velmora Data Rescue\\Velmora Halvane "
        "for Windows",
        "HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora Data Rescue\\Velmora Halvane for Windows"};
    static const Paths korvane = {
        "HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Kestrin Korvane\\EasyMend\\Korvane "
        "Halvane for Windows",
        "HKEY_LOCAL_MACHINE\\Software\\Kestrin Korvane\\EasyMend\\Korvane Halvane for Windows"};
    static const Paths bundled = {
        "HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Velmora Data Rescue\\Data "
        "Rescue\\Velmora Halvane for Windows",
        "HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora Data Rescue\\Data Rescue\\Velmora Halvane for "
        "Windows"};
    const Paths &paths = g_App.m_bStandalone ? standalone : g_App.m_bKorvaneBrand ? korvane : bundled;
    g_App.m_strSettingsPath = QLatin1String(paths.redirected);
    g_App.m_strNativeSettingsPath = QLatin1String(paths.native);
    if (g_App.m_bStandalone)
        return;
    const QString root =
        g_App.m_bKorvaneBrand
            ? QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Kestrin Korvane\\EasyMend\\")
            : QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Velmora Data Rescue\\Data Rescue\\");
    const QString brand = g_App.m_bKorvaneBrand ? QStringLiteral("Korvane ") : QStringLiteral("Velmora ");
    g_App.m_strSiblingKey1 = root + brand + QStringLiteral("Data Rescue for Windows");
    g_App.m_strSiblingKey2 = root + brand + QStringLiteral("Film Mender for Windows");
    g_App.m_strSiblingKey3 = root + brand + QStringLiteral("Snapshot Mender for Windows");
}

void readStartSettings(int *languageType)
{
    const SettingsStore store;
    *languageType = store.text(key::LanguageType).toInt();
    const QString scheduled = QStringLiteral("Schedular");
    g_strRunMode = store.text(key::TaskName) == scheduled ? scheduled : QString();
}

/// The setting names the temp folder of the program's last run. That goes now, and others could make one of
/// its name: the companion would run what lies there.
void forgetTool()
{
    SettingsStore store;
    if (!store.text(key::SmartctlFolderPath).isEmpty())
        store.write(key::SmartctlFolderPath, QString());
}

[[noreturn]] void refuseSecondInstance()
{
    QMessageBox::information(
        nullptr, QString(),
        QCoreApplication::translate(
            "QObject",
            "Velmora Halvane already running. Cannot start more than one instance of the application."),
        QMessageBox::Ok);
    std::exit(0);
}

/// Without a temp folder no tool can be run.
[[noreturn]] void refuseToStart()
{
    QMessageBox::critical(
        nullptr, QString(),
        QCoreApplication::translate(
            "QObject", "Velmora Halvane cannot start: there is no folder for its temporary files that other "
                       "users cannot change."),
        QMessageBox::Ok);
    std::exit(1);
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
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/img_AppIcon.png")));
    // Windows hide and come back while the splash lives on; only the close question ends the program.
    QApplication::setQuitOnLastWindowClosed(false);

    g_strStartArgument = QCoreApplication::arguments().value(1);
    g_strRunMode = g_strStartArgument;
    setDefaults();
    // The tools beside the program are called without a folder.
    platform.SetCurrentDirectoryW(g_strApplicationFolder);
    chooseRegistryPaths();
    int languageType = 0;
    readStartSettings(&languageType);
    languages::setFlag(languageType);
    substituteFonts();
    languages::setOffered();
    languages::loadAtStart();

    if (!platform.TakeInstance(InstanceKey))
        refuseSecondInstance();
    forgetTool();
    if (platform.GetTempPathW().isEmpty())
        refuseToStart();
    readMachine();

    auto *splash = new QWaitClass;
    splash->show();
    return QApplication::exec();
}
