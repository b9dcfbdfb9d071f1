// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/StateFolder.h"
#include "tests/support/HistoryDays.h"

#include <QProcess>
#include <QtTest>

#include <csignal>

/// Kills a process that records history, at each of its calls for the folder in turn.
class TestHistoryCrash : public QObject
{
    Q_OBJECT

private slots:
    void firstVisit() { killAnywhere(0, 1, 1, 0); }
    void thirdDay() { killAnywhere(2, 3, 1, 2); }
    void secondVisitOfADay() { killAnywhere(10, 10, 1, 10); }
    void eleventhDay() { killAnywhere(10, 11, 1, 9); }
    void threeDaysBehindTheTenth() { killAnywhere(10, 11, 3, 9); }

private:
    /// `before` days are recorded already; the killed process records `count` from the day `first` on. At
    /// least `kept` days must be readable, whenever it is killed.
    void killAnywhere(int before, int first, int count, int kept)
    {
        const QTemporaryDir prepared;
        Platform::install(std::make_unique<HistoryMachine>(prepared.path()));
        days::record(m_serial, dayNumber(1), before);
        int call = 0;
        for (bool killed = true; killed;) {
            m_root = std::make_unique<QTemporaryDir>();
            m_folder = m_root->filePath("history");
            QVERIFY(simulated::copyFolder(prepared.path(), m_folder));
            Platform::install(std::make_unique<HistoryMachine>(m_folder));
            QCOMPARE(readableDays(before == 0), before);

            killed = runKilledAt(++call, dayNumber(first), count);
            const int readable = readableDays(before == 0);
            QVERIFY2(readable >= kept, qPrintable(QString("%1 days after call %2").arg(readable).arg(call)));

            // The next run works as if nothing had happened, and its day is complete.
            const int last = first + count - 1;
            QVERIFY(!runKilledAt(0, dayNumber(last), 1));
            const std::vector<QString> listed = readHistoryDates(historyPaths(m_serial).dates, nullptr);
            QCOMPARE(listed.back(), dayNumber(last).toString("dd-MM-yyyy"));
            if (count == 1)
                QCOMPARE(readableDays(false), std::min(last, 10));
            else
                QVERIFY(readableDays(false) >= kept);
            QStringList sections =
                QSettings(historyPaths(m_serial).values, QSettings::IniFormat).childGroups();
            for (const QString &date : listed)
                sections.removeAll(date);
            QCOMPARE(sections, QStringList());
        }
        // Each of the two files is made, filled, flushed and renamed.
        QVERIFY2(call > 8, qPrintable(QString("only %1 calls were seen").arg(call - 1)));
    }

    bool runKilledAt(int call, const QDate &first, int count)
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HALVANE_KILL_AT", QString::number(call));
        environment.insert("HALVANE_KILL_FOLDER", m_folder);
        environment.insert("TMPDIR", m_root->path());
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QStringLiteral(HALVANE_HISTORY_DAYS),
                      {m_folder, m_serial, first.toString(Qt::ISODate), QString::number(count)});
        if (!program.waitForFinished(20000))
            qFatal("a program that records history hangs");
        if (program.exitStatus() == QProcess::CrashExit && program.exitCode() != SIGKILL)
            qFatal("a program that records history crashed by itself");
        return program.exitStatus() == QProcess::CrashExit;
    }

    /// The number of days with the right values; -1 if a file is damaged.
    int readableDays(bool anyDay)
    {
        // A new name each time, because QSettings may keep what it read from a file before.
        static int copies = 0;
        const QString values = m_root->filePath(QString("values%1").arg(++copies));
        QFile list(historyPaths(m_serial).dates);
        if (!list.open(QIODevice::ReadOnly) || !QFile::copy(historyPaths(m_serial).values, values))
            return anyDay ? 0 : -1;
        QSettings stored(values, QSettings::IniFormat);
        QStringList dates = QString::fromLatin1(list.readAll()).split('\n');
        if (stored.status() != QSettings::NoError || (!dates.takeLast().isEmpty() && !anyDay))
            return -1;
        int right = 0;
        for (const QString &date : dates) {
            const QDate day = QDate::fromString(date, "dd-MM-yyyy");
            if (!day.isValid())
                return -1;
            const QString path = date + '/' + days::key;
            if (stored.contains(path) && stored.value(path).toLongLong() == days::valueOn(day))
                ++right;
        }
        return right;
    }

    QDate dayNumber(int number) const { return QDate(2026, 10, 25).addDays(number - 1); }

    const QString m_serial = "SN-1";
    std::unique_ptr<QTemporaryDir> m_root;
    QString m_folder;
};

QTEST_GUILESS_MAIN(TestHistoryCrash)
#include "tst_HistoryCrash.moc"
