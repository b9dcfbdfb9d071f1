// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"
#include "monitor/EventTexts.h"
#include "monitor/Monitor.h"
#include "smart/AttributeHistory.h"
#include "smart/DiskFigures.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/SettingsStore.h"
#include "tests/platform/DescribedFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <stdexcept>

namespace
{

/// A report in words: "t47" °C, "D2" serial number, "r5" "p5" "u5" counts, "F" failed, "X" an attribute
/// fails, "S3" a self-test failed at that hour, "N" no answer, "U" no SMART; with "nvme" besides "w90" wear,
/// "s9" spare, "m1" media errors, "c4" critical warning.
QByteArray reportOf(const QStringList &words)
{
    QMap<QChar, int> figures;
    for (const QString &word : words)
        figures.insert(word.at(0), word.mid(1).toInt());
    const auto has = [&words](const char *word) { return words.contains(QLatin1String(word)); };
    const auto line = [&figures](const char *text, char letter, int fallback) {
        return QString(text).arg(figures.value(QLatin1Char(letter), fallback)).toUtf8() + '\n';
    };
    if (has("U"))
        return "/dev/sda: Unknown USB bridge\n";
    if (has("N"))
        return "Smartctl open device: /dev/sda failed: No such device\n";
    QByteArray text = has("nvme")
                          ? "Model Number: Oskarn N1\nWarning  Comp. Temp. Threshold:     85 Celsius\n"
                          : "Device Model: Tarnwell TX2\n";
    text += line("Serial Number: SER%1", 'D', 1) + "Firmware Version: 1.0\nRotation Rate: 7200 rpm\n";
    text +=
        has("nvme") ? "=== START OF SMART DATA SECTION ===\n" : "=== START OF READ SMART DATA SECTION ===\n";
    text += QByteArray("SMART overall-health self-assessment test result: ") +
            (has("F") ? "FAILED!" : "PASSED") + "\n\n";
    if (has("nvme"))
        return text + "SMART/Health Information (NVMe Log 0x02)\n" + line("Critical Warning: 0x0%1", 'c', 0) +
               line("Temperature: %1 Celsius", 't', 40) + line("Available Spare: %1%", 's', 100) +
               "Available Spare Threshold: 10%\n" + line("Percentage Used: %1%", 'w', 3) +
               line("Media and Data Integrity Errors: %1", 'm', 0) + '\n';
    text += "ID# ATTRIBUTE_NAME FLAG VALUE WORST THRESH TYPE UPDATED WHEN_FAILED RAW_VALUE\n";
    text += line("  5 Reallocated_Sector_Ct 0x33 100 100 010 Pre-fail Always - %1", 'r', 0);
    text += QByteArray("  7 Seek_Error_Rate 0x0f 060 060 061 Old_age Always ") +
            (has("X") ? "FAILING_NOW" : "-") + " 0\n";
    text += line("194 Temperature_Celsius 0x22 060 060 000 Old_age Always - %1", 't', 40);
    text += line("197 Current_Pending_Sector 0x12 100 100 000 Old_age Always - %1", 'p', 0);
    text += line("198 Offline_Uncorrectable 0x10 100 100 000 Old_age Offline - %1", 'u', 0) + '\n';
    if (figures.contains('S'))
        text += line("# 1  Short offline       Completed: read failure       90%      %1         8", 'S', 0);
    return text;
}

struct Recorder : MonitorListener {
    void tell(const WatchEvent &event) override
    {
        if (dies)
            throw std::runtime_error("killed");
        const QString line = eventtexts::logLine(event, fahrenheit);
        told << QStringLiteral("%1 %2 %3").arg(minute).arg(line.section("  ", 1, 1), line.section("  ", -1));
        last = event.id;
        monitor->markTold(last);
    }
    Monitor *monitor = nullptr;
    QStringList told;
    int minute = 0;
    bool fahrenheit = false;
    bool dies = false;
    quint64 last = 0;
};

} // namespace

