// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/EventTexts.h"
#include "monitor/Monitor.h"
#include "smart/AttributeHistory.h"
#include "smart/DiskFigures.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/SettingsStore.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/ArrowRows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>

namespace
{

/// A report in words: "t47" °C, "D2" serial number, "r5" "p5" "u5" counts, "F" failed, "X" an attribute
/// fails, "S3" a self-test failed at that hour, "N" no answer, "U" no SMART; with "nvme" besides "w90" wear,
/// "s9" spare, "m1" media errors, "c4" critical warning.
QByteArray reportOf(const QStringList &words)
{
    if (words.contains("U"))
        return "/dev/sda: Unknown USB bridge\n";
    if (words.contains("N"))
        return "Smartctl open device: /dev/sda failed: No such device\n";
    QMap<QChar, QString> figures{{'D', "1"}, {'t', "40"},     {'s', "100"},
                                 {'w', "3"}, {'F', "PASSED"}, {'X', "-"}};
    for (const QString &word : words)
        figures[word.at(0)] = word == "F" ? "FAILED!" : word == "X" ? "FAILING_NOW" : word.mid(1);
    const QString kind = words.contains("nvme") ? "nvme" : "ata";
    QString text = QString::fromUtf8(contentOf(HALVANE_TEST_DATA "/monitor/" + kind + ".txt"));
    if (!figures.contains('S'))
        text = text.section("# 1", 0, 0);
    for (const QChar letter : QString("DtrpuFXSwsmc"))
        text.replace('{' + QString(letter) + '}', figures.value(letter, "0"));
    return text.toUtf8();
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

    /// "{settings} story -> what is told", the story "<minute> <words>; …": with one monitor, and with a new
    /// one every round or fifth round, as if it was killed in between.
    void stories()
    {
        compareRows("Monitor/stories", [this](const QString &row) {
            const QString settings = row.startsWith('{') ? row.section('}', 0, 0).mid(1) : QString();
            const QString story = row.section("} ", -1);
            QStringList lives;
            for (const int life : {14, 1, 5}) {
                init();
                m_listener.fahrenheit = settings.contains("TempValue");
                open(story, settings.toUtf8());
                for (int minute = 0; minute < 14; ++minute)
                    roundAt(minute, minute % life == 0);
                // The log has each of them once, and one line of the day for each disk.
                QStringList wanted;
                for (const QString &each : qAsConst(m_listener.told))
                    wanted << each.section(' ', 2);
                QStringList log = logged();
                for (QString &line : log)
                    line = line.contains("  INFO  ") ? "day" : line.section("  ", -1);
                for (int disk = story.contains("D2") ? 2 : 1; disk > 0; --disk)
                    wanted << "day";
                lives << m_listener.told.join(" | ");
                wanted.sort();
                log.sort();
                if (log != wanted)
                    lives << "the log: " + log.join(" | ");
            }
            lives.removeDuplicates();
            return lives.join(" or ");
        });
    }

    void logLines()
    {
        open("0 t40; 3 t47", R"("MetricsPath": "M:\\x.prom")");
        rounds(0, 5, false);
        const QRegularExpression time("^2026-11-21 \\d\\d:\\d\\d:07 [+-]\\d\\d:\\d\\d  ");
        QCOMPARE(logged().replaceInStrings(time, "@ "),
                 (QStringList{"@ INFO  Disk 0  Tarnwell TX2  SER1  temperature 40 °C, health 100 %, ok",
                              "@ WARNING  the metrics cannot be written: M:\\x.prom",
                              "@ WARNING  Disk 0  Tarnwell TX2  SER1  temperature 47 °C, limit 45 °C"}));
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
        const QByteArray Other = R"(}, {"number": 1)";
        open("0 t40", "", Other);
        QVERIFY(m_pc->deviceNotifier());
        roundAt(0, false);
        m_folder->touch({"remove-disk0"});
        roundAt(2, false); // no notice came, the tool finds no such disk
        roundAt(3, false);
        QCOMPARE(m_listener.told, QStringList("3 CRITICAL the disk is missing"));
        QVERIFY(m_monitor->disks().at(1).missing);
        m_monitor->markSeen(m_listener.last);
        QCOMPARE(m_monitor->disks().size(), size_t(1));
        m_folder->touch({"arrive-disk0"});
        m_monitor->devicesChanged(false);
        roundAt(4, true);
        roundAt(5, true);
        QCOMPARE(m_listener.told.mid(1), QStringList("4 INFO the disk is back"));

        // One of USB that goes with a notice was taken away, also where a round comes before the notice.
        // If it was the only one, the empty table is not believed without a notice.
        const QByteArray usb = R"(, "interface": "USB")";
        for (const auto &[noticed, keys, told] : {std::tuple(7, usb + Other, ""),
                                                  {8, usb + Other, ""},
                                                  {99, usb + Other, "8 CRITICAL the disk is missing"},
                                                  {7, usb, ""},
                                                  {8, usb, ""},
                                                  {99, usb, "8 WARNING the disk does not answer"}}) {
            init();
            open("0 t40", "", keys);
            QVERIFY(m_pc->deviceNotifier());
            roundAt(6, true);
            m_folder->touch({"remove-disk0"});
            for (const int minute : {7, 8}) {
                if (minute == noticed)
                    m_monitor->devicesChanged(true);
                roundAt(minute, false);
            }
            QCOMPARE(m_listener.told.join('\n'), QString(told));
            QCOMPARE(m_monitor->disks().size(), size_t((*told ? 1 : 0) + (keys == usb ? 0 : 1)));
            const QByteArray seen = "\"lastSeen\":" + QByteArray::number(m_start + 6 * 60000);
            QVERIFY(contentOf(WatchMemory::path()).contains(seen)); // and not since
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
        open("0 t47 p1; 9 t47 p1 r1");
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
        rounds(9, 20, true);
        QCOMPARE(m_monitor->disks().at(0).unseen.size(), size_t(2)); // what is of another kind stays
    }

    void wornOut()
    {
        open("0 nvme w120");
        roundAt(0, false);
        QCOMPARE(m_monitor->disks().at(0).reading.health.value_or(-1), 0);
    }

    /// A disk that cools down in a pause is told when it is hot again behind it.
    void coolInAPause()
    {
        open("0 t47; 2 t40; 6 t47");
        roundAt(0, false);
        m_monitor->pauseAlarms(QDateTime::fromMSecsSinceEpoch(m_start + 5 * 60000));
        rounds(1, 8, false);
        const QString warning = "WARNING temperature 47 °C, limit 45 °C";
        QCOMPARE(m_listener.told, (QStringList{"0 " + warning, "6 " + warning}));
    }

    /// Once it answers again, nothing says that it does not.
    void answersAgain()
    {
        open("0 t40; 2 N; 5 t40");
        rounds(0, 5, false);
        QCOMPARE(m_monitor->disks().at(0).unseen.size(), size_t(1));
        roundAt(5, false);
        QVERIFY(m_monitor->disks().at(0).unseen.empty());
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
            init();
            open("0 t40", "", keys);
            for (int minute = 0; minute <= 60; ++minute)
                roundAt(minute, false);
            const QByteArray commands = contentOf(m_pc->stateFolder() + "/commands.log");
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
                size = contentOf(m_pc->StateFolder() + "/watch.json").size();
        }
        QCOMPARE(m_listener.told.filter("temperature").size(), 2); // of each day
        QCOMPARE(m_listener.told.filter("pending").size(), 1);
        QVERIFY(contentOf(m_pc->StateFolder() + "/watch.json").size() < size + 500);
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
        QJsonObject all = QJsonDocument::fromJson(once::json(disks, "1.2", now)).object();
        QVERIFY(QDateTime::fromString(all.take("time").toString(), Qt::ISODate).isValid());
        QCOMPARE(QJsonDocument(all).toJson(), contentOf(HALVANE_TEST_DATA "/monitor/once.json"));
        QVERIFY(once::table(disks, true)
                    .contains(QString("0     warning       116 °F       98 %    Tarnwell TX2  SER1\n")));
        const QString memory = Platform::current().StateFolder() + "/watch.json";
        QVERIFY(!QFile::exists(memory));
        QVERIFY(writeFile(memory, R"({"disks": [{"number": 3, "lastReport": 5, "celsius": 50}]})"));
        const DiskSummary silent = Monitor::once(now).at(2);
        QCOMPARE(silent.state, DiskState::NoAnswer); // it gave a report once
        QVERIFY(!silent.reading.celsius);            // which may be weeks old
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
        return QString::fromUtf8(contentOf(m_pc->NativePath("L:\\log.txt"))).split('\n', Qt::SkipEmptyParts);
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
