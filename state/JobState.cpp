// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/JobState.h"

void JobState::begin(Job job)
{
    if (job == Job::SelfTest) {
        g_bSelfTestRunning = true;
        return;
    }
    g_bAbortJob = false;
    (job == Job::Scan ? m_bScanning : m_bCloning) = true;
}

void JobState::end(Job job)
{
    if (job == Job::SelfTest)
        g_bSelfTestRunning = false;
    else
        (job == Job::Scan ? m_bScanning : m_bCloning) = false;
}

bool JobState::runs(Job job) const
{
    if (job == Job::SelfTest)
        return g_bSelfTestRunning;
    return job == Job::Scan ? m_bScanning : m_bCloning;
}

void JobState::stop()
{
    g_bAbortJob = true;
    g_bJobRunning = false;
}

void JobState::openResult(Job job)
{
    g_bScanResultOpen = job == Job::Scan;
    g_bSelfTestResultOpen = job == Job::SelfTest;
}

void JobState::closeResults()
{
    g_bScanResultOpen = false;
    g_bSelfTestResultOpen = false;
}
