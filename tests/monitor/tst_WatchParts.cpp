// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/DiskSummary.h"
#include "monitor/DiskTable.h"
#include "monitor/EventLog.h"
#include "monitor/EventTexts.h"
#include "monitor/Monitor.h"
#include "platform/FileLock.h"
#include "state/SettingsStore.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"

namespace
{

constexpr qint64 Minute = 60000;
constexpr qint64 Day = 1440 * Minute;

/// A machine whose tool hangs for one disk, and whose line ends are those of Windows.
class HangingMachine : public FakePlatform
{
public:
    bool CreateProcessAndWaitFor(const std::wstring &line, qint32 milliseconds,
                                 const std::function<bool()> &mayGoOn, bool hidden) override
    {
        limits << milliseconds;
        const QString text = QString::fromStdWString(line);
        if (!hidden || !mayGoOn() || text.contains("/dev/sda") || (hangsInTables && text.contains("WMIC")))
            return false;
        if (text.contains("WMIC"))
            return onCommand(text);
        return answer(text, contentOf(HALVANE_TEST_DATA "/smart/ata-wdc-wd10ezex-readfail.txt"));
    }
    QByteArray LineEnd() const override { return "\r\n"; }
    QVector<qint32> limits;
    bool hangsInTables = false;
};

struct Listener : MonitorListener {
    void tell(const WatchEvent &event) override { told << nameOf(event.kind); }
    QStringList told;
};

} // namespace

class TestWatchParts : public QObject
{
    Q_OBJECT

private slots:
    /// What real reports tell: state, model, bytes, kind, self-test, °C, its limit, health, wear, replaced,
    /// pending, uncorrectable, media errors, hours, days of life.
    void realReports()
    {
        compareRows("WatchParts/realReports", [](const QString &file) {
            const DiskReading reading =
                readingOf(QString::fromUtf8(contentOf(QString(HALVANE_TEST_DATA "/smart/%1.txt").arg(file))));
            QStringList told{once::nameOf(stateOf(reading.answer, reading, Heat::InOrder)), reading.model,
                             QString::number(reading.bytes), reading.rotating ? "rotating" : "still",
                             reading.selfTest};
            const auto add = [&told](const auto &...figures) {
                ((told << (figures ? QString::number(*figures) : QString("-"))), ...);
            };
            add(reading.celsius, reading.warningCelsius, reading.health, reading.wear, reading.reallocated,
                reading.pending, reading.uncorrectable, reading.mediaErrors, reading.powerOnHours,
                reading.lifeDays);
            return told.join('|');
        });
    }

    void answers()
    {
        compareRows("WatchParts/answers", [](const QString &text) {
            const DiskReading reading = readingOf(QString(text).replace('|', '\n'));
            return once::nameOf(stateOf(reading.answer, reading, Heat::InOrder));
        });
    }

    /// One disk through the days. Of the day, the ms in it, °C, and "off" for no warning limit.
    void alarmOfALongDay()
    {
        TemperatureAlarm alarm;
        compareRows("WatchParts/alarm", [&alarm](const QString &row) {
            const QVector<qint64> at = numbersOf(row);
            const TemperatureLimits limits{row.endsWith("off") ? std::nullopt : std::optional(45), 60};
            const auto tells = alarm.take(int(at[2]), limits, at[0] * Day + at[1]);
            return QStringList{"nothing", "warning", "shutdown"}[int(tells)];
        });
    }

    /// A count that fell for a day begins anew, one that flickers does not. Of the day, the minute in it and
    /// the pending sectors: the number of events.
    void countsThatFall()
    {
        HealthEvents health;
        compareRows("WatchParts/counts", [&health](const QString &row) {
            const QVector<qint64> at = numbersOf(row);
            DiskReading reading;
            reading.pending = at[2];
            return int(health.take(reading, at[0] * Day + at[1] * Minute).size());
        });
    }

    void schedule()
    {
        Schedule schedule;
        QVERIFY(schedule.asks(true, 5, Day));
        QVERIFY(!schedule.asks(true, 5, Day + Minute));
        QVERIFY(schedule.asks(true, 6, Day + 2 * Minute)); // was used
        QVERIFY(!schedule.asks(true, 6, Day + 31 * Minute));
        QVERIFY(schedule.asks(true, 6, Day + 32 * Minute - 20000)); // a timer may be early
        QVERIFY(schedule.asks(false, 6, Day + 33 * Minute));
        QVERIFY(schedule.asks(true, std::nullopt, Day + 34 * Minute)); // nobody counts
        QVERIFY(schedule.asks(true, 6, Minute));                       // the clock was set back
        schedule.hung();
        QVERIFY(!schedule.asks(false, 7, 10 * Minute));
        QVERIFY(schedule.asks(false, 7, 11 * Minute));
        QVERIFY(schedule.asks(false, 7, 12 * Minute));
    }

