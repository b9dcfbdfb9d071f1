#include "tests/tour/Steps.h"
#include "tests/tour/Walk.h"

namespace
{

struct Page {
    const char *step;
    const char *button;
    const char *className;
};

const Page diskStatus = {"disk-status", "DiskStatusButton", "DiskStatus"};

const Page otherPages[] = {
    {"smart-status", "SmartStatusButton", "SmartStatus"},
    {"disk-partition", "DiskPartitionButton", "DiskPartition"},
    {"scan-chooser", "ScanDiskButton", "ScanDisk"},
    {"clone-select", "CloneDiskButton", "CloneDisk"},
};

QString stepName(const Page &page, int drive)
{
    return QStringLiteral("%1 of drive %2").arg(QLatin1String(page.step)).arg(drive);
}

void goTo(Walk &walk, const Page &page)
{
    walk.goTo(QLatin1String(page.button), QLatin1String(page.className));
}

constexpr int NoDrive = -1;

/// The first screen with a disk chosen in its combo. At the very start that screen is there already.
void seeDiskStatus(Walk &walk, int drive)
{
    if (drive > 0)
        goTo(walk, diskStatus);
    if (drive != NoDrive)
        walk.selectDrive(drive);
    walk.record(QLatin1String(diskStatus.step));
}

void seePage(Walk &walk, const Page &page)
{
    goTo(walk, page);
    walk.record(QLatin1String(page.step));
}

} // namespace

StepList screenSteps(Walk &walk)
{
    StepList steps;
    const int drives = walk.driveCount();
    // A PC without a disk shows its screens all the same.
    for (int drive = drives > 0 ? 0 : NoDrive; drive < drives; ++drive) {
        steps.push_back(
            {stepName(diskStatus, drive), [drive](Walk &person) { seeDiskStatus(person, drive); }});
        for (const Page &page : otherPages) {
            steps.push_back({stepName(page, drive), [page](Walk &person) { seePage(person, page); }});
            if (QLatin1String(page.step) == QLatin1String("smart-status") && drive != NoDrive) {
                const StepList more = smartSteps(drive);
                steps.insert(steps.end(), more.begin(), more.end());
            }
        }
    }
    return steps;
}

StepList pageSteps()
{
    StepList steps;
    steps.push_back({QLatin1String(diskStatus.step), [](Walk &person) { seePage(person, diskStatus); }});
    for (const Page &page : otherPages)
        steps.push_back({QLatin1String(page.step), [page](Walk &person) { seePage(person, page); }});
    return steps;
}
