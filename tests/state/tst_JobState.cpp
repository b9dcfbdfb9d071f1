// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/JobNotices.h"

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

    /// The user is told once: by the window, or by the desktop.
    void notices()
    {
        using Result = JobEnd::Result;
        QCOMPARE(jobnotices::windowTitle(QStringLiteral("V"), 42), QStringLiteral("42 % - V"));
        QCOMPARE(jobnotices::windowTitle(QStringLiteral("V"), std::nullopt), QStringLiteral("V"));
        const auto told = [](Job job, Result result, bool inFront = false) {
            const auto notice = jobnotices::notice({job, result, QStringLiteral("why")}, inFront);
            return notice ? notice->title + QLatin1Char('|') + notice->text : QString();
        };
        QCOMPARE(told(Job::Scan, Result::WithFaults), QStringLiteral("Scan Completed.|why"));
        QCOMPARE(told(Job::Scan, Result::Failed), QStringLiteral("Scan Failed.|why"));
        QCOMPARE(told(Job::Clone, Result::Well), QStringLiteral("Disk Cloning complete.|why"));
        QCOMPARE(told(Job::Clone, Result::WithFaults),
                 QStringLiteral("Disk Cloning complete with errors.|why"));
        QCOMPARE(told(Job::Clone, Result::Failed), QStringLiteral("Cloning Failed|why"));
        for (const Result result : {Result::Well, Result::Failed})
            QCOMPARE(told(Job::SelfTest, result), QStringLiteral("The self-test has ended.|why"));
        for (const Job job : {Job::Scan, Job::Clone, Job::SelfTest})
            QCOMPARE(told(job, Result::Stopped) + told(job, Result::Well, true), QString());
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
