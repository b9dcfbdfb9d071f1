// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/JobState.h"

#include <QString>

#include <optional>

/// How a job has ended.
struct JobEnd {
    enum class Result {
        Well,
        WithFaults, ///< done, but a disk is damaged or the copy lacks something
        Failed,
        Stopped ///< by the user
    };
    JobState::Job job = JobState::Job::Scan;
    Result result = Result::Well;
    QString detail; ///< translated; empty if there is nothing more to tell
};

/// What somebody is told of a job who does not look at the window. Translated.
namespace jobnotices
{

/// The title of the window while a job has done so many percent, such as "42 % - Velmora Halvane"; `plain`
/// while none runs.
QString windowTitle(const QString &plain, std::optional<int> percent);

struct Notice {
    QString title;
    QString text;
};

/// What the desktop tells of the end of a job; nothing where the user sees it, or has ended the job himself.
std::optional<Notice> notice(const JobEnd &end, bool inFront);

} // namespace jobnotices