    /// The other disk goes on, and the one that hangs is asked less often.
    void hangingTool()
    {
        auto *const machine = FakePlatform::install<HangingMachine>();
        const QTemporaryDir folder;
        SettingsStore().write(key::LogSavePath, folder.path() + "\\log.txt");
        bool isReady = true;
        machine->onCommand = [&isReady](const QString &line) {
            return FakePlatform::answer(line, isReady && line.contains("get Model")
                                                  ? utf16("Index  InterfaceType  Model    Status\r\n"
                                                          "0      IDE            A ATA Device  OK\r\n"
                                                          "1      IDE            B ATA Device  OK\r\n")
                                                  : QByteArray());
        };
        Listener listener;
        Monitor monitor(listener);
        for (int minute = 0; minute < 10; ++minute)
            monitor.round(QDateTime::fromMSecsSinceEpoch(Day + minute * Minute));
        QCOMPARE(machine->limits, QVector<qint32>(17, 120000));
        const auto disks = monitor.disks();
        QCOMPARE(disks.size(), size_t(2));
        QCOMPARE(disks.at(0).state, DiskState::NoAnswer);
        QCOMPARE(disks.at(1).state, DiskState::Warning);
        QCOMPARE(listener.told, (QStringList{"reallocated", "pending", "selfTestFailed", "noAnswer"}));
        // A table that hangs, or is empty, leaves the list as it is.
        for (const int minute : {10, 20, 30, 40, 41, 42}) {
            machine->hangsInTables = minute <= 30;
            isReady = minute <= 30;
            monitor.round(QDateTime::fromMSecsSinceEpoch(Day + minute * Minute));
        }
        QCOMPARE(monitor.disks().size(), size_t(2));
        QCOMPARE(contentOf(folder.filePath("log.txt")).count("  WARNING  the system does not tell its disks"),
                 1);
        QCOMPARE(listener.told.size(), 4);
        const int asked = machine->limits.size();
        monitor.stop();
        monitor.round(QDateTime::fromMSecsSinceEpoch(Day + 50 * Minute));
        QCOMPARE(machine->limits.size(), asked + 1); // the first table, which the stop ends
    }

    void logAtItsLimit()
    {
        FakePlatform::install<HangingMachine>();
        const QTemporaryDir folder;
        const QString path = folder.path() + "\\logs\\log.txt";
        const QString file = folder.filePath("logs/log.txt");
        const EventLog log(path, 29);
        for (const char *line : {"first line", "second ü", "third"})
            QCOMPARE(log.append(line), EventLog::Outcome::Written);
        QCOMPARE(contentOf(file), QByteArray("second ü\r\nthird\r\n"));
        QVERIFY(log.holds("third") && log.holds("second ü") && !log.holds("hird"));
        QVERIFY(writeFile(file, "a\r\ncut sh"));
        QCOMPARE(log.append("next"), EventLog::Outcome::Written);
        QCOMPARE(contentOf(file), QByteArray("a\r\ncut sh\r\nnext\r\n"));
        QVERIFY(writeFile(file, QByteArray(1000, 'x') + "\r\ntail\r\n")); // the limit was lowered
        QCOMPARE(log.append("012345678901234567890"), EventLog::Outcome::Written);
        QCOMPARE(contentOf(file), QByteArray("tail\r\n012345678901234567890\r\n"));
        QCOMPARE(log.append(QString(40, 'y')), EventLog::Outcome::Written); // no room at all
        QCOMPARE(contentOf(file).size(), 29);
        // What a killed process left goes, but not what another one may just be writing.
        const QString left = folder.filePath("logs/.halvane-" + QString(32, '0'));
        for (const int age : {0, 2}) {
            QVERIFY(writeFile(left, "") && setAge(left, 60 * age));
            QCOMPARE(log.append("012345678901234567890"), EventLog::Outcome::Written);
            QCOMPARE(QFile::exists(left), age == 0);
        }
        QCOMPARE(EventLog(folder.path() + "\\logs\\log.txt\\x", 30).append("x"),
                 EventLog::Outcome::Unwritable);
    }

    void harmlessLines()
    {
        WatchEvent event;
        event.kind = EventKind::FailingAttribute;
        event.disk = 1;
        event.model = "A  B\nINFO  x";
        event.serial = "\r";
        event.detail = "%1 x";
        const QStringList fields = eventtexts::logLine(event, false).split("  ");
        QCOMPARE(fields.mid(2), (QStringList{"Disk 1", QString("A B") + QChar(0xFFFD) + "INFO x",
                                             QString(QChar(0xFFFD)), "failing attributes: %1 x"}));
        QCOMPARE(eventtexts::message(event, false), QString("Failing attributes: %1 x"));
        QCOMPARE(eventtexts::advice(event), QString("Back up this disk now."));
        event.kind = EventKind::CriticalWarning;
        event.value = HeatWarning;
        QCOMPARE(eventtexts::advice(event), QString("See to its cooling."));
    }

