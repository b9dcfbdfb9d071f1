// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/DescribedFolder.h"

#include <QProcess>
#include <QtTest>

namespace
{

/// Where the program was gathered with its plug-ins, it is taken from there: an administrator's program does
/// not look for them elsewhere.
QString built(const QString &gathered, const QString &name)
{
    const QString path = QCoreApplication::applicationDirPath() + gathered + name + QStringLiteral(".exe");
    return QFileInfo::exists(path) ? path : QStringLiteral(HALVANE_BIN "/") + name;
}

/// The program as a process on a described PC.
class Program : public QProcess
{
public:
    explicit Program(const DescribedFolder &folder)
    {
        setProcessEnvironment(folder.environment());
        setProgram(built(QStringLiteral("/../"), QStringLiteral("VelmoraHalvane")));
    }
};

/// How often a splash was shown: only the splash asks the machine to stay awake.
int starts(const DescribedFolder &folder)
{
    return contentOf(folder.state() + QStringLiteral("/execution-state.log")).count("0x80000041");
}

} // namespace

/// Its single instance, and its end where there is nothing to show.
class tst_Startup : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pFolder = std::make_unique<DescribedFolder>();
        describe(*m_pFolder);
    }

    void secondInstanceIsRefused()
    {
        Program first(*m_pFolder);
        first.start();
        QTRY_COMPARE_WITH_TIMEOUT(starts(*m_pFolder), 1, 20000);

        QTemporaryDir out;
        Program second(*m_pFolder);
        second.start(built(QStringLiteral("/"), QStringLiteral("halvane_tour")),
                     {out.path() + QStringLiteral("/out")});
        QVERIFY(second.waitForFinished(60000));
        const QByteArray screens = contentOf(out.path() + QStringLiteral("/out/screens.json"));
        QVERIFY(screens.contains("dialog:QMessageBox"));
        QVERIFY(screens.contains(
            "Velmora Halvane already running. Cannot start more than one instance of the application."));
        QCOMPARE(starts(*m_pFolder), 1);

        // Another PC runs beside it.
        const DescribedFolder other;
        describe(other);
        Program third(other);
        third.start();
        QTRY_COMPARE_WITH_TIMEOUT(starts(other), 1, 20000);
        QCOMPARE(first.state(), QProcess::Running);
    }

    void startsAgainAfterAKill()
    {
        QString error;
        const auto pc = SimulatedPlatform::open(m_pFolder->path(), m_pFolder->state(), &error);
        QVERIFY2(pc, qPrintable(error));
        for (const int start : {1, 2}) {
            Program program(*m_pFolder);
            program.start();
            QTRY_COMPARE_WITH_TIMEOUT(starts(*m_pFolder), start, 20000);
            // A program that was killed opens to nobody, and leaves its door behind.
            QTRY_VERIFY(pc->BringToFront(QString()));
            program.kill();
            QVERIFY(program.waitForFinished());
            QVERIFY(!pc->BringToFront(QString()));
        }

        const QString setpriv = QStandardPaths::findExecutable(QStringLiteral("setpriv"));
        if (setpriv.isEmpty() || QFileInfo(m_pFolder->path()).ownerId() != 0)
            QSKIP("another user is for root to become");
        const QString user = QStringLiteral("12345");
        QProcess::execute(QStringLiteral("chown"), {QStringLiteral("-R"), user, m_pFolder->path(),
                                                    QFileInfo(m_pFolder->state()).path()});
        Program other(*m_pFolder);
        other.start(setpriv, {QStringLiteral("--reuid=") + user, QStringLiteral("--clear-groups"),
                              Program(*m_pFolder).program()});
        QTRY_COMPARE_WITH_TIMEOUT(starts(*m_pFolder), 3, 20000);
    }

    void brokenDescriptionEndsTheProgram()
    {
        m_pFolder->add(QStringLiteral("pc.json"), R"({"disks": [{"number": 0, "sectors": "many"}]})");
        Program program(*m_pFolder);
        program.start();
        QVERIFY(program.waitForFinished(20000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 4);
        const QByteArray error = program.readAllStandardError();
        QCOMPARE(error.count('\n'), 1);
        QVERIFY2(error.contains("pc.json") && error.contains("disks[0].sectors"), error.constData());
    }

private:
    static void describe(const DescribedFolder &folder)
    {
        folder.add(QStringLiteral("pc.json"),
                   R"({"pauses": false, "disks": [], "volumes": [], "settings": {"TempValue": "C"}})");
    }

    std::unique_ptr<DescribedFolder> m_pFolder;
};

QTEST_GUILESS_MAIN(tst_Startup)
#include "tst_Startup.moc"
