// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SMARTThread.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QtTest>

#include <atomic>

class tst_SMARTThread : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void readsAndReports();
    void runsAgainForTheNextRequest();
    void lastRequestDuringAReadIsReadBehindIt();
    void forgottenReadHasNoReport();
    void destructorWaits();

private:
    /// Makes the tool slow. `m_entered` is signalled at its start, `m_ended` is set at its end.
    void slowTool(unsigned long milliseconds);

    FakePlatform *m_fake = nullptr;
    QSemaphore m_entered;
    std::atomic<bool> m_ended{false};
};

void tst_SMARTThread::init()
{
    m_fake = FakePlatform::install();
    g_App.m_bUse64BitTool = true;
    m_entered.tryAcquire(m_entered.available());
    m_ended = false;
}

void tst_SMARTThread::slowTool(unsigned long milliseconds)
{
    m_fake->onCommand = [this, milliseconds](const QString &) {
        m_entered.release();
        QThread::msleep(milliseconds);
        m_ended = true;
        return true;
    };
}

void tst_SMARTThread::readsAndReports()
{
    m_fake->onCommand = [](const QString &line) { return FakePlatform::answer(line, "report"); };
    SMARTThread thread;
    QSignalSpy told(&thread, &SMARTThread::OnLodingSmarInfo);
    thread.RequestSmartRead(3);
    QVERIFY(thread.wait(10000));
    QCOMPARE(told.count(), 1);
    QCOMPARE(m_fake->commands().size(), 1);
    QVERIFY(m_fake->commands().at(0).contains(" -a /dev/sdd >> "));
    const std::optional<LoadedReport> loaded = thread.takeReport();
    QVERIFY(loaded && loaded->disk == 3 && loaded->device == "/dev/sdd");
    QVERIFY(QFile::exists(nativePath(loaded->path)));
    QVERIFY(!thread.takeReport());
}

void tst_SMARTThread::runsAgainForTheNextRequest()
{
    SMARTThread thread;
    for (const int index : {0, 1}) {
        thread.RequestSmartRead(index);
        QVERIFY(thread.wait(10000));
    }
    QCOMPARE(m_fake->commands().size(), 2);
    QVERIFY(m_fake->commands().at(1).contains(" -a /dev/sdb >> "));
}

void tst_SMARTThread::lastRequestDuringAReadIsReadBehindIt()
{
    // The tool waits until the test lets it go on.
    QSemaphore mayEnd;
    m_fake->onCommand = [&](const QString &) {
        m_entered.release();
        mayEnd.acquire();
        return true;
    };
    SMARTThread thread;
    QSignalSpy told(&thread, &SMARTThread::OnLodingSmarInfo);
    thread.RequestSmartRead(0);
    QVERIFY(m_entered.tryAcquire(1, 10000));
    thread.RequestSmartRead(5);
    thread.RequestSmartRead(7);
    QVERIFY(thread.isReading());
    mayEnd.release(2);
    QVERIFY(thread.wait(10000));
    QCOMPARE(m_fake->commands().size(), 2);
    QVERIFY(m_fake->commands().at(1).contains("/dev/sdh"));
    QCOMPARE(told.count(), 1);
    const std::optional<LoadedReport> loaded = thread.takeReport();
    QVERIFY(loaded && loaded->disk == 7);
    QVERIFY(!g_bAbortJob);
}

void tst_SMARTThread::forgottenReadHasNoReport()
{
    slowTool(50);
    SMARTThread thread;
    thread.RequestSmartRead(0);
    QVERIFY(m_entered.tryAcquire(1, 10000));
    thread.RequestSmartRead(1);
    thread.forget();
    QVERIFY(thread.wait(10000));
    QCOMPARE(m_fake->commands().size(), 1);
    QVERIFY(!thread.takeReport() && !thread.isReading());
}

void tst_SMARTThread::destructorWaits()
{
    slowTool(200);
    {
        SMARTThread thread;
        thread.RequestSmartRead(0);
        QVERIFY(m_entered.tryAcquire(1, 10000));
    }
    QVERIFY(m_ended);
}

QTEST_GUILESS_MAIN(tst_SMARTThread)
#include "tst_SMARTThread.moc"
