// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/Monitor.h"
#include "state/GlobalApp.h"
#include "tests/platform/DescribedFolder.h"

#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

Q_DECLARE_METATYPE(DiskSummary)

namespace
{

const QDateTime Now = QDateTime::fromSecsSinceEpoch(1700000000);

DiskSummary disk()
{
    DiskSummary summary;
    summary.number = 3;
    summary.model = QStringLiteral("TX2 \\ \"fast\"\n");
    summary.serial = QStringLiteral("S1");
    summary.answer = summary.reading.answer = DiskReading::Answer::Report;
    summary.state = DiskState::Ok;
    summary.reading.celsius = 40;
    summary.setLimits.warning = 45;
    return summary;
}

/// The values of a disk's metric, with the labels that only this metric has.
QString valuesOf(const QByteArray &text, const QByteArray &metric)
{
    QStringList values;
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith("halvane_disk_" + metric + '{'))
            values << line.mid(line.indexOf("interface=\"\"") + 12).replace("} ", " ").trimmed();
    }
    return values.join(' ');
}

QByteArray textOf(const DiskSummary &summary)
{
    return metrics::text({summary}, {}, {}, Now);
}

struct Silent : MonitorListener {
    void tell(const WatchEvent &) override {}
};

} // namespace

class TestMetrics : public QObject
{
    Q_OBJECT

private slots:
    void figures_data()
    {
        using Change = void (*)(DiskSummary &);
        QTest::addColumn<QByteArray>("metric");
        QTest::addColumn<QString>("values");
        QTest::addColumn<DiskSummary>("summary");
        const auto row = [](const char *metric, const char *values, Change change) {
            DiskSummary summary = disk();
            change(summary);
            QTest::addRow("%s %s", metric, values) << QByteArray(metric) << QString(values) << summary;
        };
        row("up", "1", [](DiskSummary &) {});
        row("up", "0", [](DiskSummary &each) { each.answer = DiskReading::Answer::NoAnswer; });
        row("temperature_celsius", "40", [](DiskSummary &) {});
        row("temperature_celsius", "",
            [](DiskSummary &each) { each.answer = DiskReading::Answer::NoAnswer; });
        row("asleep", "1", [](DiskSummary &each) { each.answer = DiskReading::Answer::Asleep; });
        row("up", "", [](DiskSummary &each) { each.missing = true; });
        row("up", "", [](DiskSummary &each) { each.asked = false; });
        row("health_ratio", "", [](DiskSummary &each) { // of an earlier run
            each.reading.health = 97;
            each.asked = each.listed = false;
        });
        row("verdict", "",
            [](DiskSummary &each) { each.reading.answer = DiskReading::Answer::NotSupported; });
        row("verdict", ",verdict=\"passed\" 0 ,verdict=\"failed\" 1",
            [](DiskSummary &each) { each.reading.verdict = DriveVerdict::Failed; });
        row("state",
            ",state=\"failing\" 0 ,state=\"noAnswer\" 0 ,state=\"warning\" 0 ,state=\"ok\" 1 "
            ",state=\"asleep\" 0 ,state=\"notSupported\" 0",
            [](DiskSummary &) {});
        row("temperature_limit_celsius", ",limit=\"warning\" 45", [](DiskSummary &) {});
        row("health_ratio", "0.97", [](DiskSummary &each) { each.reading.health = 97; });
        row("life_seconds", "86400", [](DiskSummary &each) { each.reading.lifeDays = 1; });
        row("written_bytes_total", "9977455616000", [](DiskSummary &each) {
            each.reading.written = writtenOf({{0, "Data Units Written", 0, 0, 0, "19’487’218 [9.97 TB]"}});
        });
        row("written_bytes_total", "67108864", [](DiskSummary &each) {
            each.reading.written = writtenOf({{241, "Host Writes 32MiB", 0, 0, 0, "2"}});
        });
        row("self_test_failed", "", [](DiskSummary &) {});
        row("self_test_failed", "0", [](DiskSummary &each) { each.reading.selfTestMark = "a"; });
        row("self_test_age_seconds", "7200", [](DiskSummary &each) { // the log's hours have begun anew
            each.reading.selfTestHours = 1;
            each.reading.powerOnHours = 65539;
        });
        row("scan_bad_sectors", "8", [](DiskSummary &each) { each.scan = LastScan{1700000000000, 8}; });
        row("scan_timestamp_seconds", "1700000000", [](DiskSummary &each) {
            each.scan = LastScan{1700000000000, 8};
        });
    }

    void figures()
    {
        QFETCH(QByteArray, metric);
        QFETCH(DiskSummary, summary);
        QTEST(valuesOf(textOf(summary), metric), "values");
    }

