// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/ToolInvocation.h"

#include <QMutex>
#include <QThread>

#include <optional>

/// Reads the report of a disk off the main thread, one at a time. A run goes on until the disk asked for last
/// is read. The destructor waits for the tool that runs, without a time limit.
class SMARTThread : public QThread
{
    Q_OBJECT

public:
    explicit SMARTThread(QObject *parent = nullptr);
    ~SMARTThread() override;

    /// Asks for the report of a disk; one that was not taken yet is void. Never waits for a tool: during a
    /// read the disk is remembered, the last one wins, and is read behind it. Main thread only.
    void RequestSmartRead(int diskIndex);
    /// The report of a finished read, once. None while a read runs.
    std::optional<LoadedReport> takeReport();
    /// Nobody wants the report any more. The tool that runs goes on to its end.
    void forget();
    /// A read runs, or its report was not taken yet.
    bool isReading() const;

signals:
    /// A report is there to be taken.
    void OnLodingSmarInfo();

protected:
    void run() override;

private:
    std::optional<int> next(const std::optional<LoadedReport> &read);

    mutable QMutex m_mutex;
    std::optional<int> m_asked; ///< the disk asked for last, until its report is there
    std::optional<LoadedReport> m_report;
    bool m_bRuns = false;
};
