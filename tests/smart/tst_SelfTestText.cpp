// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SelfTestText.h"

#include "tests/support/Files.h"

#include <QTextStream>
#include <QtTest>

#include <limits>

using selftest::StatusEvent;
using selftest::Told;

namespace
{

QByteArray sample(const char *name)
{
    return contentOf(QStringLiteral(HALVANE_TEST_DATA "/selftest/") + QLatin1String(name));
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
    /// The minutes of the short test and of the extended one; -1: none.
    void capabilities()
    {
        const auto row = [](const char *name, const QByteArray &text, bool supported, int shortOne,
                            int extended) {
            const auto read = [&text](std::optional<SelfTestKind> kind) {
                QTextStream stream(text);
                return selftest::readCapabilities(stream, kind);
            };
            QVERIFY2(read(std::nullopt).supported == supported, name);
            QVERIFY2(read(SelfTestKind::Short).supported == supported, name);
            QVERIFY2(read(SelfTestKind::Short).minutes.value_or(-1) == shortOne, name);
            QVERIFY2(read(SelfTestKind::Extended).minutes.value_or(-1) == extended, name);
        };
        row("release 6.2", sample("caps-idle-62.txt"), true, 2, 191);
        row("release 7.2", sample("caps-idle-72.txt"), true, 1, 793);
        row("release 5.38", sample("caps-inprogress-90.txt"), true, 2, 102);
        row("times before the mark", ShortTwo + LongNine + Supported, true, -1, -1);
        row("extended before short", Supported + LongNine + ShortTwo, true, 2, 9);
        row("no time of its own", Supported + "Short self-test routine\n" + LongNine, true, 9, 9);
        row("no number", Supported + "Short self-test routine\nrecommended polling time: ( x) minutes.\n",
            true, 0, -1);
        row("no mark", ShortTwo + LongNine, false, -1, -1);
    }

    void status()
    {
        const auto row = [](const char *name, const QByteArray &text, const char *events) {
            QTextStream stream(text);
            QCOMPARE(name + (": " + told(selftest::readStatus(stream))), QString("%1: %2").arg(name, events));
        };
        row("completed", sample("caps-idle-72.txt"), "Successfully Completed");
        row("running", sample("caps-inprogress-90.txt"), "running 90");
        row("read failure", sample("caps-read-failure-121-wd.txt"), "Test failed by Read Element");
        row("empty", "", "No Status from the Drive");
        const struct {
            int code;
            const char *words;
            const char *shown;
        } ends[] = {
            {25, "The self-test routine was aborted by\nthe host.", "Test Aborted by User"},
            {41, "The self-test routine was interrupted\nby the host with a hard or soft reset.",
             "Test Interrupted by the Host"},
            {57, "A fatal error or unknown test error\noccurred while the device was executing",
             "Test ended by Fatal or Unknown Error"},
            {73, "The previous self-test completed having\na test element that failed and the test",
             "Test failed by Unknown Element"},
            {89, "The previous self-test completed having\nthe electrical element of the test",
             "Test failed by Electrical Element"},
            {105, "The previous self-test completed having\nthe servo (and/or seek) element of the",
             "Test failed by Servo Element"},
            {137,
             "The previous self-test completed having\na test element that failed and the\n"
             "device is suspected of having handling",
             "Test failed, Handling Damage suspected"},
        };
        // The words decide, and the number where they tell nothing.
        for (const auto &end : ends) {
            row(end.shown, coded(0, end.words), end.shown);
            row("by number", coded(end.code, "In other words."), end.shown);
        }
        for (const int reserved : {144, 239})
            row("reserved", coded(reserved, "Reserved."), "Test ended with Unknown Status");
        row("running by number", coded(243, "In other words."), "running 30");
        const auto nvme = [row](const char *result, const char *shown) {
            row(result,
                "Num  Test_Description  Status\n 0   Short             " + QByteArray(result) +
                    "    2650   -\n 1   Extended          Completed without error\n",
                shown);
        };
        nvme("Completed without error", "Successfully Completed");
        nvme("Aborted: Self-test command", "Test Aborted by User");
        nvme("Aborted: Controller Reset", "Test Interrupted by the Host");
        nvme("Fatal or unknown test error", "Test ended by Fatal or Unknown Error");
        nvme("Completed: failed segments", "Test failed by Unknown Element");
        nvme("Unknown result (0xe)", "Test ended with Unknown Status");
        row("NVMe running", "Self-test status: Short self-test in progress (12% completed)\n", "running 88");
        row("no number", "Self-test routine in progress...\n?% of test remaining.\n", "running 0");
        row("number not told", "Self-test routine in progress...\n", "No Status from the Drive");
        row("rest further down, then another",
            "Self-test routine in progress...\nThe previous self-test routine completed\n\n"
            "\t10% of test remaining.\n" +
                sample("caps-read-failure-121-wd.txt"),
            "running 10, Test failed by Read Element");
    }

    void over()
    {
        QVERIFY(!selftest::isOver(100) && !selftest::isOver(1));
        QVERIFY(selftest::isOver(0) && selftest::isOver(101));
        QCOMPARE(selftest::percentDone(std::numeric_limits<int>::min()),
                 std::numeric_limits<int>::min() + 100);
    }

    void newest()
    {
        const auto row = [](const QByteArray &log, const char *newest) { // "type|result"
            QTextStream stream(log);
            const selftest::PreviousTest test = selftest::newestTest(stream);
            const auto shown = [](const QString &text) { return text.isNull() ? QStringLiteral("-") : text; };
            QCOMPARE(shown(test.type) + '|' + shown(test.result), QString(newest));
        };
        row("Num  Test\n# 1  Short offline       Completed without error  00%  20  -\n\n",
            "Short Self-test|Successfully Completed");
        row("# 1  Extended offline  Completed: read failure  90%  1587  8\n# 2  Short offline  Aborted by "
            "host\n",
            "Extended Self-test|Failed by Read Element");
        row("# 1  Short offline       Aborted by host  10%  1587  -\n\n", "Short Self-test|Aborted by User");
        row("# 1  Short offline       Interrupted (host reset)  90%  1  -\n\n",
            "Short Self-test|Test Interrupted by the Host");
        row("# 1  Short offline       Completed: servo/seek failure 10%  1  -\n\n",
            "Short Self-test|Test failed by Servo Element");
        row("# 1  Short offline       Unknown status (0x9)  90%  1  -\n\n", "Short Self-test|Not Available");
        // On the very last line it has no result.
        row("# 1  Short offline       Completed without error  00%  20  -\n", "Short Self-test|-");
        row("No self-tests have been logged.\n\n", "-|-");
        row(" 0   Short             Completed without error  2650\n\n", "-|-");
    }
};

QTEST_GUILESS_MAIN(tst_SelfTestText)
#include "tst_SelfTestText.moc"
