// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/DesktopNotes.h"
#include "platform/linux/UserFolders.h"
#include "tests/support/Files.h"
#include "tests/support/LinuxPlaces.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

/// What the Linux platform keeps for its user: folders, settings, the logon task.
class tst_LinuxUser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("HALVANE_DISKS", m_home.filePath("none.img").toUtf8()); }
    void init() { m_folder.reset(new QTemporaryDir); }

    void privateFolder_data()
    {
        QTest::addColumn<QByteArray>("made"); // by the shell
        QTest::addColumn<bool>("taken");
        const auto row = [](const char *made, bool taken) {
            QTest::newRow(made) << QByteArray(made) << taken;
        };
        row("true", true);
        row("mkdir -m 0700 private", true);
        row("mkdir -m 0755 private", false);
        row("mkdir -m 0700 other && ln -s other private", false);
        row("touch private", false);
        row("mkdir -m 0700 private && chown 12345 private", false);
    }

    void privateFolder()
    {
        QFETCH(QByteArray, made);
        QFETCH(bool, taken);
        if (made.contains("chown") && geteuid() != 0)
            QSKIP("only root can give a folder away");
        QCOMPARE(std::system(("cd " + m_folder->path().toUtf8() + " && " + made).constData()), 0);
        QCOMPARE(folders::ensurePrivate(path("private")).isEmpty(), taken);
        struct stat status = {};
        QCOMPARE(stat(QFile::encodeName(path("private")).constData(), &status), 0);
        if (taken)
            QCOMPARE(status.st_mode & 07777, 0700u);
    }

    void tempFolder()
    {
        const auto pc = linuxPcIn(m_home.path());
        QCOMPARE(pc->GetTempPathW(), m_home.path() + "/velmora-halvane/");
        // If that folder cannot be used, a fresh one is made.
        QVERIFY(QFile::link(m_home.path(), path("spoilt")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("temp folder cannot be used: .*/spoilt: "));
        const QString fresh = folders::chooseTemp({path("spoilt")});
        QVERIFY(fresh.startsWith("/tmp/velmora-halvane-") && QDir().rmdir(fresh));
        // A path on C: leads below the root folder, not into the temp folder.
        QCOMPARE(pc->NativePath("C:\\updatetmps\\a"), "/updatetmps/a");
    }

    void historyFolder()
    {
        const auto pc = linuxPcIn(m_home.path());
        QCOMPARE(pc->HistoryFolder(m_folder->path()), path("history"));
        const QString own = m_home.filePath("data/velmora-halvane/history");
        QCOMPARE(pc->HistoryFolder("/usr/bin"), own);
        QVERIFY(QFileInfo(own).isDir());
        QCOMPARE(pc->HistoryFolder(path("missing")), own);
    }

    void logonEntry()
    {
        const LogonTask task{"VelmoraSMART", "anna", path("My 50% $App\\VelmoraSMART.exe"), "Schedular"};
        const QString program = path("My 50% $App/VelmoraSMART");
        QVERIFY(QDir().mkpath(path("My 50% $App")) && writeFile(program, {}));
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));

        const auto pc = linuxPcIn(m_home.path());
        pc->CreateLogonTask(task);
        const QString entry = m_home.filePath("config/autostart/VelmoraSMART.desktop");
        const QByteArray text = contentOf(entry);
        QVERIFY2(text.startsWith("[Desktop Entry]\nType=Application\nName=VelmoraSMART\nExec=\"" +
                                 m_folder->path().toUtf8() +
                                 "/My 50%% \\\\$App/VelmoraSMART\" \"Schedular\"\n"),
                 text.constData());
        pc->DeleteLogonTask(task.name);
        QVERIFY(!QFile::exists(entry));
    }

    void settings()
    {
        const auto pc = linuxPcIn(m_home.path());
        const QString key = "HKEY_LOCAL_MACHINE\\Software\\Velmora\\Probe";
        pc->OpenSettings(key)->setValue("TempValue", "7");
        const auto store = pc->OpenSettings(key);
        QCOMPARE(store->value("TempValue"), QVariant("7"));
        QVERIFY(store->fileName().startsWith(m_home.path()));
        QVERIFY(!pc->OpenSettings({})->contains("TempValue"));
    }

    /// The desktop would take the second text for markup, and both for options.
    void notice()
    {
        QCOMPARE(desktopnotes::notifyArguments("-t", "<a href='x'>&\\n").mid(2),
                 (QStringList{"--", "-t", "&lt;a href='x'>&amp;\\\\n"}));
    }

private:
    QString path(const char *name) const { return m_folder->filePath(name); }

    QTemporaryDir m_home;
    QScopedPointer<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_LinuxUser)
#include "tst_LinuxUser.moc"
