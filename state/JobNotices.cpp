// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/JobNotices.h"

#include <QCoreApplication>

namespace jobnotices
{

namespace
{

struct Words {
    JobState::Job job;
    JobEnd::Result result;
    const char *context;
    const char *text;
};

using Job = JobState::Job;
using Result = JobEnd::Result;

/// An end without a row is told by nobody.
constexpr Words EndWords[] = {
    {Job::Scan, Result::Well, "ScanDisk", QT_TRANSLATE_NOOP("ScanDisk", "Scan Completed.")},
    {Job::Scan, Result::WithFaults, "ScanDisk", QT_TRANSLATE_NOOP("ScanDisk", "Scan Completed.")},
    {Job::Scan, Result::Failed, "ScanDisk", QT_TRANSLATE_NOOP("ScanDisk", "Scan Failed.")},
    {Job::Clone, Result::Well, "CloneDisk", QT_TRANSLATE_NOOP("CloneDisk", "Disk Cloning complete.")},
    {Job::Clone, Result::WithFaults, "CloneDisk",
     QT_TRANSLATE_NOOP("CloneDisk", "Disk Cloning complete with errors.")},
    {Job::Clone, Result::Failed, "CloneDisk", QT_TRANSLATE_NOOP("CloneDisk", "Cloning Failed")},
    {Job::SelfTest, Result::Well, "MainWindow", QT_TRANSLATE_NOOP("MainWindow", "The self-test has ended.")},
    {Job::SelfTest, Result::Failed, "MainWindow",
     QT_TRANSLATE_NOOP("MainWindow", "The self-test has ended.")},
};

} // namespace

QString windowTitle(const QString &plain, std::optional<int> percent)
{
    return percent ? QString::number(*percent) + QLatin1String(" % - ") + plain : plain;
}

std::optional<Notice> notice(const JobEnd &end, bool inFront)
{
    if (inFront)
        return std::nullopt;
    for (const Words &words : EndWords) {
        if (words.job == end.job && words.result == end.result)
            return Notice{QCoreApplication::translate(words.context, words.text), end.detail};
    }
    return std::nullopt;
}

} // namespace jobnotices
