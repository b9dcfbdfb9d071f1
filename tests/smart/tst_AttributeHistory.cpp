// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeHistory.h"
#include "smart/AttributeRows.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/HistoryDays.h"

#include <QtTest>

using Dates = std::vector<QString>;

class TestAttributeHistory : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        Platform::install(std::make_unique<HistoryMachine>(m_folder->path()));
    }

    void paths()
    {
        const QPair<QString, QString> rows[] = {{"OK-83H2_F6.610 a", "OK-83H2_F6.610 a"},
                                                {"", ""},
                                                {"../../etc/x", ".._.._etc_x"},
                                                {"..\\x", ".._x"},
                                                {QString("a\nb:c") + QChar(0), "a_b_c_"}};
        for (const auto &[serial, name] : rows) {
            const HistoryPaths found = historyPaths(serial);
            QCOMPARE(found.values, m_folder->path() + "/values-" + name);
            QCOMPARE(found.dates, m_folder->path() + "/dates-" + name + ".txt");
        }
    }

    void firstVisit()
    {
        recordHistory(m_serial, QDateTime(QDate(2026, 11, 15), QTime(3, 30, 12)),
                      {{"Raw Read Error Rate", "0"}, {"Temperature Celsius", "36 (Min/Max 17/54)"}});
        QCOMPARE(textOf(QStringLiteral("dates-SN-1.txt")), QByteArray("15-11-2026\n"));
        QCOMPARE(textOf(m_values), QByteArray("[15-11-2026]\nCompleteDate=Sun Nov 15 03:30:12 2026\n"
                                              "Raw%20Read%20Error%20Rate=0\n"
                                              "Temperature%20Celsius=36 (Min/Max 17/54)\n"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    }

    void elevenDays()
    {
        days::record(m_serial, m_first, 11);
        Dates wanted;
        std::vector<qint64> hours;
        for (int i = 1; i <= 10; ++i) {
            wanted.push_back(m_first.addDays(i).toString(QStringLiteral("dd-MM-yyyy")));
            hours.push_back(days::valueOn(m_first.addDays(i)));
        }
        const HistoryPaths paths = historyPaths(m_serial);
        bool opened = false;
        QCOMPARE(readHistoryDates(paths.dates, &opened), wanted);
        QVERIFY(opened);
        QCOMPARE(readHistoryValues(paths.values, wanted, days::key), hours);
        QCOMPARE(sections(m_values).size(), 10);
        QVERIFY(!sections(m_values).contains(QStringLiteral("25-10-2026")));
    }

    void secondVisitOfADay()
    {
        const QDate day(2026, 11, 15);
        recordHistory(m_serial, QDateTime(day, QTime(8, 0)), {{"A", "1"}, {"B", "2"}});
        recordHistory(m_serial, QDateTime(day, QTime(9, 0)), {{"A", "3"}});
        QCOMPARE(textOf(QStringLiteral("dates-SN-1.txt")), QByteArray("15-11-2026\n"));
        const QSettings stored(file(m_values), QSettings::IniFormat);
        QCOMPARE(stored.value(QStringLiteral("15-11-2026/CompleteDate")).toString(),
                 QStringLiteral("Sun Nov 15 09:00:00 2026"));
        QCOMPARE(stored.value(QStringLiteral("15-11-2026/A")).toString(), QStringLiteral("3"));
        QCOMPARE(stored.allKeys().size(), 3);
    }

    void append()
    {
        const auto row = [this](const QByteArray &before, const QByteArray &after) {
            put(QStringLiteral("list"), before);
            AppendHistoryDate(file(QStringLiteral("list")), QStringLiteral("d"));
            QCOMPARE(textOf(QStringLiteral("list")), after);
            if (QByteArray(before).replace("\r\n", "\n") == after)
                QCOMPARE(contentOf(file(QStringLiteral("list"))), before); // untouched
        };
        row("", "d\n");
        row("c\nd", "c\nd");
        row("d\nc\n", "d\nc\nd\n"); // the clock was set back
        row("c\n14-11-2", "c\n14-11-2\nd\n");
        row("c\r\nd\r\n", "c\nd\n");
        row("b\r\nc\r\n", "b\nc\nd\n");
    }

    /// One date a call.
    void prune()
    {
        const auto row = [this](const QByteArray &before, const QByteArray &after, bool groupGoes) {
            put(QStringLiteral("list"), before);
            put(QStringLiteral("values"), "[1]\nA=1\n\n[2]\nA=2\n");
            PruneHistory(file(QStringLiteral("list")), file(QStringLiteral("values")));
            QCOMPARE(textOf(QStringLiteral("list")), after);
            QCOMPARE(textOf(QStringLiteral("values")),
                     QByteArray(groupGoes ? "[2]\nA=2\n" : "[1]\nA=1\n\n[2]\nA=2\n"));
        };
        const QByteArray nine("2\n3\n4\n5\n6\n7\n8\n9\nx\n");
        row("1\n" + nine, "1\n" + nine, false);
        row("1\n" + nine + "y", nine + "y\n", true);
        row("1\n" + nine + "1\n", nine, true);
        row("1\n" + nine + "y\nz\n", nine + "y\nz\n", true);
    }

    void removeGroup()
    {
        const auto row = [this](const QByteArray &before, const QByteArray &after) {
            put(QStringLiteral("values"), before);
            RemoveHistoryGroup(QStringLiteral("d"), file(QStringLiteral("values")));
            QCOMPARE(textOf(QStringLiteral("values")), after);
        };
        row("[a]\nA=0\n[d]\nA=1\n\n[e]\nA=2\n[d]\nA=3\n", "[a]\nA=0\n[e]\nA=2\n");
        row("[e]\nA=3", "[e]\nA=3\n");
        row("[d]\r\nA=1\r\n[e]\r\nA=2\r\n", "[e]\nA=2\n");
        row("A=0\n[d]\nA=1\n", "A=0\n");
        // A value with brackets is taken for a header.
        row("[d]\nA=1\nB=x [y]\nC=2\n", "B=x [y]\nC=2\n");
        row("][d\nA=1\n", "");
        RemoveHistoryGroup(QStringLiteral("d"), file(QStringLiteral("missing")));
        QVERIFY(!QFile::exists(file(QStringLiteral("missing"))));
    }

    void tornValues()
    {
        put(m_values, "[24-10-2026]\r\nPower%20On%20Hours=5\r\n\r\n[23-10-2026\nx\n[22-10-2026]\nPower%20On");
        put(QStringLiteral("dates-SN-1.txt"), "24-10-2026\r\n23-1");
        days::record(m_serial, m_first, 1);
        const HistoryPaths paths = historyPaths(m_serial);
        const Dates dates = readHistoryDates(paths.dates, nullptr);
        QCOMPARE(dates, (Dates{"24-10-2026", "23-1", "25-10-2026"}));
        QCOMPARE(readHistoryValues(paths.values, dates, days::key),
                 (std::vector<qint64>{5, 0, days::valueOn(m_first)}));
    }

    /// QSettings takes a file of the same size and time for the old one, so the time has to rise even if the
    /// clock does not.
    void rewrittenWithinATick()
    {
        days::record(m_serial, m_first, 10);
        const HistoryPaths paths = historyPaths(m_serial);
        for (int round = 0; round < 3; ++round) {
            const QDate day = m_first.addDays(10 + round);
            const QString name = day.toString(QStringLiteral("dd-MM-yyyy"));
            QFile values(paths.values);
            const QDateTime later = QDateTime::currentDateTime().addSecs(3600);
            QVERIFY(values.open(QIODevice::ReadWrite) &&
                    values.setFileTime(later, QFile::FileModificationTime));
            values.close();
            for (const QString &value : {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}) {
                const QDateTime before = QFileInfo(paths.values).lastModified();
                recordHistory(m_serial, QDateTime(day, QTime(8, 0)), {{days::key, value}});
                QVERIFY(QFileInfo(paths.values).lastModified() > before);
                const QSettings fresh(paths.values, QSettings::IniFormat);
                QCOMPARE(fresh.value(name + QLatin1Char('/') + days::key).toString(), value);
                QCOMPARE(fresh.childGroups().size(), 10);
            }
        }
    }

    void noFolder()
    {
        put(QStringLiteral("blocked"), "a file");
        for (const char *name : {"blocked", "missing"}) {
            const QString folder = file(QLatin1String(name));
            Platform::install(std::make_unique<HistoryMachine>(folder));
            days::record(m_serial, m_first, 12);
            days::record(QString(), m_first, 1);
            bool opened = true;
            QVERIFY(readHistoryDates(historyPaths(m_serial).dates, &opened).empty());
            QVERIFY(!opened);
            QCOMPARE(readHistoryValues(historyPaths(m_serial).values, {QStringLiteral("x")}, days::key),
                     std::vector<qint64>{0});
        }
        QCOMPARE(textOf(QStringLiteral("blocked")), QByteArray("a file"));
        QVERIFY(!QFile::exists(file(QStringLiteral("missing"))));
    }

    /// Serial numbers that are names of other files, and files that an earlier version wrote.
    void earlierNames()
    {
        const QByteArray dates("24-10-2026\r\n23-1");
        const QByteArray values("[24-10-2026]\nPower%20On%20Hours=5\n");
        put(QStringLiteral("qt.conf"), "[Paths]\n");
        put(QStringLiteral("qt.confDate.txt"), dates);
        put(QStringLiteral("SN-1Date.txt"), dates);
        put(m_serial, values);
        put(QStringLiteral("SN-1Date.txtDate.txt"), dates);
        const QString below = file(QStringLiteral("history"));
        QVERIFY(QDir().mkdir(below));
        Platform::install(std::make_unique<HistoryMachine>(below));
        for (const char *serial : {"qt.conf", "SN-1Date.txt", "SN-1"})
            days::record(QLatin1String(serial), m_first, 1);
        QCOMPARE(textOf(QStringLiteral("qt.conf")), QByteArray("[Paths]\n"));
        const HistoryPaths paths = historyPaths(m_serial);
        const Dates all = readHistoryDates(paths.dates, nullptr);
        QCOMPARE(all, (Dates{"24-10-2026", "23-1", "25-10-2026"}));
        QCOMPARE(readHistoryValues(paths.values, all, days::key),
                 (std::vector<qint64>{5, 0, days::valueOn(m_first)}));
        QVERIFY(!QFile::exists(file(m_serial)) && !QFile::exists(file(QStringLiteral("SN-1Date.txt"))));
        QCOMPARE(readHistoryDates(historyPaths(QStringLiteral("SN-1Date.txt")).dates, nullptr).size(),
                 size_t(1));
    }

    void values()
    {
        put(m_values,
            "[a]\nBig%20One=31288407551\nText=5 5 9\nHex=0x10\nBelow=-4\nGroups=18.250.344\n[b]\nText=7\n");
        const Dates dates{"a", "b", "missing"};
        const QVector<QPair<QString, std::vector<qint64>>> rows{
            {"Big One", {31288407551, 0, 0}}, {"Text", {0, 7, 0}}, {"Hex", {0, 0, 0}}, {"Below", {-4, 0, 0}},
            {"Groups", {18250344, 0, 0}},     {"", {0, 0, 0}}};
        for (const auto &row : rows)
            QCOMPARE(readHistoryValues(file(m_values), dates, row.first), row.second);
    }

    /// The graphs of the demo PC have ten days, the last of which is that of its report.
    void demoEndsWithItsReports()
    {
        const QString demo = QStringLiteral(HALVANE_SOURCE_DIR "/demo/");
        for (const char *report : {"disk0.txt", "disk2.txt", "disk3.txt"}) {
            samples::forget();
            samples::read(contentOf(demo + "reports/" + report));
            const auto rows = g_App.m_bNVMe ? nvmeRows(g_nvmeTable.rows) : ataRows(g_smartTable.rows);
            QVERIFY(rows.size() > 15);
            const QString values = demo + "history/" + g_strSerialNumber;
            put(QStringLiteral("list"), contentOf(values + "Date.txt"));
            const Dates dates = readHistoryDates(file(QStringLiteral("list")), nullptr);
            QCOMPARE(dates.size(), std::size_t(10));
            const QSettings stored(values, QSettings::IniFormat);
            QCOMPARE(stored.allKeys().size(), 10 * int(rows.size() + 1));
            for (const QString &date : dates)
                QVERIFY(QDateTime::fromString(stored.value(date + "/CompleteDate").toString()).isValid());
            for (const AttributeRow &row : rows)
                QCOMPARE(stored.value(dates.back() + '/' + row.key).toString(), row.historyValue);
        }
    }

private:
    QString file(const QString &name) const { return m_folder->filePath(name); }
    void put(const QString &name, const QByteArray &text) const { QVERIFY(writeFile(file(name), text)); }

    /// The text of a file, with line feeds for the line ends of this platform.
    QByteArray textOf(const QString &name) const
    {
        QFile in(file(name));
        return in.open(QIODevice::ReadOnly | QIODevice::Text) ? in.readAll() : QByteArray("no file");
    }

    QStringList sections(const QString &name) const
    {
        return QSettings(file(name), QSettings::IniFormat).childGroups();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    const QDate m_first = QDate(2026, 10, 25);
    const QString m_serial = QStringLiteral("SN-1");
    const QString m_values = QStringLiteral("values-SN-1");
};

QTEST_GUILESS_MAIN(TestAttributeHistory)
#include "tst_AttributeHistory.moc"
