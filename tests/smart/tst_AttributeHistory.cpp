// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeHistory.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/Files.h"
#include "tests/support/HistoryDays.h"

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
        compareRows(
            {"OK-83H2_F6.610 a -> OK-83H2_F6.610 a", " -> ", "../../etc/x -> .._.._etc_x", "..\\x -> .._x",
             QString("a\nb:c") + QChar(0) + " -> a_b_c_"},
            [](const QString &serial) { return QFileInfo(historyPaths(serial).values).fileName().mid(7); });
        QCOMPARE(historyPaths("../x").values, m_folder->path() + "/values-.._x");
        QCOMPARE(historyPaths("../x").dates, m_folder->path() + "/dates-.._x.txt");
    }

    void twoVisitsOfADay()
    {
        const QDate day(2026, 11, 15);
        recordHistory(m_serial, QDateTime(day, QTime(3, 30, 12)),
                      {{"Raw Read Error Rate", "0"}, {"Temperature Celsius", "36 (Min/Max 17/54)"}});
        QCOMPARE(textOf(m_values), QByteArray("[15-11-2026]\nCompleteDate=Sun Nov 15 03:30:12 2026\n"
                                              "Raw%20Read%20Error%20Rate=0\n"
                                              "Temperature%20Celsius=36 (Min/Max 17/54)\n"));
        recordHistory(m_serial, QDateTime(day, QTime(9, 0)), {{"Raw Read Error Rate", "3"}});
        QCOMPARE(textOf(m_values), QByteArray("[15-11-2026]\nCompleteDate=Sun Nov 15 09:00:00 2026\n"
                                              "Raw%20Read%20Error%20Rate=3\n"
                                              "Temperature%20Celsius=36 (Min/Max 17/54)\n"));
        QCOMPARE(textOf("dates-SN-1.txt"), QByteArray("15-11-2026\n"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    }

    /// Lines between bars.
    void append()
    {
        compareRows("AttributeHistory/append", [this](const QString &before) {
            put("list", linesOf(before));
            AppendHistoryDate(file("list"), "d");
            return textOf("list").replace('\n', '|');
        });
    }

    /// One date a call: the list, and the values that are left.
    void prune()
    {
        compareRows("AttributeHistory/prune", [this](const QString &before) {
            put("list", linesOf(before));
            put("values", "[1]\nA=1\n\n[2]\nA=2\n");
            PruneHistory(file("list"), file("values"));
            return QString(textOf("list") + ", " + textOf("values")).replace('\n', '|');
        });
    }

    void removeGroup()
    {
        // A value with brackets is taken for a header.
        compareRows("AttributeHistory/removeGroup", [this](const QString &before) {
            put("values", linesOf(before));
            RemoveHistoryGroup("d", file("values"));
            return textOf("values").replace('\n', '|');
        });
        RemoveHistoryGroup("d", file("missing"));
        QVERIFY(!QFile::exists(file("missing")));
    }

    void tornValues()
    {
        put(m_values, "[24-10-2026]\r\nPower%20On%20Hours=5\r\n\r\n[23-10-2026\nx\n[22-10-2026]\nPower%20On");
        put("dates-SN-1.txt", "24-10-2026\r\n23-1");
        days::record(m_serial, m_first, 1);
        checkTwoDays();
    }

    /// QSettings takes a file of the same size and time for the old one, so the time has to rise even if the
    /// clock does not.
    void rewrittenWithinATick()
    {
        days::record(m_serial, m_first, 10);
        const HistoryPaths paths = historyPaths(m_serial);
        const QDate day = m_first.addDays(10);
        QFile values(paths.values);
        QVERIFY(values.open(QIODevice::ReadWrite) &&
                values.setFileTime(QDateTime::currentDateTime().addSecs(3600), QFile::FileModificationTime));
        values.close();
        for (const QString value : {"1", "2", "3"}) {
            const QDateTime before = QFileInfo(paths.values).lastModified();
            recordHistory(m_serial, QDateTime(day, QTime(8, 0)), {{days::key, value}});
            QVERIFY(QFileInfo(paths.values).lastModified() > before);
            const QSettings fresh(paths.values, QSettings::IniFormat);
            QCOMPARE(fresh.value(historyDate(day.startOfDay()) + '/' + days::key).toString(), value);
            QCOMPARE(fresh.childGroups().size(), 10);
        }
    }

    void noFolder()
    {
        put("blocked", "a file");
        for (const char *name : {"blocked", "missing"}) {
            Platform::install(std::make_unique<HistoryMachine>(file(name)));
            days::record(m_serial, m_first, 12);
            bool opened = true;
            QVERIFY(readHistoryDates(historyPaths(m_serial).dates, &opened).empty());
            QVERIFY(!opened);
            QCOMPARE(readHistoryValues(historyPaths(m_serial).values, {QStringLiteral("x")}, days::key),
                     std::vector<qint64>{0});
        }
        QCOMPARE(textOf("blocked"), QByteArray("a file"));
        QVERIFY(!QFile::exists(file("missing")));
    }

    /// Serial numbers that are names of other files, and files that an earlier version wrote.
    void earlierNames()
    {
        const QByteArray dates("24-10-2026\r\n23-1");
        const QByteArray values("[24-10-2026]\nPower%20On%20Hours=5\n");
        put("qt.conf", "[Paths]\n");
        put("qt.confDate.txt", dates);
        put("SN-1Date.txt", dates);
        put(m_serial, values);
        put("SN-1Date.txtDate.txt", dates);
        const QString below = file("history");
        QVERIFY(QDir().mkdir(below));
        Platform::install(std::make_unique<HistoryMachine>(below));
        for (const char *serial : {"qt.conf", "SN-1Date.txt", "SN-1"})
            days::record(QLatin1String(serial), m_first, 1);
        QCOMPARE(textOf("qt.conf"), QByteArray("[Paths]\n"));
        checkTwoDays();
        QVERIFY(!QFile::exists(file(m_serial)) && !QFile::exists(file("SN-1Date.txt")));
        QCOMPARE(readHistoryDates(historyPaths(QStringLiteral("SN-1Date.txt")).dates, nullptr).size(),
                 size_t(1));
    }

    void values()
    {
        put(m_values,
            "[a]\nBig%20One=31288407551\nText=5 5 9\nHex=0x10\nBelow=-4\nGroups=18.250.344\n[b]\nText=7\n");
        const Dates dates{"a", "b", "missing"};
        compareRows("AttributeHistory/values", [&](const QString &key) {
            QStringList found;
            for (const qint64 value : readHistoryValues(file(m_values), dates, key))
                found << QString::number(value);
            return found.join(' ');
        });
    }

private:
    QString file(const QString &name) const { return m_folder->filePath(name); }
    void put(const QString &name, const QByteArray &text) const { QVERIFY(writeFile(file(name), text)); }

    static QByteArray linesOf(const QString &row)
    {
        return QString(row).replace('|', '\n').replace('~', '\r').toUtf8();
    }

    /// One of an earlier run, with a torn date behind it, and the first one of this run.
    void checkTwoDays() const
    {
        const HistoryPaths paths = historyPaths(m_serial);
        bool opened = false;
        const Dates dates = readHistoryDates(paths.dates, &opened);
        QVERIFY(opened);
        QCOMPARE(dates, (Dates{"24-10-2026", "23-1", "25-10-2026"}));
        QCOMPARE(readHistoryValues(paths.values, dates, days::key),
                 (std::vector<qint64>{5, 0, days::valueOn(m_first)}));
    }

    /// The text of a file, with line feeds for the line ends of this platform.
    QByteArray textOf(const QString &name) const
    {
        QFile in(file(name));
        return in.open(QIODevice::ReadOnly | QIODevice::Text) ? in.readAll() : QByteArray("no file");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    const QDate m_first = QDate(2026, 10, 25);
    const QString m_serial = QStringLiteral("SN-1");
    const QString m_values = QStringLiteral("values-SN-1");
};

QTEST_GUILESS_MAIN(TestAttributeHistory)
#include "tst_AttributeHistory.moc"
