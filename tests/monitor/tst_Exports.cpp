// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/Monitor.h"
#include "monitor/PcCollection.h"
#include "monitor/SerialMask.h"
#include "smart/AttributeHistory.h"
#include "state/GlobalApp.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/ArrowRows.h"

#include <QDirIterator>

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

/// What leaves the PC: the metrics, and a PC that is collected, and opened again as one that comes from
/// somebody else.
class TestExports : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        g_App.m_bUse64BitTool = true;
        g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Velmora Halvane for Windows");
        m_folder = std::make_unique<DescribedFolder>();
        m_out = std::make_unique<QTemporaryDir>();
    }

    /// A metric, its values, and what differs from the disk above.
    void figures()
    {
        using Change = void (*)(DiskSummary &);
        const auto row = [](const char *metric, const char *values, Change change) {
            DiskSummary summary = disk();
            change(summary);
            QCOMPARE(metric + (' ' + valuesOf(textOf(summary), metric)), QString(metric) + ' ' + values);
        };
        compareRows("Exports/figures",
                    [](const QString &metric) { return valuesOf(textOf(disk()), metric.toUtf8()); });
        row("up", "0", [](DiskSummary &each) { each.answer = DiskReading::Answer::NoAnswer; });
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
        row("health_ratio", "0.97", [](DiskSummary &each) { each.reading.health = 97; });
        row("life_seconds", "86400", [](DiskSummary &each) { each.reading.lifeDays = 1; });
        row("written_bytes_total", "9977455616000", [](DiskSummary &each) {
            each.reading.written = writtenOf({{0, "Data Units Written", 0, 0, 0, "19’487’218 [9.97 TB]"}});
        });
        row("written_bytes_total", "67108864", [](DiskSummary &each) {
            each.reading.written = writtenOf({{241, "Host Writes 32MiB", 0, 0, 0, "2"}});
        });
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

    void labels()
    {
        QVERIFY(textOf(disk()).contains("halvane_disk_up{disk=\"3\",model=\"TX2 \\\\ "
                                        "\\\"fast\\\"\",serial=\"S1\",firmware=\"\",interface=\"\"} 1\n"));
    }

    /// The companion's own file: a whole scan is in it, and a disk that goes is not. Without a list of the
    /// disks it stays as it is.
    void fileOfEachRound()
    {
        const DescribedFolder &folder = *m_folder;
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

        QVERIFY(Platform::current().deviceNotifier());
        folder.touch({"remove-disk1"});
        monitor.devicesChanged(true);
        monitor.round(Now.addSecs(60)); // a lost disk is looked for twice
        monitor.round(Now.addSecs(120));
        QCOMPARE(contentOf(file).count("\nhalvane_disk_up{"), 1);
        QVERIFY(!contentOf(file).contains("980 PRO"));
        folder.touch({"remove-disk0"}); // of a table without any disk, as at a logon, nothing is believed
        const QByteArray before = contentOf(file);
        Monitor next(listener);
        next.round(Now.addSecs(180));
        QCOMPARE(contentOf(file), before);
        for (const char *nowhere : {"halvane.prom", "M:\\halvane.prom"})
            metrics::save(nowhere, {}, {}, Now);
        QVERIFY(!QFile::exists("halvane.prom") && !QFile::exists(pc.NativePath("M:/")));
    }

    /// The drive's own text names no file, no sector of data goes along, and a folder in use is left alone.
    void nothingLeavesTheFolder()
    {
        open("../../../evil\\x");
        QCOMPARE(collection::collect(folder(), false), QString());
        QCOMPARE(QDir(m_out->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
        QCOMPARE(QDir(folder() + "/history").entryList(QDir::Files).size(), 2);
        QVERIFY(!allBytes().contains("private"));
        QVERIFY(allBytes().contains("the boot code") && allBytes().contains("evil"));
        QString error;
        const DescribedFolder state;
        const auto opened = SimulatedPlatform::open(folder(), state.state(), &error);
        QVERIFY2(opened, qPrintable(error));
        QCOMPARE(opened->description().disks.size(), 1);
        QCOMPARE(opened->description().volumes.size(), 1);
        QCOMPARE(opened->description().settings.value("WarningValue").toInt(), 44);
        QCOMPARE(opened->description().settings.value("LogSavePath").toString(), "L:\\log.txt");
        const QByteArray before = allBytes();
        QCOMPARE(collection::collect(folder(), false), folder() + ": is not empty");
        QCOMPARE(allBytes(), before);
    }

    /// Of a place in hexadecimal, a mark there and the size of the sector: the places and lengths that are
    /// cleared.
    void numbersOfSectors()
    {
        compareRows("Exports/sectors", [](const QString &row) {
            const QByteArray mark = QByteArray::fromPercentEncoding(row.section(' ', 1, -2).toLatin1());
            QByteArray sector(row.section(' ', -1).toInt(), '/');
            sector.replace(row.section(' ', 0, 0).toInt(nullptr, 16), mark.size(), mark);
            const QByteArray masked = SerialMask(true).sector(sector);
            QStringList cleared;
            for (int at = 0, end = 0; at < masked.size(); at = end) {
                while (end < masked.size() &&
                       (masked.at(end) != sector.at(end)) == (masked.at(at) != sector.at(at)))
                    ++end;
                const QByteArray text = masked.mid(at, end - at).replace('\0', "");
                if (masked.at(at) != sector.at(at))
                    cleared << QString("%1+%2%3").arg(at, 0, 16).arg(end - at).arg(QString(text));
            }
            return SerialMask(false).sector(sector) == sector ? cleared.join(' ') : "not left alone";
        });
    }

    void anonymous()
    {
        open("SN-7788991");
        QCOMPARE(collection::collect(folder(), true), QString());
        const QByteArray all = allBytes();
        for (const char *told :
             {"7788991", "5 000cca 123", "f00d", "WW-TABLE-1", "ID-556677", "Ada", "L:\\\\log", "TELL"})
            QVERIFY2(!all.contains(told), told);
        QVERIFY(all.contains("Serial Number:    ANON000002\n"));
        QCOMPARE(QDir(folder() + "/history").entryList(QDir::Files),
                 (QStringList{"dates-ANON000002.txt", "values-ANON000002"}));
        QVERIFY(all.contains("Model Family:     Kept"));
        QString error;
        const DescribedFolder state;
        auto opened = SimulatedPlatform::open(folder(), state.state(), &error);
        QVERIFY2(opened, qPrintable(error));
        Platform::install(std::move(opened));
        QCOMPARE(contentOf(historyPaths("ANON000002").dates), QByteArray("21-11-2026\n"));
    }

private:
    void open(const QByteArray &serial)
    {
        QByteArray disk(64 * 512, '\0');
        const auto put = [&disk](int at, const QByteArray &bytes) { disk.replace(at, bytes.size(), bytes); };
        put(0, "the boot code");
        put(0x1B8, "TELL"); // tells one disk from another
        // A partition of the type Linux, in which no file system is found.
        put(0x1BE, QByteArray::fromHex("00000000830000000400000010000000"));
        put(0x1FE, "\x55\xAA");
        put(4 * 512, "private");
        m_folder->add("disk.img", disk);
        m_folder->add("report.txt",
                      "smartctl 7.3\n=== START OF INFORMATION SECTION ===\nModel Family:     Kept\n"
                      "Serial Number:    " +
                          serial +
                          "\nLU WWN Device Id: 5 000cca 123\nNamespace 2 IEEE EUI-64:           f00d\n"
                          "=== START OF READ SMART DATA SECTION ===\n");
        Platform::install(m_folder->open(R"({"user": "Ada",
            "disks": [{"number": 0, "model": "M", "serial": "WW-TABLE-1", "sectors": 64, "image": "disk.img",
                       "report": "report.txt", "identity": {"model": "M", "serial": "ID-556677", "firmware": "F"}}],
            "volumes": [{"letter": "L", "fileSystem": "NTFS", "size": 8192, "extents": [{"disk": 0, "offset": 2048}]}],
            "settings": {"LogSavePath": "L:\\log.txt", "WarningValue": 44}})"));
        const HistoryPaths history = historyPaths(serial);
        QVERIFY(writeFile(history.dates, "21-11-2026\n") && writeFile(history.values, "[21-11-2026]\na=1\n"));
    }

    QString folder() const { return m_out->path() + "/case"; }

    /// All files that were written, one behind the other.
    QByteArray allBytes() const
    {
        QByteArray all;
        QDirIterator each(folder(), QDir::Files, QDirIterator::Subdirectories);
        while (each.hasNext())
            all += contentOf(each.next());
        return all;
    }

    std::unique_ptr<DescribedFolder> m_folder;
    std::unique_ptr<QTemporaryDir> m_out;
};

QTEST_GUILESS_MAIN(TestExports)
#include "tst_Exports.moc"
