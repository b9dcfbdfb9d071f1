// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"
#include "tour/Windows.h"

#include <QVariant>
#include <QWidget>

namespace
{

const QString MainWindowClass = QStringLiteral("MainWindow");
const QString ResultClass = QStringLiteral("InfoDialogClass");
const QString QuestionClass = QStringLiteral("ConfarmetionClass");
const QString StopButton = QStringLiteral("StopButton");

/// The sectors that a scan has to read and those that it has read; -1 if no map shows. GUI thread.
double mapValue(const char *property)
{
    const QWidget *map = windows::byClass(QStringLiteral("QGridView"));
    return map ? map->property(property).toDouble() : -1;
}

double position()
{
    return mapValue("position");
}

void openChooser(Walk &walk, int disk)
{
    walk.goTo(QStringLiteral("DiskStatusButton"), QStringLiteral("DiskStatus"));
    walk.selectDisk(disk);
    walk.goTo(QStringLiteral("ScanDiskButton"), QStringLiteral("ScanDisk"));
    walk.press(MainWindowClass, {QStringLiteral("radioButton")});
}

/// Waits until so much of the disk is read. False if the scan ended before.
bool waitForShare(Walk &walk, double share)
{
    walk.waitWhileRising(QStringLiteral("the progress of the scan"), position, [share]() {
        const double total = mapValue("totalSectors");
        return windows::byClass(ResultClass) || (total > 0 && position() >= share * total);
    });
    if (!walk.sees(ResultClass))
        return true;
    TourReport::log(QStringLiteral("the scan ended before it could be looked at"));
    return false;
}

void startScan(Walk &walk)
{
    walk.press(MainWindowClass, {QStringLiteral("ScanButton")});
    walk.waitFor(QStringLiteral("the start of the scan"), []() {
        return windows::byClass(ResultClass) ||
               windows::button(windows::byClass(QStringLiteral("MainWindow")), {StopButton});
    });
}

void closeResult(Walk &walk, const QString &step)
{
    walk.answer(ResultClass, QStringLiteral("OkButton"));
    walk.record(step);
}

void seeRunning(Walk &walk, int disk)
{
    const Expectation result(&walk, ResultClass);
    openChooser(walk, disk);
    startScan(walk);
    if (waitForShare(walk, 0.5))
        walk.record(QStringLiteral("scan-running"));
}

void seeFinished(Walk &walk)
{
    const Expectation result(&walk, ResultClass);
    walk.waitWhileRising(QStringLiteral("the end of the scan"), position,
                         []() { return windows::byClass(ResultClass) != nullptr; });
    closeResult(walk, QStringLiteral("scan-finished"));
}

/// False if the scan ended first; then its question is closed, too.
bool stopScan(Walk &walk)
{
    try {
        walk.press(MainWindowClass, {StopButton});
        walk.answer(QuestionClass, QStringLiteral("YesButton"));
    } catch (const StepFailed &) {
        if (!walk.sees(ResultClass))
            throw;
        walk.beginStep();
        TourReport::log(QStringLiteral("the scan ended before it could be stopped"));
        return false;
    }
    walk.waitForWindow(ResultClass);
    return true;
}

/// Scans the disk once more, from the page with the last results, and stops.
void seeStopped(Walk &walk, bool recordRunning)
{
    const Expectation result(&walk, ResultClass);
    const Expectation question(&walk, QuestionClass);
    startScan(walk);
    const bool running = waitForShare(walk, 0.25);
    if (running && recordRunning)
        walk.record(QStringLiteral("scan-running"));
    if (running && stopScan(walk))
        closeResult(walk, QStringLiteral("scan-stopped"));
    else
        walk.answer(ResultClass, QStringLiteral("OkButton"));
}

/// Leaves the results, as the next chapter expects.
void leaveResults(Walk &walk)
{
    walk.goTo(QStringLiteral("DiskStatusButton"), QStringLiteral("DiskStatus"));
}

} // namespace

StepList scanSteps(Walk &walk)
{
    StepList steps;
    const QJsonArray disks = walk.plan().wishes[QStringLiteral("scan")].toArray();
    for (const QJsonValue &wish : disks) {
        const int disk = wish.toInt(-1);
        const auto name = [disk](const char *what) {
            return QStringLiteral("%1 of disk %2").arg(QLatin1String(what)).arg(disk);
        };
        steps.push_back({name("scan-running"), [disk](Walk &person) { seeRunning(person, disk); }});
        steps.push_back({name("scan-finished"), seeFinished});
        steps.push_back({name("scan-stopped"), [](Walk &person) { seeStopped(person, false); }});
        steps.push_back({name("end of the scans"), leaveResults});
    }
    return steps;
}

StepList stoppedScanSteps(int disk)
{
    const auto scan = [disk](Walk &walk) {
        openChooser(walk, disk);
        seeStopped(walk, true);
        leaveResults(walk);
    };
    return {{QStringLiteral("scan-stopped of disk %1").arg(disk), scan}};
}
