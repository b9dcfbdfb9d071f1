// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/DescribedFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

namespace
{

/// Where it was gathered with its plug-ins, it is taken from there.
QString companion()
{
    const QString gathered = QCoreApplication::applicationDirPath() + "/../VelmoraSMART.exe";
    return QFileInfo::exists(gathered) ? gathered : QStringLiteral(HALVANE_BIN "/VelmoraSMART");
}

const QByteArray Description = R"({"name": "Watched PC", "pauses": false, "volumes": [], "disks": [
    {"number": 0, "model": "Tarnwell TX2 500GB", "sectors": 2048, "report": "disk.txt"}]})";

} // namespace

/// The companion as a process, on a described PC.
class tst_Resident : public QObject
{
    Q_OBJECT

private slots:
    void theSameCommandsFindAndEndIt()
    {
        const DescribedFolder folder;
        folder.add("disk.txt", "smartctl 7.3\n");
        const auto pc = folder.open(Description);
        const QString find = "S\\tasklist.exe | S\\findstr.exe VelmoraSMART.exe";
        QVERIFY(outputOf(*pc, find).isEmpty());

        QProcess first;
        first.setProcessEnvironment(folder.environment());
        first.start(companion(), {"Schedular"});
        QTRY_VERIFY_WITH_TIMEOUT(outputOf(*pc, find).startsWith("VelmoraSMART.exe"), 20000);
        QProcess second;
        second.setProcessEnvironment(folder.environment());
        second.start(companion(), QStringList());
        QVERIFY(second.waitForFinished());
        QCOMPARE(second.exitCode(), 0);
        QVERIFY(outputOf(*pc, find).startsWith("VelmoraSMART.exe"));

        pc->CreateProcessAndWait(L"CMD.EXE /c S\\Taskkill.exe /IM VelmoraSMART.exe /F", true);
        QTRY_COMPARE(first.state(), QProcess::NotRunning);
        QVERIFY(first.exitCode() != 0);
        QVERIFY(outputOf(*pc, find).isEmpty());
    }

    void onceTellsTheDisks()
    {
        const DescribedFolder folder;
        folder.add("pc.json", Description);
        folder.add("disk.txt", contentOf(HALVANE_TEST_DATA "/smart/ata-seagate-st31500341as-failed.txt"));
        const auto [code, told] = run(folder.environment(), {"--once", "--json"});
        const QJsonArray disks = QJsonDocument::fromJson(told).object().value("disks").toArray();
        QCOMPARE(disks.at(0).toObject().value("state").toString(), QString("failing"));
        QCOMPARE(code, 2);
    }

    void otherArguments()
    {
        const DescribedFolder folder;
        folder.add("pc.json", Description);
        folder.add("disk.txt", "x");
        for (const auto &[argument, begin, wanted] : {std::tuple("--version", "VelmoraSMART ", 0),
                                                      {"--help", "Usage: VelmoraSMART [--once", 0},
                                                      {"--twice", "", 3}}) {
            const auto [code, told] = run(folder.environment(), {QLatin1String(argument)});
            QCOMPARE(code, wanted);
            QVERIFY2(told.startsWith(begin) && told.isEmpty() == QByteArray(begin).isEmpty(), told);
        }
        folder.add("pc.json", "{");
        QCOMPARE(run(folder.environment(), {"--once"}).first, 4);
    }

private:
    /// Exit code and standard output on a PC without a display.
    static std::pair<int, QByteArray> run(QProcessEnvironment env, const QStringList &arguments)
    {
        for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
            env.remove(QLatin1String(name));
        QProcess process;
        process.setProcessEnvironment(env);
        process.start(companion(), arguments);
        return {process.waitForFinished() ? process.exitCode() : -1, process.readAllStandardOutput()};
    }
};

QTEST_GUILESS_MAIN(tst_Resident)
#include "tst_Resident.moc"
