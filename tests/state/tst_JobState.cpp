// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/JobState.h"

#include <QtTest>

using Job = JobState::Job;
using Make = void (*)(JobState &);
Q_DECLARE_METATYPE(Make)

/// What may be done in each state.
class tst_JobState : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void answers_data();
    void answers();
    void stopEndsWhenTheThreadDoes();
};

void tst_JobState::cleanup()
{
    g_bJobRunning = false;
    g_bSelfTestRunning = false;
    g_bListsLoading = false;
    g_bScanStarted = false;
    g_bAbortJob = false;
    JobState().closeResults();
}

void tst_JobState::answers_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("allowed");
    const auto row = [](const char *name, Make make, const char *allowed) {
        QTest::newRow(name) << make << QString::fromLatin1(allowed);
    };
    row(
        "nothing", [](JobState &) {}, "start close quit idle leave");
    row(
        "lists are read", [](JobState &) { g_bListsLoading = true; }, "close quit idle leave");
    row(
        "a scan was asked for", [](JobState &jobs) { jobs.planScan(); }, "start close quit leave");
    row(
        "scan", [](JobState &jobs) { jobs.begin(Job::Scan); }, "leave");
    row(
        "clone", [](JobState &jobs) { jobs.begin(Job::Clone); }, "");
    row(
        "self-test", [](JobState &jobs) { jobs.begin(Job::SelfTest); }, "start quit leave");
    row(
        "a worker on its way", [](JobState &) { g_bJobRunning = true; }, "start leave");
    row(
        "result of a scan", [](JobState &jobs) { jobs.openResult(Job::Scan); }, "start close quit idle");
    row(
        "result of a self-test", [](JobState &jobs) { jobs.openResult(Job::SelfTest); },
        "start close quit idle");
}

void tst_JobState::answers()
{
    QFETCH(Make, make);
    JobState jobs;
    make(jobs);
    QStringList allowed;
    for (const auto &[name, may] : {std::pair("start", jobs.mayStart()), std::pair("close", jobs.mayClose()),
                                    std::pair("quit", jobs.mayQuit()), std::pair("idle", jobs.isIdle()),
                                    std::pair("leave", jobs.mayLeave())})
        if (may)
            allowed << QString::fromLatin1(name);
    QTEST(allowed.join(QLatin1Char(' ')), "allowed");
}

void tst_JobState::stopEndsWhenTheThreadDoes()
{
    JobState jobs;
    jobs.begin(Job::Scan);
    g_bJobRunning = true;
    jobs.stop();
    QVERIFY(g_bAbortJob && !g_bJobRunning);
    QVERIFY(jobs.runs(Job::Scan) && !jobs.mayStart() && !jobs.mayQuit());
    jobs.end(Job::Scan);
    QVERIFY(jobs.mayStart() && jobs.mayClose());
    jobs.begin(Job::Clone);
    QVERIFY(!g_bAbortJob && jobs.runs(Job::Clone) && !jobs.runs(Job::Scan));
}

QTEST_APPLESS_MAIN(tst_JobState)
#include "tst_JobState.moc"
