// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SelfTestText.h"

#include <QFile>
#include <QTextStream>
#include <QtTest>

using selftest::StatusEvent;
using selftest::Told;

namespace
{

QByteArray sample(const char *name)
{
    QFile file(QStringLiteral(HALVANE_TEST_DATA "/selftest/") + QLatin1String(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("no text: %s", name);
    return file.readAll();
}

QString told(const QVector<StatusEvent> &events)
{
    QStringList words;
    for (const StatusEvent &event : events)
        words << (event.told == Told::InProgress ? QStringLiteral("running %1").arg(event.remaining)
                                                 : QLatin1String(selftest::shownWords(event.told)));
    return words.join(QLatin1String(", "));
}

/// A status with this code and these words, in the layout of the tool.
QByteArray coded(int code, QByteArray words)
{
    return "Self-test execution status:      (" + QByteArray::number(code).rightJustified(4) + ")\t" +
           words.replace("\n", "\n\t\t\t\t\t") + "\nTotal time to complete Offline \n";
}

const QByteArray Supported = "\t\t\tSelf-test supported.\n";
const QByteArray ShortTwo = "Short self-test routine \nrecommended polling time: \t (   2) minutes.\n";
const QByteArray LongNine = "Extended self-test routine\nrecommended polling time: \t (   9) minutes.\n";

} // namespace

class tst_SelfTestText : public QObject
{
    Q_OBJECT

private slots:
    void capabilities_data();
    void capabilities();
    void status_data();
    void status();
    void over_data();
    void over();
};

void tst_SelfTestText::capabilities_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("supported");
    QTest::addColumn<int>("shortMinutes"); // -1: none
    QTest::addColumn<int>("extendedMinutes");
    const auto row = [](const char *name, const QByteArray &text, bool supported, int shortOne,
                        int extended) { QTest::newRow(name) << text << supported << shortOne << extended; };
    row("release 6.2", sample("caps-idle-62.txt"), true, 2, 191);
    row("release 7.2", sample("caps-idle-72.txt"), true, 1, 793);
    row("release 5.38", sample("caps-inprogress-90.txt"), true, 2, 102);
    row("empty", "", false, -1, -1);
    row("times before the mark", ShortTwo + LongNine + Supported, true, -1, -1);
    row("extended before short", Supported + LongNine + ShortTwo, true, 2, 9);
    row("no extended one", Supported + ShortTwo, true, 2, -1);
    row("no time of its own", Supported + "Short self-test routine\n" + LongNine, true, 9, 9);
    row("no number", Supported + "Short self-test routine\nrecommended polling time: ( x) minutes.\n", true,
        0, -1);
    row("says no", "No " + Supported.trimmed() + '\n' + ShortTwo, true, 2, -1);
    row("no mark", ShortTwo + LongNine, false, -1, -1);
}

void tst_SelfTestText::capabilities()
{
    QFETCH(QByteArray, text);
    const auto read = [&text](std::optional<SelfTestKind> kind) {
        QTextStream stream(text);
        return selftest::readCapabilities(stream, kind);
    };
    QTEST(read(std::nullopt).supported, "supported");
    QTEST(read(SelfTestKind::Short).supported, "supported");
    QTEST(read(SelfTestKind::Short).minutes.value_or(-1), "shortMinutes");
    QTEST(read(SelfTestKind::Extended).minutes.value_or(-1), "extendedMinutes");
}

void tst_SelfTestText::status_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("events");
    QTest::newRow("completed") << sample("caps-idle-72.txt") << "Successfully Completed";
    QTest::newRow("running") << sample("caps-inprogress-90.txt") << "running 90";
    QTest::newRow("read failure") << sample("caps-read-failure-121-wd.txt") << "Test failed by Read Element";
    QTest::newRow("empty") << QByteArray() << "No Status from the Drive";
    const struct {
        int code;
        const char *words;
        const char *shown;
    } ends[] = {
        {25, "The self-test routine was aborted by\nthe host.", "Test Aborted by User"},
        {41, "The self-test routine was interrupted\nby the host with a hard or soft reset.",
         "Test Interrupted by the Host"},
        {57,
         "A fatal error or unknown test error\noccurred while the device was executing\nits self-test "
         "routine "
         "and the device \nwas unable to complete the self-test \nroutine.",
         "Test ended by Fatal or Unknown Error"},
        {73,
         "The previous self-test completed having\na test element that failed and the test\nelement that "
         "failed "
         "is not known.",
         "Test failed by Unknown Element"},
        {89, "The previous self-test completed having\nthe electrical element of the test\nfailed.",
         "Test failed by Electrical Element"},
        {105,
         "The previous self-test completed having\nthe servo (and/or seek) element of the \ntest failed.",
         "Test failed by Servo Element"},
        {137,
         "The previous self-test completed having\na test element that failed and the\ndevice is suspected "
         "of "
         "having handling\ndamage.",
         "Test failed, Handling Damage suspected"},
    };
    for (const auto &end : ends) {
        QTest::newRow(end.shown) << coded(end.code, end.words) << end.shown;
        QTest::addRow("%d alone", end.code) << coded(end.code, "In other words.") << end.shown;
    }
    for (const int reserved : {144, 233})
        QTest::addRow("reserved %d", reserved)
            << coded(reserved, "Reserved.") << "Test ended with Unknown Status";
    QTest::newRow("running by number") << coded(243, "In other words.") << "running 30";
    const auto nvme = [](const char *result, const char *shown) {
        QTest::newRow(result) << "Self-test status: No self-test in progress\nNum  Test_Description  Status\n"
                                 " 0   Short             " +
                                     QByteArray(result) +
                                     "    2650   -   -   -   -    -\n"
                                     " 1   Extended          Completed without error\n"
                              << shown;
    };
    nvme("Completed without error", "Successfully Completed");
    nvme("Aborted: Self-test command", "Test Aborted by User");
    nvme("Aborted: Controller Reset", "Test Interrupted by the Host");
    nvme("Fatal or unknown test error", "Test ended by Fatal or Unknown Error");
    nvme("Completed: failed segments", "Test failed by Unknown Element");
    nvme("Unknown result (0xe)", "Test ended with Unknown Status");
    QTest::newRow("NVMe running") << QByteArray(
                                         "Self-test status: Short self-test in progress (12% completed)\n")
                                  << "running 88";
    QTest::newRow("no number") << QByteArray("Self-test routine in progress...\n?% of test remaining.\n")
                               << "running 0";
    QTest::newRow("number not told") << QByteArray("Self-test routine in progress...\n")
                                     << "No Status from the Drive";
    QTest::newRow("rest further down, then another")
        << QByteArray("Self-test routine in progress...\nThe previous self-test routine completed\n\n"
                      "\t10% of test remaining.\n") +
               sample("caps-read-failure-121-wd.txt")
        << "running 10, Test failed by Read Element";
}

void tst_SelfTestText::status()
{
    QFETCH(QByteArray, text);
    QTextStream stream(text);
    QTEST(told(selftest::readStatus(stream)), "events");
}

void tst_SelfTestText::over_data()
{
    QTest::addColumn<int>("remaining");
    QTest::addColumn<int>("done");
    QTest::addColumn<bool>("over");
    QTest::newRow("begun") << 90 << 10 << false;
    QTest::newRow("untouched") << 100 << 0 << false;
    QTest::newRow("nearly") << 1 << 99 << false;
    QTest::newRow("nothing left") << 0 << 100 << true;
    QTest::newRow("above 100") << 101 << -1 << true;
    QTest::newRow("below 0") << -1 << 101 << true;
    QTest::newRow("wraps") << std::numeric_limits<int>::min() << std::numeric_limits<int>::min() + 100
                           << true;
}

void tst_SelfTestText::over()
{
    QFETCH(int, remaining);
    QTEST(selftest::percentDone(remaining), "done");
    QTEST(selftest::isOver(remaining), "over");
}

QTEST_GUILESS_MAIN(tst_SelfTestText)
#include "tst_SelfTestText.moc"
