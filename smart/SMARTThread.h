// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/CurrentRead.h"
#include "smart/ToolInvocation.h"

#include <QThread>

/// Reads the report of a disk off the main thread, one at a time. A run goes on until the disk asked for last
/// is read. The destructor waits for the tool that runs, without a time limit.
class SMARTThread : public QThread
{
    Q_OBJECT

public:
    explicit SMARTThread(QObject *parent = nullptr);
    ~SMARTThread() override;

    /// Asks for the report of a disk. Never waits for a tool: during a read the disk is remembered, the last
    /// one wins, and is read behind it. Main thread only.
    void RequestSmartRead(int diskIndex);
    /// The report of a finished read, once. None while a read runs.
    std::optional<LoadedReport> takeReport();
    /// The report that is under way is not wanted any more.
    void forget() { m_read.forget(); }
    /// A read runs, or its report was not taken yet.
    bool isReading() const { return m_read.isOpen(); }

signals:
    /// A report is there to be taken.
    void OnLodingSmarInfo();

protected:
    void run() override;

private:
    CurrentRead m_read;
    LoadedReport m_report; ///< of the main thread while m_read has it to be taken
};