    void labels()
    {
        QVERIFY(textOf(disk()).contains("halvane_disk_up{disk=\"3\",model=\"TX2 \\\\ "
                                        "\\\"fast\\\"\",serial=\"S1\",firmware=\"\",interface=\"\"} 1\n"));
    }

    /// The companion's own file: a whole scan is in it, and a disk that goes is not. Without a list of the
    /// disks it stays as it is.
    void fileOfEachRound()
    {
        const DescribedFolder folder;
        folder.add("a.txt", contentOf(HALVANE_TEST_DATA "/smart/ata-wdc-wd10ezex-readfail.txt"));
        folder.add("b.txt", contentOf(HALVANE_TEST_DATA "/smart/nvme-win-samsung-980pro-1tb.txt"));
        auto opened = folder.open(R"({"settings": {"MetricsPath": "C:\\halvane.prom", "DontShow": 1},
            "volumes": [{"letter": "D", "label": "Data", "size": 100, "free": 40, "fileSystem": "NTFS"},
                        {"letter": "E", "type": "remote", "size": 100}],
            "disks": [{"number": 0, "report": "a.txt"}, {"number": 1, "report": "b.txt"}]})");
        const SimulatedPlatform &pc = *opened;
        Platform::install(std::move(opened));
        ScanRecord scan;
        scan.serial = QStringLiteral("WD-WUG7R5732226");
        for (const auto end : {ScanRecord::End::Complete, ScanRecord::End::Stopped}) {
            scan.end = end;
            lastscan::keep(scan, end == ScanRecord::End::Complete ? 5 : 0);
        }
        g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Velmora Halvane for Windows");
        Silent listener;
        Monitor monitor(listener);
        const QString file = pc.NativePath("C:/halvane.prom");
        const QString unfinished = QFileInfo(file).path() + "/.halvane-" + QString(32, 'a');
        QVERIFY(writeFile(unfinished, "") && setAge(unfinished, 90));
        monitor.round(Now);
        const QByteArray text = contentOf(file);
        QVERIFY(!QFile::exists(unfinished));
        const int disks = text.count("\nhalvane_disk_up{");
        QCOMPARE(disks, 2);
        QVERIFY(text.contains("\nhalvane_tool_runs_total 2\n"));
        QVERIFY(text.contains("\nhalvane_last_round_timestamp_seconds 1700000000\n"));
        QVERIFY(text.contains(
            "\nhalvane_volume_free_bytes{volume=\"D:\",label=\"Data\",file_system=\"NTFS\"} 40\n"));
        QVERIFY(!text.contains("\"E:\""));
        QVERIFY(text.contains(",limit=\"warning\"} 45\n")); // whether or not the user is warned
        QCOMPARE(text.count("halvane_disk_scan_bad_sectors{"), 1);
        QVERIFY(text.count("\nhalvane_disk_") + text.count("\nhalvane_volume_") < 40 * disks);
        checkByTool(text);

        QVERIFY(Platform::current().deviceNotifier());
        const auto remove = [&folder](const char *disk) {
            const QString touched = folder.state() + "/volumes-changed/remove-" + disk;
            QVERIFY(writeFile(touched, ""));
            QTRY_VERIFY(!QFile::exists(touched));
        };
        remove("disk1");
        monitor.devicesChanged(true);
        monitor.round(Now.addSecs(60)); // a lost disk is looked for twice
        monitor.round(Now.addSecs(120));
        QCOMPARE(contentOf(file).count("\nhalvane_disk_up{"), 1);
        QVERIFY(!contentOf(file).contains("980 PRO"));
        remove("disk0"); // of a table without any disk, as at a logon, nothing is believed
        const QByteArray before = contentOf(file);
        Monitor next(listener);
        next.round(Now.addSecs(180));
        QCOMPARE(contentOf(file), before);
        for (const char *nowhere : {"halvane.prom", "M:\\halvane.prom"})
            metrics::save(nowhere, {}, {}, Now);
        QVERIFY(!QFile::exists("halvane.prom") && !QFile::exists(pc.NativePath("M:/")));
    }

private:
    static bool setAge(const QString &path, int seconds)
    {
        QFile file(path);
        return file.open(QIODevice::ReadWrite) &&
               file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds),
                                QFileDevice::FileModificationTime);
    }

    /// The engine's own opinion, where it is installed.
    static void checkByTool(const QByteArray &text)
    {
        const QString tool = QStandardPaths::findExecutable("promtool");
        if (tool.isEmpty())
            return;
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(tool, {"check", "metrics"});
        process.write(text);
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.readAll(), QByteArray());
        QCOMPARE(process.exitCode(), 0);
    }
};

QTEST_GUILESS_MAIN(TestMetrics)
#include "tst_Metrics.moc"