/// The whole monitor on described PCs, whose clock is the test's. Nothing waits.
class TestMonitor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Thousands of files are written and flushed.
        if (QDir("/dev/shm").exists())
            qputenv("TMPDIR", "/dev/shm");
    }

    void init()
    {
        m_folder = std::make_unique<DescribedFolder>();
        m_listener = {};
        m_now = m_start;
        g_App.m_bUse64BitTool = true;
        g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Velmora Halvane for Windows");
    }

    void stories_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QString>("story"); // "<minute> <words>; …"
        QTest::addColumn<QStringList>("told");
        const auto row = [](const char *name, const char *story, const QStringList &told,
                            const QByteArray &settings = "") {
            QTest::newRow(name) << settings << QString(story) << told;
        };
        row("crossing", "0 t44; 3 t45; 9 t46", {"3 WARNING temperature 45 °C, limit 45 °C"});
        row("cool for two rounds", "0 t47; 2 t43; 4 t47; 6 t42; 7 t47; 9 t42; 11 t47; 12 t40",
            {"0 WARNING temperature 47 °C, limit 45 °C", "11 WARNING temperature 47 °C, limit 45 °C"});
        row("shutdown replaces", "0 t40; 2 t52; 4 t48; 6 t52; 8 t50",
            {"2 CRITICAL temperature 52 °C, shutdown limit 50 °C"});
        row("no warnings", "0 t47; 3 t50", {"3 CRITICAL temperature 50 °C, shutdown limit 50 °C"},
            R"("DontShow": 1)");
        row("no shutdown", "0 t60", {"0 WARNING temperature 60 °C, limit 45 °C"}, R"("ShutDownDontShow": 1)");
        row("fahrenheit", "0 t48; 2 t49", {"2 WARNING temperature 120 °F, limit 120 °F"},
            R"("TempValue": "F", "WarningtemValue": "F", "WarningValue": 119, "ShutDownValue": 60)");
        row("no temperature", "0 t121; 3 t0", {});
        row("a drive's own limit", "0 nvme t74; 2 nvme t75; 4 nvme t85",
            {"2 WARNING temperature 75 °C, limit 75 °C",
             "4 CRITICAL temperature 85 °C, shutdown limit 85 °C"});
        row("a limit was chosen", "0 nvme t55; 2 nvme t56", {"2 WARNING temperature 56 °C, limit 56 °C"},
            R"("WarningValue": 56, "ShutDownValue": 70)");
        row("limits of the disk", "0 t30", {"0 WARNING temperature 30 °C, limit 30 °C"},
            R"("Limits/SER1": "30 60")");
        row("verdict", "0 t40; 2 F X; 5 t40; 7 F",
            {"2 CRITICAL the drive reports that it is failing: Seek Error Rate"});
        row("attribute", "0 t40; 2 X; 4 t40; 6 X", {"2 CRITICAL failing attributes: Seek Error Rate"});
        row("counts", "0 r0; 2 p8; 4 p5; 6 p8; 8 p9 r3; 10 p9 r3 u1",
            {"2 WARNING pending sectors: 8", "8 WARNING reallocated sectors: 3",
             "8 WARNING pending sectors: 9 (before: 8)", "10 WARNING uncorrectable errors: 1"});
        row("nvme",
            "0 nvme w89; 2 nvme w90; 3 nvme w99 s10; 4 nvme w100 s9 m2; 6 nvme w101 s8 m2 c8; 8 nvme w101 s8 "
            "m2 c18",
            {"2 WARNING wear 90 %", "4 WARNING media errors: 2", "4 CRITICAL spare 9 %, threshold 10 %",
             "4 WARNING wear 100 %", "6 CRITICAL the drive reports that it is failing: read-only",
             "8 CRITICAL critical warning: the backup of its memory has failed"});
        // Heat that has an alarm is told by it alone.
        row("heat by the drive", "0 nvme t80 c2; 4 nvme t4 c2",
            {"0 WARNING temperature 80 °C, limit 75 °C", "4 CRITICAL critical warning: too hot or too cold"});
        row("self-test", "0 S1; 2 S1; 4 S2; 6 t40",
            {"0 CRITICAL the self-test failed: Completed: read failure",
             "4 CRITICAL the self-test failed: Completed: read failure"});
        row("asleep", "0 t40; 2 Z; 3 t48; 6 A", {"6 WARNING temperature 48 °C, limit 45 °C"});
        row("another disk in its place", "0 p8; 2 p8 D2; 4 p8; 6 p9 D2",
            {"0 WARNING pending sectors: 8", "2 WARNING pending sectors: 8",
             "6 WARNING pending sectors: 9 (before: 8)"});
        row("no answer", "0 t40; 2 N; 4 t40; 6 N",
            {"2 WARNING the disk does not answer", "6 WARNING the disk does not answer"});
        for (const char *silent : {"0 Z", "0 N", "0 U"})
            row(silent, silent, {});
    }

    /// With one monitor, and with a new one every round or fifth round, as if it was killed in between.
    void stories()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QString, story);
        QFETCH(QStringList, told);
        m_listener.fahrenheit = settings.contains("TempValue");
        for (const int life : {14, 1, 5}) {
            m_folder = std::make_unique<DescribedFolder>();
            m_listener.told.clear();
            m_now = m_start;
            open(story, settings);
            for (int minute = 0; minute < 14; ++minute)
                roundAt(minute, minute % life == 0);
            QCOMPARE(m_listener.told, told);
            // The log has each of them once, and one line of the day for each disk.
            QCOMPARE(logged().size(), told.size() + logged().filter("INFO").size());
            QCOMPARE(logged().filter("INFO").size(), story.contains("D2") ? 2 : 1);
            for (const QString &each : told)
                QCOMPARE(logged().filter(each.section(' ', 2)).size(),
                         told.filter(each.section(' ', 2)).size());
        }
    }

    void logLines()
    {
        open("0 t40; 3 t47", R"("MetricsPath": "M:\\x.prom")");
        rounds(0, 5, false);
        const QRegularExpression time("^2026-11-21 \\d\\d:\\d\\d:07 [+-]\\d\\d:\\d\\d  ");
        QCOMPARE(logged().size(), 3);
        for (const QString &line : logged())
            QVERIFY2(time.match(line).hasMatch(), qPrintable(line));
        QCOMPARE(logged().at(0).section("  ", 1),
                 QString("INFO  Disk 0  Tarnwell TX2  SER1  temperature 40 °C, health 100 %, ok"));
        QCOMPARE(logged().at(1).section("  ", 1),
                 QString("WARNING  the metrics cannot be written: M:\\x.prom"));
        QCOMPARE(logged().at(2).section("  ", 1),
                 QString("WARNING  Disk 0  Tarnwell TX2  SER1  temperature 47 °C, limit 45 °C"));
    }

    /// What is told when a kill hits is told in the next run, and is in the log once.
    void killedWhileItTells()
    {
        open("0 p4");
        const QDir state(m_pc->StateFolder());
        const QStringList left{".halvane-" + QString(32, '0'), "watch.json.Ab12Cd"};
        for (const QString &name : left)
            QVERIFY(writeFile(state.filePath(name), "x"));
        m_listener.dies = true;
        QVERIFY_EXCEPTION_THROWN(roundAt(0, false), std::runtime_error);
        m_listener.dies = false;
        roundAt(1, true);
        roundAt(2, true);
        QCOMPARE(m_listener.told, QStringList("1 WARNING pending sectors: 4"));
        // The program may just be writing the first one.
        QVERIFY(state.exists(left.at(0)) && !state.exists(left.at(1)));
        QCOMPARE(logged().filter("pending").size(), 1);
    }

    void missingAndBack()
    {
        open("0 t40", "", R"(}, {"number": 1)"); // without any disk a table is not believed
        QVERIFY(m_pc->deviceNotifier());
        const auto touch = [this](const char *name) {
            const QString file = m_pc->stateFolder() + "/volumes-changed/" + name;
            QFile(file).open(QIODevice::WriteOnly);
            QTRY_VERIFY(!QFile::exists(file));
        };
        roundAt(0, false);
        touch("remove-disk0");
        roundAt(2, false); // no notice came, the tool finds no such disk
        roundAt(3, false);
        QCOMPARE(m_listener.told, QStringList("3 CRITICAL the disk is missing"));
        QVERIFY(m_monitor->disks().at(1).missing);
        m_monitor->markSeen(m_listener.last);
        QCOMPARE(m_monitor->disks().size(), size_t(1));
        touch("arrive-disk0");
        m_monitor->devicesChanged(false);
        roundAt(4, true);
        roundAt(5, true);
        QCOMPARE(m_listener.told.mid(1), QStringList("4 INFO the disk is back"));

        // One of USB that goes with a notice was taken away, also where a round comes before the notice.
        for (const int noticed : {7, 8, 99}) {
            m_now = m_start;
            open("0 t40", "", R"(, "interface": "USB"}, {"number": 1)");
            QVERIFY(m_pc->deviceNotifier());
            m_listener.told.clear();
            roundAt(6, true);
            touch("remove-disk0");
            for (const int minute : {7, 8}) {
                if (minute == noticed)
                    m_monitor->devicesChanged(true);
                roundAt(minute, false);
            }
            QCOMPARE(m_listener.told,
                     noticed < 9 ? QStringList() : QStringList("8 CRITICAL the disk is missing"));
            QCOMPARE(m_monitor->disks().size(), size_t(noticed < 9 ? 1 : 2));
        }
    }

    /// A dock tells other words of a disk. Its own report tells that it is the same.
    void anotherNameInTheTable()
    {
        int minute = 0;
        for (const char *keys : {"", R"(, "interface": "USB", "serial": "DOCK")", "", R"(, "serial": "x")"}) {
            m_now = m_start;
            open("0 t40 p4", "", keys);
            for (const int last = minute + 4; minute < last; ++minute)
                roundAt(minute, false);
        }
        QCOMPARE(m_listener.told, QStringList("0 WARNING pending sectors: 4"));
        QCOMPARE(m_monitor->disks().size(), size_t(1));
    }

    void settingsOfTheRound()
    {
        open("0 t44");
        roundAt(0, false);
        SettingsStore(g_App.m_strSettingsPath).write(key::WarningValue, 44);
        roundAt(1, false);
        SettingsStore(g_App.m_strSettingsPath).write(key::SaveLog, 0);
        SettingsStore(g_App.m_strSettingsPath).write(key::ShutDownValue, 43);
        roundAt(2, false);
        QCOMPARE(m_listener.told, (QStringList{"1 WARNING temperature 44 °C, limit 44 °C",
                                               "2 CRITICAL temperature 44 °C, shutdown limit 43 °C"}));
        QCOMPARE(m_monitor->disks().at(0).unseen.size(), size_t(1)); // the second one replaces the first
        QCOMPARE(logged().size(), 2);
    }

    void pauseAndSeen()
    {
        open("0 t47 p1");
        m_monitor = std::make_unique<Monitor>(m_listener);
        m_monitor->pauseAlarms(QDateTime::fromMSecsSinceEpoch(m_start + 5 * 60000));
        rounds(0, 3, false);
        rounds(3, 8, true);
        QCOMPARE(m_listener.told,
                 (QStringList{"5 WARNING pending sectors: 1", "5 WARNING temperature 47 °C, limit 45 °C"}));
        QCOMPARE(m_monitor->disks().at(0).unseen.size(), size_t(2));
        m_monitor->markSeen(m_listener.last);
        roundAt(8, true);
        QCOMPARE(m_monitor->disks().at(0).unseen.size(), size_t(1));
        QCOMPARE(m_monitor->disks().at(0).heat, Heat::Warm);
        QCOMPARE(m_monitor->disks().at(0).day.size(), size_t(1));
    }

    /// A sleeping disk of which nothing is known but what the file tells.
    void attentionInItsSleep()
    {
        open("0 p8; 2 Z");
        for (const int minute : {0, 2, 1439, 1440}) {
            roundAt(minute, true);
            QCOMPARE(m_monitor->disks().at(0).day.size(), size_t(minute < 1440 ? 1 : 0));
        }
        QCOMPARE(m_monitor->disks().at(0).state, DiskState::Warning);
        QCOMPARE(Monitor::once(Platform::current().Now()).at(0).state, DiskState::Warning);
    }

    /// A disk at rest is asked every half hour, one in use every minute.
    void disksAtRest()
    {
        for (const auto &[keys, asked] : {std::pair(R"(, "idle": true)", 3), std::pair("", 61)}) {
            m_folder = std::make_unique<DescribedFolder>();
            m_now = m_start;
            open("0 t40", "", keys);
            for (int minute = 0; minute <= 60; ++minute)
                roundAt(minute, false);
            const QByteArray commands = DescribedFolder::contents(m_pc->stateFolder() + "/commands.log");
            QCOMPARE(commands.count("smartctl64Bit.exe -n standby -a /dev/sda >> "), asked);
            QCOMPARE(commands.count("smartctl"), asked);
        }
    }

    void unwritableLog()
    {
        open("0 p4");
        QVERIFY(QDir().mkpath(m_pc->NativePath("L:/log.txt"))); // a folder has its name
        rounds(0, 4, true);
        QCOMPARE(m_listener.told, (QStringList{"0 WARNING pending sectors: 4",
                                               "0 WARNING the log cannot be written: L:\\log.txt"}));
        QVERIFY(QDir().rmdir(m_pc->NativePath("L:/log.txt")));
        roundAt(4, true);
        QCOMPARE(logged().size(), 2); // what happened meanwhile
    }

    void historyOnceADay()
    {
        open("0 t40; 3 t41");
        for (const int minute : {0, 3, 1440, 1443})
            roundAt(minute, true);
        // The program goes by the clock of the PC, too.
        m_now += qint64(3) * 24 * 3600 * 1000;
        g_strSerialNumber = "SER1";
        keepHistory({{"Temperature Celsius", "42", {}}});
        const HistoryPaths paths = historyPaths("SER1");
        const auto dates = readHistoryDates(paths.dates, nullptr);
        QCOMPARE(dates, (std::vector<QString>{"21-11-2026", "22-11-2026", "25-11-2026"}));
        QCOMPARE(readHistoryValues(paths.values, dates, "Temperature Celsius"),
                 (std::vector<qint64>{40, 41, 42}));
    }

    /// Nothing grows, and nothing is told twice.
    void manyRounds()
    {
        open("0 t47 p3; 1500 nvme t30");
        int size = 0;
        for (int minute = 0; minute < 3000; ++minute) {
            roundAt(minute, false);
            if (minute == 1700)
                size = DescribedFolder::contents(m_pc->StateFolder() + "/watch.json").size();
        }
        QCOMPARE(m_listener.told.filter("temperature").size(), 2); // of each day
        QCOMPARE(m_listener.told.filter("pending").size(), 1);
        QVERIFY(DescribedFolder::contents(m_pc->StateFolder() + "/watch.json").size() < size + 500);
        QCOMPARE(QDir(m_pc->GetTempPathW()).entryList(QDir::Files).size(), 0);
    }

    void once()
    {
        m_folder->add("a.txt", reportOf({"t47", "p3"}));
        Platform::install(m_folder->open(R"({"disks": [
            {"number": 0, "model": "TX2 ATA Device", "sectors": 1000000, "report": "a.txt"},
            {"number": 2, "asleep": true, "report": "a.txt", "serial": "S-2"}, {"number": 3, "interface": "USB"}]})"));
        const QDateTime now = Platform::current().Now();
        const auto disks = Monitor::once(now);
        QCOMPARE(once::exitCode(disks), 1);
        const QJsonObject all = QJsonDocument::fromJson(once::json(disks, "1.2", now)).object();
        QCOMPARE(all.value("schema").toInt(), 1);
        QVERIFY(QDateTime::fromString(all.value("time").toString(), Qt::ISODate).isValid());
        const QJsonArray list = all.value("disks").toArray();
        QCOMPARE(list.size(), 3);
        const QJsonObject first = list.at(0).toObject();
        QCOMPARE(first.value("state").toString(), QString("warning"));
        QCOMPARE(first.value("verdict").toString(), QString("passed"));
        QCOMPARE(first.value("temperatureC").toInt(), 47);
        QCOMPARE(
            QJsonDocument(first.value("attributes").toArray().at(0).toObject())
                .toJson(QJsonDocument::Compact),
            R"({"id":5,"name":"Reallocated Sector Ct","raw":"0","status":"OK","threshold":10,"value":100,"worst":100})");
        const QJsonObject second = list.at(1).toObject();
        QCOMPARE(second.value("state").toString(), QString("asleep"));
        QCOMPARE(second.value("serial").toString(), QString("S-2"));
        for (const char *unknown : {"temperatureC", "healthPercent", "lifeDays", "firmware"})
            QVERIFY(second.contains(unknown) && second.value(unknown).isNull());
        QCOMPARE(list.at(2).toObject().value("state").toString(), QString("notSupported"));
        QVERIFY(once::table(disks, true)
                    .contains(QString("0     warning       116 °F       98 %    Tarnwell TX2  SER1\n")));
        const QString memory = Platform::current().StateFolder() + "/watch.json";
        QVERIFY(!QFile::exists(memory));
        QVERIFY(writeFile(memory, R"({"disks": [{"number": 3, "lastReport": 5}]})"));
        QCOMPARE(Monitor::once(now).at(2).state, DiskState::NoAnswer); // it gave a report once
    }

    void describedKeys()
    {
        m_folder->add("a.txt", "x");
        const QByteArray disk = R"({"disks": [{"number": 0}], )";
        const auto change = [](const char *inside) {
            return QByteArray(R"("reportChanges": [{)") + inside + "}]";
        };
        for (const auto &[keys, wanted] :
             {std::pair(change(R"("disk": 0, "report": "a.txt")"), "reportChanges[0].afterSeconds: a whole"),
              {change(R"("afterSeconds": 1, "disk": 4, "report": "a.txt")"),
               "reportChanges[0].disk: there is no"},
              {change(R"("afterSeconds": 1, "disk": 0, "report": "../b")"), "reportChanges[0].report: "},
              {change(R"("afterSeconds": 1, "disk": 0)"), "reportChanges[0].report: a text"},
              {change(R"("afterSeconds": 1, "disk": 0, "asleep": 1)"), "reportChanges[0].asleep: true or"},
              {R"("clockSpeed": 0)", "clockSpeed: a number from"}}) {
            QString error;
            QVERIFY(!simulated::parsePc(disk + keys + '}', m_folder->path(), &error));
            QVERIFY2(error.startsWith(wanted), qPrintable(error));
        }
        const auto pc = m_folder->open(disk + R"("clockSpeed": 60})", [this] { return m_now; });
        m_now += 1000;
        QCOMPARE(pc->Now().toMSecsSinceEpoch(), m_start + 60000);
        QCOMPARE(pc->TimerInterval(60000), 1000);
    }

