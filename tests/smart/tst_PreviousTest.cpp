// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/DiskFigures.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QtTest>

class tst_PreviousTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void logs_data();
    void logs();
    void aLogThatWasNotWritten();

private:
    FakePlatform *m_fake = nullptr;
};

void tst_PreviousTest::init()
{
    m_fake = FakePlatform::install();
    g_App.m_bUse64BitTool = true;
    g_strLastTestType = QStringLiteral("old type");
    g_strLastTestResult = QStringLiteral("old result");
}

void tst_PreviousTest::logs_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("result");
    const struct {
        const char *name;
        QByteArray log;
        const char *type;
        const char *result;
    } rows[] = {
        {"completed", "Num  Test\n# 1  Short offline       Completed without error  00%  20  -\n\n",
         "Short Self-test", "Successfully Completed"},
        {"the newest counts",
         "# 1  Extended offline  Completed: read failure  90%  1587  8\n# 2  Short offline  Aborted by "
         "host\n",
         "Extended Self-test", "Failed by Read Element"},
        {"aborted", "# 1  Short offline       Aborted by host  10%  1587  -\n\n", "Short Self-test",
         "Aborted by User"},
        {"interrupted", "# 1  Extended offline    Interrupted (host reset)  90%  1  -\n\n",
         "Extended Self-test", "Test Interrupted by the Host"},
        {"servo", "# 1  Short offline       Completed: servo/seek failure 10%  1  -\n\n", "Short Self-test",
         "Test failed by Servo Element"},
        {"another result", "# 1  Short offline       Unknown status (0x9)  90%  1  -\n\n", "Short Self-test",
         "Not Available"},
        {"on the last line", "# 1  Short offline       Completed without error  00%  20  -\n",
         "Short Self-test", "old result"},
        {"never tested", "No self-tests have been logged.\n\n", "old type", "old result"},
        {"of another kind", " 0   Short             Completed without error  2650\n\n", "old type",
         "old result"},
        {"empty", "", "old type", "old result"},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.log << QString(QLatin1String(row.type))
                                << QString(QLatin1String(row.result));
}

void tst_PreviousTest::logs()
{
    QFETCH(QByteArray, log);
    m_fake->onCommand = [log](const QString &line) { return FakePlatform::answer(line, log); };
    ReadPreviousTest(QStringLiteral(" -d sat,12 /dev/sdc"));
    QTEST(g_strLastTestType, "type");
    QTEST(g_strLastTestResult, "result");
    const QString path = tempFile(QStringLiteral("PreviousResult.txt"));
    QCOMPARE(m_fake->commands().size(), 1);
    QVERIFY(m_fake->commands().at(0).contains(
        QLatin1String("smartctl64Bit.exe -l selftest  -d sat,12 /dev/sdc >> ") + path));
    QVERIFY(!QFile::exists(nativePath(path)));
}

void tst_PreviousTest::aLogThatWasNotWritten()
{
    m_fake->onCommand = [](const QString &) { return false; };
    ReadPreviousTest(QStringLiteral(" -d sat,12 /dev/sdc"));
    QCOMPARE(g_strLastTestType, QStringLiteral("old type"));
    QCOMPARE(g_strLastTestResult, QStringLiteral("old result"));
}

QTEST_GUILESS_MAIN(tst_PreviousTest)
#include "tst_PreviousTest.moc"
