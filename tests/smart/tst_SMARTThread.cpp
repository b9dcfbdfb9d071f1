// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SMARTThread.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QSemaphore>
#include <QtTest>

#include <atomic>

class tst_SMARTThread : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fake = FakePlatform::install();
        g_App.m_bUse64BitTool = true;
    }

    // "0" to "9" asks for that disk, "." ends the tool that runs, "f" forgets, "t" takes the report. What
    // comes back: the disks that are read, "-" for the end of a run; of "t" the disk or "n".
    void stories_data()
    {
        QTest::addColumn<QByteArray>("story");
        QTest::addColumn<QByteArray>("told");
        const auto row = [](const char *name, const char *story, const char *told) {
            QTest::newRow(name) << QByteArray(story) << QByteArray(told);
        };
        row("one read, taken once", "3t.tt", "3n-3n");
        row("of several the last one counts", "123..t", "13-3");
        row("the disk that is being read again", "1.1.t", "1-1-1");
        row("back to the disk that is being read", "121.t", "1-1");
        row("a newer request voids a report", "1.2t.t", "1-2n-2");
        row("forgotten in mid-read", "12f.t", "1-n");
        row("forgotten before it is taken", "1.ft", "1-n");
    }

    void stories()
    {
        QFETCH(QByteArray, story);
        QByteArray told;
        bool runs = false;
        QSemaphore moved; // a tool has begun, or a run has ended
        QSemaphore mayEnd;
        m_fake->onCommand = [&](const QString &line) {
            told += QByteArray::number(line.at(line.indexOf("/dev/sd") + 7).unicode() - 'a');
            moved.release();
            mayEnd.acquire();
            return true;
        };
        SMARTThread thread;
        const auto ended = [&] {
            told += '-';
            runs = false;
            moved.release();
        };
        connect(&thread, &SMARTThread::OnLodingSmarInfo, &thread, ended, Qt::DirectConnection);
        for (const char step : story) {
            if (step == 't') {
                const std::optional<LoadedReport> loaded = thread.takeReport();
                told += loaded ? QByteArray::number(loaded->disk) : QByteArray("n");
            } else if (step == 'f') {
                thread.forget();
            } else {
                const bool waits = step == '.' || !runs;
                if (step == '.') {
                    mayEnd.release();
                } else {
                    runs = true;
                    thread.RequestSmartRead(step - '0');
                }
                QVERIFY(!waits || moved.tryAcquire(1, 10000));
            }
            QVERIFY(thread.isReading() || !runs);
        }
        QTEST(told, "told");
    }

    void destructorWaits()
    {
        QSemaphore entered;
        std::atomic<bool> ended{false};
        m_fake->onCommand = [&](const QString &) {
            entered.release();
            QThread::msleep(200);
            ended = true;
            return true;
        };
        {
            SMARTThread thread;
            thread.RequestSmartRead(0);
            QVERIFY(entered.tryAcquire(1, 10000));
        }
        QVERIFY(ended);
    }

private:
    FakePlatform *m_fake = nullptr;
};

QTEST_GUILESS_MAIN(tst_SMARTThread)
#include "tst_SMARTThread.moc"
