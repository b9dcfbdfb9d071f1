// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/Tray.h"
#include "companion/TrayPicture.h"
#include "state/GlobalApp.h"
#include "state/SettingsStore.h"
#include "state/StartArgument.h"
#include "tests/platform/DescribedFolder.h"

#include <QApplication>
#include <QSignalSpy>
#include <QtTest>

/// The watch, the tray and the program together, on a described PC whose disk has three things to tell.
class tst_Tray : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        Q_INIT_RESOURCE(images);
        g_App.m_strApplicationFolder = "C:\\Halvane";
        g_App.m_strSettingsPath = "HKEY_LOCAL_MACHINE\\Velmora Halvane for Windows";
        g_App.m_bUse64BitTool = true;
        m_folder = std::make_unique<DescribedFolder>();
        m_folder->add("a.txt", contentOf(HALVANE_TEST_DATA "/smart/ata-wdc-wd10ezex-readfail.txt"));
        Platform::install(m_folder->open(R"({"disks": [{"number": 2, "report": "a.txt"}]})"));
        m_watch = std::make_unique<Watch>();
        m_tray = std::make_unique<Tray>(m_watch.get(), true);
    }

    void messages()
    {
        if (QSystemTrayIcon::isSystemTrayAvailable())
            QSKIP("a desktop with a tray shows the messages itself");
        QSignalSpy looked(m_watch.get(), &Watch::looked);
        auto *icon = m_tray->findChild<QSystemTrayIcon *>();
        m_watch->start();
        QTRY_COMPARE(looked.count(), 1);
        const auto shown = [this] { return contentOf(m_folder->state() + "/notices.log").count('\t'); };
        QCOMPARE(shown(), 1); // the others wait
        emit icon->messageClicked();
        const QString start = "\tC:\\Halvane\\VelmoraHalvane.exe\t" + startargument::forDisk(2) + '\n';
        QCOMPARE(opened(), start.toUtf8());
        QCOMPARE(shown(), 2);
        const auto passes = [this] {
            for (QTimer *timer : m_tray->findChildren<QTimer *>())
                QMetaObject::invokeMethod(timer, timer->isActive() ? "timeout" : "stop");
        };
        passes();
        QCOMPARE(shown(), 3);
        passes();
        // It is off the screen, but the system may still list it.
        for (int click = 0; click < 2; ++click)
            emit icon->messageClicked();
        QCOMPARE(opened(), (start + start).toUtf8());
        m_watch->refresh();
        QTRY_COMPARE(looked.count(), 2);
        const auto view = looked.last().at(0).value<WatchView>();
        QCOMPARE(view.disks.at(0).unseen.size(), size_t(1));
        QCOMPARE(view.disks.at(0).unseen.at(0).kind, EventKind::Pending);
        QCOMPARE(icon->icon().pixmap(32).toImage(),
                 traypicture::icon(traystate::iconOf(view, false), true).pixmap(32).toImage());
    }

    void menu()
    {
        QSignalSpy paused(m_tray.get(), &Tray::paused);
        m_watch->start();
        for (const char *text :
             {"Open", "Settings", "Show lowest health", "Pause alarms for an hour", "Quit"}) {
            for (const QWidget *menu : QApplication::topLevelWidgets()) {
                for (QAction *action : menu->actions()) {
                    if (action->text() == QLatin1String(text))
                        action->trigger();
                }
            }
        }
        const QString program = "\tC:\\Halvane\\VelmoraHalvane.exe\t";
        QCOMPARE(opened(), (program + '\n' + program + startargument::ForSettings + '\n').toUtf8());
        QVERIFY(SettingsStore().flag(key::TrayHealth));
        QVERIFY(Platform::current().OpenSettings(g_App.m_strSettingsPath)->contains("TrayQuit"));
        QVERIFY(paused.last().at(0).toBool());
        cleanup();
        m_watch = std::make_unique<Watch>(); // the next run goes on with the pause
        QVERIFY(m_watch->pausedUntil() > Platform::current().Now());
    }

    void withoutTheTray()
    {
        const auto *icon = m_tray->findChild<QSystemTrayIcon *>();
        m_tray->show();
        QVERIFY(icon->isVisible());
        SettingsStore().write(key::MetricsPath, "C:\\halvane.prom");
        for (const int wanted : {0, 1}) {
            SettingsStore().write(key::ShowTrayIcon, wanted);
            m_tray->show();
            QCOMPARE(icon->isVisible(), wanted == 1);
        }
    }

    void cleanup()
    {
        m_tray.reset();
        m_watch.reset();
    }

private:
    QByteArray opened() const { return contentOf(m_folder->state() + "/opened.log"); }

    std::unique_ptr<DescribedFolder> m_folder;
    std::unique_ptr<Watch> m_watch;
    std::unique_ptr<Tray> m_tray;
};

QTEST_MAIN(tst_Tray)
#include "tst_Tray.moc"
