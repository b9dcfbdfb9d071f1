// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/SelfTestGlobals.h"
#include "smart/SelfTestText.h"

#include <QString>

#include <optional>

/// The drive's own self-test from its preparation to its end, in the globals of SelfTestGlobals.h and in
/// g_Jobs. Its disk is that of g_strSelfTestDevice. Whatever runs the tool blocks. Main thread only.
class SelfTest
{
public:
    /// What a reading of the drive tells.
    struct Step {
        selftest::Told told;
        int percent = 0;            ///< done, of InProgress alone
        std::optional<int> minutes; ///< that remain, where their number has changed
    };
    struct Tick {
        bool aborted = false; ///< the drive was told to abort since the last tick, and the test has ended
        bool opened = false;  ///< the tool ran, and the clock has gone on
        QVector<Step> steps;  ///< in the order of the text
    };

    /// What is to be shown of the test.
    struct Shown {
        std::optional<SelfTestKind> kind;
        QString model;
        QString serial;
        int percent = 0;
        bool progress = true; ///< the progress bar and the percentage beside it
        bool times = true;    ///< the cards of the three times
        std::optional<selftest::Told> status;
        std::optional<int> pollingMinutes;
        std::optional<int> remainingMinutes;
        QString elapsed;
    };

    /// What is to be shown since the last call of prepare(), start() or tick().
    const Shown &shown() const { return m_shown; }

    /// Reads what the disk can do and the polling time of `kind`; without a kind only the former.
    void prepare(std::optional<SelfTestKind> kind);
    bool canRun() const;
    /// Starts the prepared test. False where there is none, or where the tool did not run: then it has ended.
    bool start();
    /// Reads how the test stands; meant to come once a second. After the polling time the remaining minutes
    /// fall no further.
    Tick tick();
    /// Tells the drive to abort; the next tick ends the test.
    void abort();
    void end();

    /// "05:07:09"; an extended test of a large disk takes more than a day: "26:07:09".
    QString elapsedText() const;

private:
    bool passesOver(bool found);
    Step stepOf(const selftest::StatusEvent &event);
    void show(const Step &step);
    void showEnd(selftest::Told how);
    void tickClock();

    Shown m_shown;
    int m_nElapsedDays = 0; ///< whole days of the elapsed time
    int m_nSilentTicks = 0; ///< readings in a row that found no status
};
