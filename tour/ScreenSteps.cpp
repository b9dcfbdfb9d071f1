// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"

namespace
{

constexpr int DiskStatusPage = 0; ///< in pages()

QString stepName(const Page &page, int drive)
{
    return QStringLiteral("%1 of drive %2").arg(QLatin1String(page.step)).arg(drive);
}

void goTo(Walk &walk, const Page &page)
{
    walk.goTo(QLatin1String(page.button), QLatin1String(page.className));
}

/// Disk Status while its disk is read, if there is one.
Step busyStep()
{
    return {QStringLiteral("busy"), [](Walk &walk) {
                if (walk.driveCount() == 0)
                    return;
                goTo(walk, pages()[DiskStatusPage]);
                walk.recordBusy();
            }};
}

constexpr int NoDrive = -1;

/// Disk Status of a disk. For the first disk that screen shows already.
void seeDiskStatus(Walk &walk, int drive)
{
    const Page &page = pages()[DiskStatusPage];
    if (drive > 0)
        goTo(walk, page);
    if (drive != NoDrive)
        walk.selectDrive(drive);
    walk.record(QLatin1String(page.step));
}

void seePage(Walk &walk, const Page &page)
{
    goTo(walk, page);
    walk.record(QLatin1String(page.step));
}

} // namespace

const std::vector<Page> &pages()
{
    static const std::vector<Page> all{
        {"disk-status", "DiskStatusButton", "DiskStatus"},
        {"smart-status", "SmartStatusButton", "SmartStatus"},
        {"disk-partition", "DiskPartitionButton", "DiskPartition"},
        {"scan-chooser", "ScanDiskButton", "ScanDisk"},
        {"clone-select", "CloneDiskButton", "CloneDisk"},
    };
    return all;
}

StepList screenSteps(Walk &walk)
{
    StepList steps;
    const int drives = walk.driveCount();
    // A PC without disks shows its screens, too.
    for (int drive = drives > 0 ? 0 : NoDrive; drive < drives; ++drive) {
        for (const Page &page : pages()) {
            const bool first = &page == &pages()[DiskStatusPage];
            steps.push_back({stepName(page, drive), [drive, page, first](Walk &person) {
                                 first ? seeDiskStatus(person, drive) : seePage(person, page);
                             }});
            if (QLatin1String(page.step) == QLatin1String("smart-status") && drive != NoDrive) {
                const StepList more = smartSteps(drive);
                steps.insert(steps.end(), more.begin(), more.end());
            }
        }
    }
    steps.push_back(busyStep());
    return steps;
}

StepList pageSteps()
{
    StepList steps;
    for (const Page &page : pages())
        steps.push_back({QLatin1String(page.step), [page](Walk &person) { seePage(person, page); }});
    steps.push_back(busyStep());
    return steps;
}
