// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMutex>

#include <optional>

/// The one read of a disk's report that there may be: which disk was asked for last, whose tool runs, and
/// which disk the finished report is of. Disks go by their physical number. Any thread; nothing here waits
/// for a tool.
class CurrentRead
{
public:
    /// Asks for a disk; a report that nobody has taken is void. True where the caller has to start a reader;
    /// while one runs the disk is only remembered, and of several the last one counts.
    bool ask(int disk);

    /// The disk that the reader is to read now; none where nothing is left to be read: then the reader ends.
    /// `done` is the disk that it has read since the last call, if it has.
    std::optional<int> next(std::optional<int> done);

    /// The disk of a finished report, once. None while a reader runs.
    std::optional<int> take();

    /// Nobody wants an answer any more. What runs goes on to its end.
    void forget();

    /// A tool runs, or its report waits to be taken.
    bool isOpen() const;

private:
    mutable QMutex m_mutex;
    std::optional<int> m_asked;
    std::optional<int> m_finished;
    bool m_bRuns = false;
};
