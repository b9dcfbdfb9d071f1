// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <vector>

class Walk;

/// One thing that the tour does, with a time limit of its own.
struct Step {
    QString name; ///< of the step in `failed`
    std::function<void(Walk &)> run;
    bool essential = false; ///< if it fails, the tour ends
};

using StepList = std::vector<Step>;

/// One of the five screens: how a step that shows it is named, its navigation button, its class.
struct Page {
    const char *step;
    const char *button;
    const char *className;
};

/// All of them, in the order of the navigation.
const std::vector<Page> &pages();

/// A part of the tour. Its steps are made when it begins, so they may depend on what the program shows.
struct Chapter {
    QString name;
    std::function<StepList(Walk &)> steps;
    bool onWish = false; ///< done only if "tour" of the described PC has this name
};

/// \name Chapters, each in a file of its own
/// @{
StepList startSteps(Walk &walk);
StepList screenSteps(Walk &walk);
StepList menuSteps(Walk &walk);
StepList settingsSteps(Walk &walk);
StepList hurrySteps(Walk &walk);
StepList scanSteps(Walk &walk);
StepList selfTestSteps(Walk &walk);
StepList cloneSteps(Walk &walk);
StepList jobSteps(Walk &walk);
StepList updateSteps(Walk &walk);
StepList languageSteps(Walk &walk);
StepList aboutSteps(Walk &walk);
StepList companionSteps(Walk &walk);
StepList closeSteps(Walk &walk);
/// @}

/// Graphs, report and screenshot of a drive whose SMART Status shows. By its place in the combo.
StepList smartSteps(int drive);

/// \name A job that is looked at while it runs, and then stopped. Disks by their physical numbers.
/// @{
StepList stoppedScanSteps(int disk);
StepList stoppedSelfTestSteps(int disk);
StepList stoppedCloneSteps(int source, int target);
/// @}

/// The five screens once, for the disk that is chosen, and the first one while it is read.
StepList pageSteps();

/// The whole walk in its order.
const std::vector<Chapter> &chapters();
