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
    void init();
    void paths_data();
    void paths();
    void firstVisit();
    void elevenDays();
    void secondVisitOfADay();
    void clockSetBack();
    void disksApart();
    void append_data();
    void append();
    void prune_data();
    void prune();
    void removeGroup_data();
    void removeGroup();
    void tornValues();
    void rewrittenWithinATick();
    void noFolder();
    void earlierNames();
    void values();
    void demoEndsWithItsReports_data();
    void demoEndsWithItsReports();

private:
    QString file(const QString &name) const { return m_folder->filePath(name); }
    void put(const QString &name, const QByteArray &text) const;
    /// The text of a file, with line feeds for the line ends of this platform.
    QByteArray textOf(const QString &name) const;
    QByteArray bytesOf(const QString &name) const;
    QStringList sections(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    const QDate m_first = QDate(2026, 10, 25);
    const QString m_serial = QStringLiteral("SN-1");
    const QString m_values = QStringLiteral("values-SN-1");
};

void TestAttributeHistory::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    Platform::install(std::make_unique<HistoryMachine>(m_folder->path()));
}

void TestAttributeHistory::put(const QString &name, const QByteArray &text) const
{
    QFile out(file(name));
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(text) == text.size());
}

QByteArray TestAttributeHistory::textOf(const QString &name) const
{
    QFile in(file(name));
    return in.open(QIODevice::ReadOnly | QIODevice::Text) ? in.readAll() : QByteArray("no file");
}

QByteArray TestAttributeHistory::bytesOf(const QString &name) const
{
    QFile in(file(name));
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray("no file");
}

QStringList TestAttributeHistory::sections(const QString &name) const
{
    return QSettings(file(name), QSettings::IniFormat).childGroups();
}

void TestAttributeHistory::paths_data()
{
    QTest::addColumn<QString>("serial");
    QTest::addColumn<QString>("name");
    QTest::newRow("as it is") << "OK-83H2_F6.610 a"
                              << "OK-83H2_F6.610 a";
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("upwards") << "../../etc/x"
                             << ".._.._etc_x";
    QTest::newRow("backslash") << "..\\x"
                               << ".._x";
    QTest::newRow("the folder above") << ".."
                                      << "..";
    QTest::newRow("stream of a file") << "a:b"
                                      << "a_b";
    QTest::newRow("torn") << QString("a\nb\tc") + QChar(0) << "a_b_c_";
}

void TestAttributeHistory::paths()
{
    QFETCH(QString, serial);
    QFETCH(QString, name);
    const HistoryPaths found = historyPaths(serial);
    QCOMPARE(found.values, m_folder->path() + QStringLiteral("/values-") + name);
    QCOMPARE(found.dates, m_folder->path() + QStringLiteral("/dates-") + name + QStringLiteral(".txt"));
}

