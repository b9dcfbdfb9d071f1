// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/JobState.h"

#include <QtTest>

using Job = JobState::Job;

/// What may be done in each state.
class tst_JobState : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        g_bJobRunning = false;
        g_bSelfTestRunning = false;
        g_bListsLoading = false;
        g_bScanStarted = false;
        g_bAbortJob = false;
        JobState().closeResults();
    }

    void answers()
    {
        const auto allowed = [this](const std::function<void(JobState &)> &make) {
            JobState jobs;
            make(jobs);
            const QString words = QLatin1String(jobs.mayStart() ? "start " : "") +
                                  QLatin1String(jobs.mayClose() ? "close " : "") +
                                  QLatin1String(jobs.mayQuit() ? "quit " : "") +
                                  QLatin1String(jobs.isIdle() ? "idle " : "") +
                                  QLatin1String(jobs.mayLeave() ? "leave" : "");
            cleanup();
            return words.trimmed();
        };
        using Jobs = JobState;
        QCOMPARE(allowed([](Jobs &) {}), QString("start close quit idle leave"));
        QCOMPARE(allowed([](Jobs &) { g_bListsLoading = true; }), QString("close quit idle leave"));
        QCOMPARE(allowed([](Jobs &jobs) { jobs.planScan(); }), QString("start close quit leave"));
        QCOMPARE(allowed([](Jobs &jobs) { jobs.begin(Job::Scan); }), QString("leave"));
        QCOMPARE(allowed([](Jobs &jobs) { jobs.begin(Job::Clone); }), QString());
        QCOMPARE(allowed([](Jobs &jobs) { jobs.begin(Job::SelfTest); }), QString("start quit leave"));
        QCOMPARE(allowed([](Jobs &) { g_bJobRunning = true; }), QString("start leave"));
        for (const Job job : {Job::Scan, Job::SelfTest})
            QCOMPARE(allowed([job](Jobs &jobs) { jobs.openResult(job); }), QString("start close quit idle"));
    }

    void stopEndsWhenTheThreadDoes()
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
};

QTEST_APPLESS_MAIN(tst_JobState)
#include "tst_JobState.moc"
