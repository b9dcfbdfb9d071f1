// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/UserFolders.h"
#include "tests/support/LinuxPlaces.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace
{

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

} // namespace

/// What the Linux platform keeps for its user: folders, settings, the logon task.
class tst_LinuxUser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void privateFolder_data();
    void privateFolder();
    void tempFolder();
    void historyFolder();
    void logonEntry();
    void settings();

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }

    QTemporaryDir m_home;
    QScopedPointer<QTemporaryDir> m_folder;
};

void tst_LinuxUser::initTestCase()
{
    QVERIFY(m_home.isValid());
    qputenv("HALVANE_DISKS", m_home.filePath(QStringLiteral("none.img")).toUtf8());
}

void tst_LinuxUser::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
}

void tst_LinuxUser::privateFolder_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("expected");
    QTest::newRow("missing") << QString() << true;
    QTest::newRow("own and closed") << QStringLiteral("0700") << true;
    QTest::newRow("open to others") << QStringLiteral("0755") << false;
    QTest::newRow("link to a closed folder") << QStringLiteral("link") << false;
    QTest::newRow("file") << QStringLiteral("file") << false;
    QTest::newRow("of another user") << QStringLiteral("owner") << false;
}

void tst_LinuxUser::privateFolder()
{
    QFETCH(QString, kind);
    QFETCH(bool, expected);
    const QByteArray folder = path("private").toUtf8();
    const QByteArray other = path("other").toUtf8();
    if (kind == QLatin1String("0700") || kind == QLatin1String("owner"))
        QCOMPARE(mkdir(folder.constData(), 0700), 0);
    if (kind == QLatin1String("0755")) {
        QCOMPARE(mkdir(folder.constData(), 0700), 0);
        QCOMPARE(chmod(folder.constData(), 0755), 0);
    }
    if (kind == QLatin1String("link")) {
        QCOMPARE(mkdir(other.constData(), 0700), 0);
        QCOMPARE(symlink(other.constData(), folder.constData()), 0);
    }
    if (kind == QLatin1String("file"))
        writeFile(path("private"), "x");
    if (kind == QLatin1String("owner") && chown(folder.constData(), 12345, 12345) != 0)
        QSKIP("only root can give a folder away");
    QCOMPARE(folders::ensurePrivate(path("private")).isEmpty(), expected);
    struct stat status = {};
    QCOMPARE(stat(folder.constData(), &status), 0);
    if (expected)
        QCOMPARE(status.st_mode & 07777, 0700u);
}

void tst_LinuxUser::tempFolder()
{
    const auto pc = linuxPcIn(m_home.path());
    QCOMPARE(pc->GetTempPathW(), m_home.path() + QStringLiteral("/velmora-halvane/"));
    // If that folder cannot be used, a fresh one is made.
    QVERIFY(QFile::link(m_home.path(), path("spoilt")));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("temp folder cannot be used: .*/spoilt: ")));
    const QString fresh = folders::chooseTemp({path("spoilt")});
    QVERIFY(fresh.startsWith(QLatin1String("/tmp/velmora-halvane-")) && QDir().rmdir(fresh));
    // A path on C: leads below the root folder, not into the temp folder.
    QCOMPARE(pc->NativePath(QStringLiteral("C:\\updatetmps\\a")), QStringLiteral("/updatetmps/a"));
}

void tst_LinuxUser::historyFolder()
{
    const auto pc = linuxPcIn(m_home.path());
    QCOMPARE(pc->HistoryFolder(m_folder->path()), path("history"));
    const QString own = m_home.filePath(QStringLiteral("data/velmora-halvane/history"));
    QCOMPARE(pc->HistoryFolder(QStringLiteral("/usr/bin")), own);
    QVERIFY(QFileInfo(own).isDir());
    QCOMPARE(pc->HistoryFolder(path("missing")), own);
}

void tst_LinuxUser::logonEntry()
{
    LogonTask task{QStringLiteral("VelmoraSMART"), QStringLiteral("anna"),
                   path("My 50% $App\\VelmoraSMART.exe"), QStringLiteral("Schedular")};
    QDir().mkpath(path("My 50% $App"));
    const QString program = path("My 50% $App/VelmoraSMART");
    writeFile(program, "");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);

    const auto pc = linuxPcIn(m_home.path());
    pc->CreateLogonTask(task);
    const QString entry = m_home.filePath(QStringLiteral("config/autostart/VelmoraSMART.desktop"));
    const QByteArray exec =
        "\nExec=\"" + m_folder->path().toUtf8() + "/My 50%% \\\\$App/VelmoraSMART\" \"Schedular\"\n";
    QVERIFY2(contentOf(entry).contains(exec), contentOf(entry).constData());
    QVERIFY(contentOf(entry).startsWith("[Desktop Entry]\nType=Application\nName=VelmoraSMART\n"));
    pc->DeleteLogonTask(task.name);
    QVERIFY(!QFile::exists(entry));
    pc->DeleteLogonTask(task.name);
}

void tst_LinuxUser::settings()
{
    const auto pc = linuxPcIn(m_home.path());
    const QString key = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Velmora\\Probe");
    {
        const auto store = pc->OpenSettings(key);
        store->setValue(QStringLiteral("TempValue"), QStringLiteral("7"));
        store->setValue(QStringLiteral("EN/rxVersion"), 11);
    }
    const auto store = pc->OpenSettings(key);
    QCOMPARE(store->value(QStringLiteral("TempValue")).type(), QVariant::String);
    QCOMPARE(store->value(QStringLiteral("EN/rxVersion")), QVariant(11));
    QVERIFY(QFileInfo(store->fileName()).filePath().startsWith(m_home.path()));
    QVERIFY(!pc->OpenSettings(QString())->contains(QStringLiteral("TempValue")));
}

QTEST_GUILESS_MAIN(tst_LinuxUser)
#include "tst_LinuxUser.moc"