void TestAttributeHistory::firstVisit()
{
    recordHistory(m_serial, QDateTime(QDate(2026, 11, 15), QTime(3, 30, 12)),
                  {{"Raw Read Error Rate", "0"}, {"Temperature Celsius", "36 (Min/Max 17/54)"}});
    QCOMPARE(textOf(QStringLiteral("dates-SN-1.txt")), QByteArray("15-11-2026\n"));
    QCOMPARE(textOf(m_values), QByteArray("[15-11-2026]\nCompleteDate=Sun Nov 15 03:30:12 2026\n"
                                          "Raw%20Read%20Error%20Rate=0\n"
                                          "Temperature%20Celsius=36 (Min/Max 17/54)\n"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void TestAttributeHistory::elevenDays()
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

void TestAttributeHistory::secondVisitOfADay()
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

void TestAttributeHistory::clockSetBack()
{
    days::record(m_serial, m_first, 2);
    days::record(m_serial, m_first, 1);
    QCOMPARE(textOf(QStringLiteral("dates-SN-1.txt")), QByteArray("25-10-2026\n26-10-2026\n25-10-2026\n"));
    QCOMPARE(sections(m_values).size(), 2);
}

void TestAttributeHistory::disksApart()
{
    days::record(QStringLiteral("A"), m_first, 11);
    days::record(QStringLiteral("B"), m_first, 1);
    QCOMPARE(sections(QStringLiteral("values-A")).size(), 10);
    QCOMPARE(sections(QStringLiteral("values-B")), QStringList{QStringLiteral("25-10-2026")});
    QCOMPARE(textOf(QStringLiteral("dates-B.txt")), QByteArray("25-10-2026\n"));
}

void TestAttributeHistory::append_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("empty") << QByteArray() << QByteArray("d\n");
    QTest::newRow("last line") << QByteArray("c\nd\n") << QByteArray("c\nd\n");
    QTest::newRow("last line without its end") << QByteArray("c\nd") << QByteArray("c\nd");
    QTest::newRow("older line") << QByteArray("d\nc\n") << QByteArray("d\nc\nd\n");
    QTest::newRow("torn line") << QByteArray("c\n14-11-2") << QByteArray("c\n14-11-2\nd\n");
    QTest::newRow("other line ends, same day") << QByteArray("c\r\nd\r\n") << QByteArray("c\nd\n");
    QTest::newRow("other line ends") << QByteArray("b\r\nc\r\n") << QByteArray("b\nc\nd\n");
}

void TestAttributeHistory::append()
{
    QFETCH(QByteArray, before);
    put(QStringLiteral("list"), before);
    AppendHistoryDate(file(QStringLiteral("list")), QStringLiteral("d"));
    QTEST(textOf(QStringLiteral("list")), "after");
    QFETCH(QByteArray, after);
    if (QByteArray(before).replace("\r\n", "\n") == after)
        QCOMPARE(bytesOf(QStringLiteral("list")), before); // untouched
}

void TestAttributeHistory::prune_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<bool>("groupGoes");
    const QByteArray nine("2\n3\n4\n5\n6\n7\n8\n9\nx\n");
    QTest::newRow("ten") << "1\n" + nine << "1\n" + nine << false;
    QTest::newRow("eleven") << "1\n" + nine + "y\n" << nine + "y\n" << true;
    QTest::newRow("no end of line") << "1\n" + nine + "y" << nine + "y\n" << true;
    QTest::newRow("oldest one twice") << "1\n" + nine + "1\n" << nine << true;
    QTest::newRow("one date a call") << "1\n" + nine + "y\nz\n" << nine + "y\nz\n" << true;
    QTest::newRow("empty") << QByteArray() << QByteArray() << false;
}

void TestAttributeHistory::prune()
{
    QFETCH(QByteArray, before);
    QFETCH(bool, groupGoes);
    put(QStringLiteral("list"), before);
    put(QStringLiteral("values"), "[1]\nA=1\n\n[2]\nA=2\n");
    PruneHistory(file(QStringLiteral("list")), file(QStringLiteral("values")));
    QTEST(textOf(QStringLiteral("list")), "after");
    QCOMPARE(textOf(QStringLiteral("values")),
             QByteArray(groupGoes ? "[2]\nA=2\n" : "[1]\nA=1\n\n[2]\nA=2\n"));
}

void TestAttributeHistory::removeGroup_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("between") << QByteArray("[a]\nA=1\n\n[d]\nA=2\n\n[e]\nA=3\n")
                             << QByteArray("[a]\nA=1\n\n[e]\nA=3\n");
    QTest::newRow("twice") << QByteArray("[d]\nA=1\n[e]\nA=2\n[d]\nA=3\n") << QByteArray("[e]\nA=2\n");
    QTest::newRow("not there, no end of line") << QByteArray("[e]\nA=3") << QByteArray("[e]\nA=3\n");
    QTest::newRow("other line ends") << QByteArray("[d]\r\nA=1\r\n[e]\r\nA=2\r\n")
                                     << QByteArray("[e]\nA=2\n");
    QTest::newRow("ahead of all sections") << QByteArray("A=0\n[d]\nA=1\n") << QByteArray("A=0\n");
    QTest::newRow("brackets in a value")
        << QByteArray("[d]\nA=1\nB=x [y]\nC=2\n") << QByteArray("B=x [y]\nC=2\n");
    QTest::newRow("header cut by its position") << QByteArray(" [d]\nA=1\n") << QByteArray(" [d]\nA=1\n");
    QTest::newRow("brackets the wrong way") << QByteArray("][d\nA=1\n") << QByteArray();
}

