// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Startup.h"

#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Languages.h"
#include "state/Product.h"
#include "state/SettingsStore.h"

#include <QCoreApplication>

namespace
{

void setDefaults()
{
    languages::setFlag(-1);
    g_strApplicationFolder = QCoreApplication::applicationDirPath();
    g_App.m_bStandalone = product::Standalone;
    g_App.m_bKorvaneBrand = product::SecondBrand;
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

} // namespace

namespace startup
{

void readSettings()
{
    setDefaults();
    // The tools beside the program are called without a folder.
    Platform::current().SetCurrentDirectoryW(g_strApplicationFolder);
    chooseRegistryPaths();
    languages::setFlag(readStartSettings());
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

} // namespace startup
