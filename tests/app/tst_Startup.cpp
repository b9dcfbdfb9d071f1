// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/DescribedFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

/// The program as a process: its single instance, and its end where there is nothing to show.
class tst_Startup : public QObject
{
    Q_OBJECT

private slots:
    void secondInstanceIsRefused();
    void startsAgainAfterAKill();
    void anotherPcRunsBesideIt();
    void brokenDescriptionEndsTheProgram();

private:
    static QProcessEnvironment environment(const DescribedFolder &folder);
    /// Starts the program and waits until its splash is shown.
    static void startProgram(QProcess &process, const DescribedFolder &folder, int expectedStarts);
    static int starts(const DescribedFolder &folder);
};

namespace
{
const QByteArray Description =
    R"({"name": "Start PC", "pauses": false, "disks": [], "volumes": [], "settings": {"TempValue": "C"}})";
/// Where the program was gathered with its plug-ins, it is taken from there: an administrator's program does
/// not look for them elsewhere.
QString built(const QString &gathered, const QString &name)
{
    const QString path = QCoreApplication::applicationDirPath() + gathered + name + QStringLiteral(".exe");
    return QFileInfo::exists(path) ? path : QStringLiteral(HALVANE_BIN "/") + name;
}
QString program()
{
    return built(QStringLiteral("/../"), QStringLiteral("VelmoraHalvane"));
}
QString tour()
{
    return built(QStringLiteral("/"), QStringLiteral("halvane_tour"));
}
} // namespace

QProcessEnvironment tst_Startup::environment(const DescribedFolder &folder)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("HALVANE_PC"), folder.path());
    env.insert(QStringLiteral("HALVANE_PC_STATE"), folder.state());
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    return env;
}

int tst_Startup::starts(const DescribedFolder &folder)
{
    // Only the splash asks the machine to stay awake.
    return DescribedFolder::contents(folder.state() + QStringLiteral("/execution-state.log"))
        .count("0x80000041");
}

void tst_Startup::startProgram(QProcess &process, const DescribedFolder &folder, int expectedStarts)
{
    process.setProcessEnvironment(environment(folder));
    process.start(program(), QStringList());
    QVERIFY(process.waitForStarted());
    QTRY_COMPARE_WITH_TIMEOUT(starts(folder), expectedStarts, 20000);
}

void tst_Startup::secondInstanceIsRefused()
{
    DescribedFolder folder;
    folder.add(QStringLiteral("pc.json"), Description);
    QProcess first;
    startProgram(first, folder, 1);

    QTemporaryDir out;
    QProcess second;
    second.setProcessEnvironment(environment(folder));
    second.start(tour(), {out.path() + QStringLiteral("/out")});
    QVERIFY(second.waitForFinished(60000));
    const QByteArray screens = DescribedFolder::contents(out.path() + QStringLiteral("/out/screens.json"));
    QVERIFY(screens.contains("dialog:QMessageBox"));
    QVERIFY(screens.contains(
        "Velmora Halvane already running. Cannot start more than one instance of the application."));
    QCOMPARE(starts(folder), 1);
    QCOMPARE(first.state(), QProcess::Running);
}

void tst_Startup::startsAgainAfterAKill()
{
    DescribedFolder folder;
    folder.add(QStringLiteral("pc.json"), Description);
    for (const int start : {1, 2}) {
        QProcess process;
        startProgram(process, folder, start);
        process.kill();
        QVERIFY(process.waitForFinished());
    }

    const QString setpriv = QStandardPaths::findExecutable(QStringLiteral("setpriv"));
    if (setpriv.isEmpty() || QFileInfo(folder.path()).ownerId() != 0)
        QSKIP("another user is for root to become");
    const QString user = QStringLiteral("12345");
    QProcess::execute(QStringLiteral("chown"),
                      {QStringLiteral("-R"), user, folder.path(), QFileInfo(folder.state()).path()});
    QProcess other;
    other.setProcessEnvironment(environment(folder));
    other.start(setpriv, {QStringLiteral("--reuid=") + user, QStringLiteral("--clear-groups"), program()});
    QTRY_COMPARE_WITH_TIMEOUT(starts(folder), 3, 20000);
}

void tst_Startup::anotherPcRunsBesideIt()
{
    DescribedFolder one;
    DescribedFolder two;
    one.add(QStringLiteral("pc.json"), Description);
    two.add(QStringLiteral("pc.json"), Description);
    QProcess first;
    QProcess second;
    startProgram(first, one, 1);
    startProgram(second, two, 1);
    QCOMPARE(first.state(), QProcess::Running);
}

void tst_Startup::brokenDescriptionEndsTheProgram()
{
    DescribedFolder folder;
    folder.add(QStringLiteral("pc.json"), R"({"disks": [{"number": 0, "sectors": "many"}]})");
    QProcess process;
    process.setProcessEnvironment(environment(folder));
    process.start(program(), QStringList());
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 2);
    const QByteArray error = process.readAllStandardError();
    QCOMPARE(error.count('\n'), 1);
    QVERIFY2(error.contains("pc.json") && error.contains("disks[0].sectors"), error.constData());
}

QTEST_GUILESS_MAIN(tst_Startup)
#include "tst_Startup.moc"