void TestAttributeHistory::removeGroup()
{
    QFETCH(QByteArray, before);
    put(QStringLiteral("values"), before);
    RemoveHistoryGroup(QStringLiteral("d"), file(QStringLiteral("values")));
    QTEST(textOf(QStringLiteral("values")), "after");
    RemoveHistoryGroup(QStringLiteral("d"), file(QStringLiteral("missing")));
    QVERIFY(!QFile::exists(file(QStringLiteral("missing"))));
}

void TestAttributeHistory::tornValues()
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
void TestAttributeHistory::rewrittenWithinATick()
{
    days::record(m_serial, m_first, 10);
    const HistoryPaths paths = historyPaths(m_serial);
    for (int round = 0; round < 3; ++round) {
        const QDate day = m_first.addDays(10 + round);
        const QString name = day.toString(QStringLiteral("dd-MM-yyyy"));
        QFile values(paths.values);
        const QDateTime later = QDateTime::currentDateTime().addSecs(3600);
        QVERIFY(values.open(QIODevice::ReadWrite) && values.setFileTime(later, QFile::FileModificationTime));
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

void TestAttributeHistory::noFolder()
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
void TestAttributeHistory::earlierNames()
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
    QCOMPARE(readHistoryDates(historyPaths(QStringLiteral("SN-1Date.txt")).dates, nullptr).size(), size_t(1));
}

void TestAttributeHistory::values()
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

void TestAttributeHistory::demoEndsWithItsReports_data()
{
    QTest::addColumn<QString>("report");
    for (const char *name : {"disk0", "disk2", "disk3"})
        QTest::newRow(name) << QStringLiteral(HALVANE_SOURCE_DIR "/demo/reports/") + name + ".txt";
}

void TestAttributeHistory::demoEndsWithItsReports()
{
    QFETCH(QString, report);
    samples::forget();
    QFile in(report);
    QVERIFY(in.open(QIODevice::ReadOnly));
    const QString path = samples::stage(in.readAll());
    takeReportIn(path);
    const auto rows = g_App.m_bNVMe ? nvmeRows(g_nvmeTable.rows) : ataRows(g_smartTable.rows);
    QVERIFY(rows.size() > 15);
    const QString demo = QStringLiteral(HALVANE_SOURCE_DIR "/demo/history/") + g_strSerialNumber;
    QVERIFY(QFile::copy(demo + QStringLiteral("Date.txt"), file(QStringLiteral("list"))));
    QFile::setPermissions(file(QStringLiteral("list")), QFile::ReadOwner | QFile::WriteOwner);
    const Dates dates = readHistoryDates(file(QStringLiteral("list")), nullptr);
    QCOMPARE(dates.size(), std::size_t(10));
    QSettings stored(demo, QSettings::IniFormat);
    QCOMPARE(stored.childGroups().size(), 10);
    for (const QString &date : dates) {
        stored.beginGroup(date);
        QVERIFY(QDateTime::fromString(stored.value("CompleteDate").toString(), Qt::TextDate).isValid());
        QCOMPARE(stored.childKeys().size(), int(rows.size()) + 1);
        stored.endGroup();
    }
    for (const AttributeRow &row : rows)
        QCOMPARE(stored.value(dates.back() + QLatin1Char('/') + row.key).toString(), row.historyValue);
}

QTEST_GUILESS_MAIN(TestAttributeHistory)
#include "tst_AttributeHistory.moc"