private:
    void open(const QString &story, const QByteArray &settings = "", const QByteArray &diskKeys = "")
    {
        QJsonArray changes;
        bool asleep = false;
        int number = 0;
        for (const QString &each : story.split("; ")) {
            QStringList words = each.split(' ');
            const int seconds = words.takeFirst().toInt() * 60;
            const QString file = QStringLiteral("%1.txt").arg(++number);
            QJsonObject change{{"afterSeconds", seconds}, {"disk", 0}};
            asleep = words.contains("Z") || (asleep && !words.contains("A"));
            change.insert("asleep", asleep);
            if (!words.contains("Z") && !words.contains("A")) {
                m_folder->add(file, reportOf(words));
                change.insert("report", file);
            }
            changes.append(change);
        }
        auto pc = m_folder->open(R"({"disks": [{"number": 0, "model": "TX2")" + diskKeys +
                                     R"(}], "settings": {"LogSavePath": "L:\\log.txt")" +
                                     (settings.isEmpty() ? settings : ", " + settings) +
                                     R"(}, "reportChanges": )" + QJsonDocument(changes).toJson() + "}",
                                 [this] { return m_now; });
        m_pc = pc.get();
        m_monitor.reset();
        Platform::install(std::move(pc));
    }

    void roundAt(int minute, bool killed)
    {
        m_now = m_start + minute * qint64(60000);
        m_listener.minute = minute;
        if (killed || !m_monitor)
            m_monitor = std::make_unique<Monitor>(m_listener);
        m_listener.monitor = m_monitor.get();
        m_monitor->round(Platform::current().Now());
    }

    void rounds(int from, int end, bool killed)
    {
        for (int minute = from; minute < end; ++minute)
            roundAt(minute, killed);
    }

    QStringList logged() const
    {
        return QString::fromUtf8(DescribedFolder::contents(m_pc->NativePath("L:\\log.txt")))
            .split('\n', Qt::SkipEmptyParts);
    }

    const qint64 m_start = QDateTime(QDate(2026, 11, 21), QTime(14, 3, 7)).toMSecsSinceEpoch();
    qint64 m_now = 0;
    Recorder m_listener;
    std::unique_ptr<DescribedFolder> m_folder;
    SimulatedPlatform *m_pc = nullptr;
    std::unique_ptr<Monitor> m_monitor;
};

QTEST_GUILESS_MAIN(TestMonitor)
#include "tst_Monitor.moc"
