// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tour/Program.h"
#include "tour/Steps.h"
#include "tour/TourPlan.h"
#include "tour/TourReport.h"

#include <functional>
#include <thread>

class Walk;

/// Runs the steps on a thread of its own and collects the results.
class TourDriver
{
public:
    /// `abandon` ends the process when the program hangs; it gets the exit status and does not return.
    TourDriver(const TourPlan &plan, std::function<void(int)> abandon);
    ~TourDriver();

    /// Begins the walk. GUI thread, while the application object is being made.
    void start();

    /// Call it when the program has ended, with its exit code. Waits for the end of the steps and returns the
    /// exit status of the tour: 0 if every step was done and the program ended with 0, else 1. Any thread but
    /// that of the steps.
    int finish(int exitCode);

private:
    void walkAll();
    void walkChapter(const Chapter &chapter, Walk &walk);
    void runStep(const Step &step, Walk &walk);
    void noteSkippedWishes();
    void endProgram();

    TourPlan m_plan;
    std::function<void(int)> m_abandon;
    Program m_program;
    TourReport m_report;
    std::thread m_thread;
    bool m_bWalkedToEnd = false;
};