    void memoryOfStrangers()
    {
        WatchMemory memory;
        memory.disks.emplace_back();
        WatchedDisk &disk = memory.disks.back();
        disk.tableSerial = "S";
        disk.present = true;
        disk.alarm.warning = {true, Day, 1, Day};
        disk.health.told.insert("pending", {8, Day});
        disk.last.failing << "Seek Error Rate";
        disk.last.spare = 9;
        disk.last.written = 5e10;
        disk.addTemperature(40, Day);
        disk.addTemperature(41, Day + Minute);
        disk.addTemperature(42, Day + 10 * Minute);
        memory.add({});
        const QByteArray json = memory.toJson();
        const WatchMemory read = WatchMemory::fromJson(json);
        QCOMPARE(read.toJson(), json);
        QCOMPARE(stateOf(DiskReading::Answer::Asleep, read.disks.at(0).last, Heat::InOrder),
                 DiskState::Failing);
        QCOMPARE(read.disks.at(0).day.size(), size_t(2));
        QVERIFY(read.disks.at(0).last.spare == 9 && read.disks.at(0).last.written == 5e10);

        for (const QByteArray &damaged : {QByteArray(), json.left(json.size() / 2), QByteArray("[1, 2]"),
                                          QByteArray(R"({"disks": [1, {}], "events": {}})"),
                                          QByteArray(json)
                                              .replace("\"at\":86400000", "\"at\":-1e300")
                                              .replace("[8,86400000]", "\"x\"")}) {
            WatchMemory some = WatchMemory::fromJson(damaged);
            QVERIFY(some.disks.size() <= 1);
            const quint64 added = some.add({}).id;
            QCOMPARE(added, quint64(some.events.size()));
        }
        QByteArray many = "{\"events\": [", points = "[0,0]", disks;
        for (int i = 0; i < 1000; ++i) {
            many += R"({"kind": "pending", "id": 5},)";
            points += ",[" + QByteArray::number(i * 1000000) + ",30]";
            disks += ",{}";
        }
        const WatchMemory bounded =
            WatchMemory::fromJson(many + R"({"kind": "none"}], "disks": [{"day": [)" + points +
                                  R"(], "lastSeen": 1})" + disks + R"(], "nextEvent": 3})");
        QCOMPARE(bounded.events.size(), size_t(200));
        QCOMPARE(bounded.disks.size(), size_t(64));
        QVERIFY(bounded.disks.at(0).day.size() <= 144);
        QCOMPARE(WatchMemory(bounded).add({}).id, quint64(6));
    }

    /// A disk is known again under another number, and two of one serial number stay two.
    void recordsOfDisks()
    {
        WatchMemory memory;
        // "<number> <model> <serial>" of each
        const auto placesOf = [&memory](const QStringList &rows) {
            std::vector<ListedDisk> table;
            for (const QString &row : rows)
                table.push_back({row.section(' ', 0, 0).toInt(), row.section(' ', 1, 1), row.section(' ', 2),
                                 "IDE", 0, false});
            return recordsOf(table, &memory);
        };
        using Places = std::vector<std::size_t>;
        QCOMPARE(placesOf({"0 M S1", "1 M S2", "2 B 0", "3 B 0"}), (Places{0, 1, 2, 3}));
        QCOMPARE(placesOf({"0 M S2", "1 M S1", "3 B 0"}), (Places{1, 0, 3}));
        QCOMPARE(placesOf({"0 M S3", "4 B 0", "5 B 0"}), (Places{4, 2, 3}));
        QCOMPARE(memory.disks.at(3).number, 5);
    }

    void exitCodes()
    {
        const QStringList names{"failing", "noAnswer", "warning", "ok", "asleep", "notSupported"};
        compareRows("WatchParts/exitCodes", [&names](const QString &states) {
            std::vector<DiskSummary> disks;
            for (const QString &state : states.split(' ', Qt::SkipEmptyParts)) {
                disks.emplace_back();
                disks.back().state = DiskState(names.indexOf(state));
            }
            return once::exitCode(disks);
        });
    }

    void ownLimits()
    {
        FakePlatform::install();
        ownlimits::save("a/b\\c", ownlimits::Limits{50, 60});
        QCOMPARE(ownlimits::load("a/b\\c")->shutDown, 60);
        QVERIFY(!ownlimits::load("other") && !ownlimits::load(""));
        ownlimits::save("a/b\\c", std::nullopt);
        QVERIFY(!ownlimits::load("a/b\\c"));
        SettingsStore().write(key::MaxLogSize, 999999);
        QCOMPARE(WatchSettings::load().logBytes, qint64(999999) * 1024);
    }

    void fileLock()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("lock");
        {
            const FileLock first(path, 0);
            QVERIFY(first.isHeld() && !FileLock(path, 30).isHeld());
        }
        QVERIFY(!QFile::exists(path));
        QVERIFY(writeFile(path, "")); // as a killed process leaves it
        QVERIFY(FileLock(path, 0).isHeld());
        QVERIFY(!FileLock(folder.filePath("no/lock"), 1000).isHeld());
    }
};

QTEST_GUILESS_MAIN(TestWatchParts)
#include "tst_WatchParts.moc"
