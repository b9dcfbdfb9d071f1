// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/DeviceLoad.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Languages.h"
#include "tests/platform/DescribedFolder.h"
#include "ui/widgets/MyButton.h"
#include "ui/window/MainWindow.h"

#include <QtTest>

/// The real window on a described PC of its own for each test.
class WindowFixture
{
protected:
    static void setUpProgram()
    {
        Q_INIT_RESOURCE(images);
        // A test cannot use a file dialog of the system.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        g_App.m_fScale = 1.0F;
        g_App.m_bUse64BitTool = true;
        languages::setFlag(0);
    }

    void addReport(const char *name, const QByteArray &contents) const
    {
        if (contents.isEmpty())
            qFatal("no report: %s", name);
        m_pFolder->add(QLatin1String(name), contents);
    }

    static QByteArray sample(const char *name)
    {
        return DescribedFolder::contents(QStringLiteral(HALVANE_TEST_DATA "/smart/") + QLatin1String(name));
    }

    /// Installs the PC of `json` and loads its disks. Its reports have to exist already.
    void startPc(const QByteArray &json)
    {
        auto pc = m_pFolder->open(json);
        m_strState = pc->stateFolder();
        g_App.m_strSystemFolder = pc->GetSystemDirectoryW();
        Platform::install(std::move(pc));
        g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Velmora Halvane for Windows");
        g_strStartArgument.clear();
        deviceload::loadLists();
    }

    void makeWindow()
    {
        m_pWindow = std::make_unique<MainWindow>();
        m_pWindow->show();
    }

    void tearDown()
    {
        g_bJobRunning = false;
        g_bSelfTestRunning = false;
        g_bScanResultOpen = false;
        g_bSelfTestResultOpen = false;
        m_pWindow.reset();
        g_Jobs = JobState(); // the job ended with its page
        // The refresh ended with the window, so its signal did not clear this flag.
        g_bListsLoading = false;
        g_bListsStale = false;
        m_pFolder = std::make_unique<DescribedFolder>();
    }

    void waitForRead() { QTRY_VERIFY_WITH_TIMEOUT(!child<QFrame>("GifFrame")->isVisible(), 10000); }

    void select(int index)
    {
        auto *combo = child<QComboBox>("DriveCombobox");
        combo->setCurrentIndex(index);
        emit combo->activated(index);
        if (child<MyButton>("DiskStatusButton")->isDown() || child<MyButton>("SmartStatusButton")->isDown())
            waitForRead();
    }

    void press(const char *button)
    {
        QTest::mousePress(child<MyButton>(button), Qt::LeftButton);
        QTest::mouseRelease(child<MyButton>(button), Qt::LeftButton);
    }

    /// How often a repeating test runs; HALVANE_ROUNDS changes the number.
    static int rounds()
    {
        const int asked = qEnvironmentVariableIntValue("HALVANE_ROUNDS");
        return asked > 0 ? asked : 24;
    }

    template<typename Widget>
    Widget *child(const char *name = "") const
    {
        return m_pWindow->findChild<Widget *>(QLatin1String(name));
    }
    QString text(const char *label) const { return child<QLabel>(label)->text(); }
    QString image(const char *label) const { return child<QLabel>(label)->property("imagePath").toString(); }

    /// The lines of a log of the PC, without the last, empty one.
    QList<QByteArray> logLines(const char *file) const
    {
        QList<QByteArray> lines =
            DescribedFolder::contents(m_strState + QLatin1Char('/') + QLatin1String(file)).split('\n');
        lines.removeLast();
        return lines;
    }
    int commands(const QByteArray &part) const
    {
        int count = 0;
        for (const QByteArray &line : logLines("commands.log"))
            count += line.contains(part) ? 1 : 0;
        return count;
    }

    std::unique_ptr<DescribedFolder> m_pFolder = std::make_unique<DescribedFolder>();
    std::unique_ptr<MainWindow> m_pWindow;
    QString m_strState;
};
