// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/CurrentRead.h"

#include <QtTest>

/// Each row is a list of calls: "0" to "9" asks for that disk, "." ends the tool that runs, "f" forgets, "t"
/// takes the report. The answers are written in the same letters.
class tst_CurrentRead : public QObject
{
    Q_OBJECT

private slots:
    void stories_data();
    void stories();
};

void tst_CurrentRead::stories_data()
{
    QTest::addColumn<QByteArray>("story");
    QTest::addColumn<QByteArray>(
        "told"); // by the reader: disks it reads, "-" its end; of "t": the disk or "n"
    const struct {
        const char *name;
        const char *story;
        const char *told;
    } rows[] = {
        {"one read, taken once", "3.tt", "3-3n"},
        {"nothing to take while it runs", "3t", "3n"},
        {"of several the last one counts", "123..t", "13-3"},
        {"the disk that is being read again", "1.1.t", "1-1-1"},
        {"back to the disk that is being read", "121.t", "1-1"},
        {"a newer request voids a report", "1.2t.t", "1-2n-2"},
        {"forgotten in mid-read", "12f.t", "1-n"},
        {"forgotten before it is taken", "1.ft", "1-n"},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << QByteArray(row.story) << QByteArray(row.told);
}

void tst_CurrentRead::stories()
{
    QFETCH(QByteArray, story);
    CurrentRead read;
    QByteArray told;
    std::optional<int> runs;
    const auto goOn = [&] {
        runs = read.next(runs);
        told += runs ? QByteArray::number(*runs) : QByteArray("-");
    };
    for (const char step : story) {
        if (step == 't') {
            const std::optional<int> disk = read.take();
            told += disk ? QByteArray::number(*disk) : QByteArray("n");
        } else if (step == 'f') {
            read.forget();
        } else if (step == '.' || read.ask(step - '0')) {
            goOn();
        }
        QVERIFY(read.isOpen() || !runs);
    }
    QTEST(told, "told");
}

QTEST_GUILESS_MAIN(tst_CurrentRead)
#include "tst_CurrentRead.moc"
