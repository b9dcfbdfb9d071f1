// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"
#include "tour/Windows.h"

#include <QJsonArray>
#include <QLabel>
#include <QVariant>

namespace
{

const QString MainWindowClass = QStringLiteral("MainWindow");
const QString QuestionClass = QStringLiteral("CloneWarning");
const QString TargetClass = QStringLiteral("DestinitionWarning");
const QString ResultClass = QStringLiteral("InfoDialogClass");
const QString StopQuestionClass = QStringLiteral("ConfarmetionClass");
const QString SourceCombo = QStringLiteral("SourceComboBox");
const QString TargetCombo = QStringLiteral("DestinationComboBox");
const QString CloneButton = QStringLiteral("CloneButton");

struct Wish {
    int source = -1;
    int target = -1;

    QString name(const char *what) const
    {
        return QStringLiteral("%1 of disk %2 onto %3").arg(QLatin1String(what)).arg(source).arg(target);
    }
};

/// The percentage of the gauge; -1 if none shows. GUI thread.
double percent()
{
    const QWidget *gauge = windows::byClass(QStringLiteral("QRoundProgressBar"));
    return gauge ? gauge->property("value").toDouble() : -1;
}

/// The sectors that the page shows for one of its disks; -1 if it shows none. GUI thread.
qint64 sectorsOf(const char *label)
{
    const auto *told = qobject_cast<QLabel *>(
        windows::child(windows::byClass(QStringLiteral("CloneDisk")), QLatin1String(label)));
    bool isNumber = false;
    const qint64 sectors =
        told ? told->text().section(QLatin1Char(':'), 1).trimmed().toLongLong(&isNumber) : 0;
    return isNumber ? sectors : -1;
}

void openPage(Walk &walk, int source)
{
    walk.goTo(QStringLiteral("DiskStatusButton"), QStringLiteral("DiskStatus"));
    walk.selectDisk(source);
    walk.goTo(QStringLiteral("CloneDiskButton"), QStringLiteral("CloneDisk"));
}

void seeNoTarget(Walk &walk, const Wish &wish)
{
    openPage(walk, wish.source);
    const Expectation refusal(&walk, TargetClass);
    walk.press(MainWindowClass, {CloneButton});
    walk.answer(TargetClass, QStringLiteral("CloseButton"));
}

void closeRefusal(Walk &walk)
{
    const Expectation refusal(&walk, ResultClass);
    walk.answer(QuestionClass, QStringLiteral("StartButton"));
    walk.answer(ResultClass, QStringLiteral("OkButton"));
}

/// The source is changed to the target while the question is open.
void seeSameDisk(Walk &walk, const Wish &wish)
{
    const Expectation question(&walk, QuestionClass);
    openPage(walk, wish.source);
    walk.chooseDisk(TargetCombo, wish.target);
    walk.press(MainWindowClass, {CloneButton});
    walk.waitForWindow(QuestionClass);
    walk.chooseDisk(SourceCombo, wish.target);
    closeRefusal(walk);
}

/// Source and destination exchanged, if that destination is too small.
void seeSmallTarget(Walk &walk, const Wish &wish)
{
    openPage(walk, wish.target);
    walk.chooseDisk(TargetCombo, wish.source);
    const bool tooSmall = walk.program().ask([]() {
        const qint64 target = sectorsOf("TargetSectorLBl");
        return target >= 0 && target < sectorsOf("SectorLbl");
    });
    if (!tooSmall)
        return;
    const Expectation question(&walk, QuestionClass);
    walk.press(MainWindowClass, {CloneButton});
    closeRefusal(walk);
}

void startClone(Walk &walk, const Wish &wish)
{
    const Expectation question(&walk, QuestionClass);
    openPage(walk, wish.source);
    walk.chooseDisk(TargetCombo, wish.target);
    walk.record(QStringLiteral("clone-select"));
    walk.press(MainWindowClass, {CloneButton});
    walk.answer(QuestionClass, QStringLiteral("StartButton"));
    walk.waitFor(QStringLiteral("the start of the clone"), []() { return percent() >= 0; });
}

/// Waits until so many percent are copied. False if the clone ended before.
bool waitForPercent(Walk &walk, double wanted)
{
    walk.waitWhileRising(QStringLiteral("the progress of the clone"), percent,
                         [wanted]() { return windows::byClass(ResultClass) || percent() >= wanted; });
    if (!walk.sees(ResultClass))
        return true;
    TourReport::log(QStringLiteral("the clone ended before it could be looked at"));
    return false;
}

void seeToEnd(Walk &walk, const Wish &wish)
{
    const Expectation result(&walk, ResultClass);
    startClone(walk, wish);
    for (const double wanted : {0.0, 30.0, 70.0}) {
        if (waitForPercent(walk, wanted))
            walk.record(QStringLiteral("clone-running"));
    }
    walk.waitWhileRising(QStringLiteral("the end of the clone"), percent,
                         []() { return windows::byClass(ResultClass) != nullptr; });
    walk.record(QStringLiteral("clone-finished"));
    walk.answer(ResultClass, QStringLiteral("OkButton"));
}

void seeStopped(Walk &walk, const Wish &wish, bool recordRunning)
{
    const Expectation result(&walk, ResultClass);
    const Expectation question(&walk, StopQuestionClass);
    startClone(walk, wish);
    if (waitForPercent(walk, 1.0)) {
        if (recordRunning)
            walk.record(QStringLiteral("clone-running"));
        walk.press(MainWindowClass, {QStringLiteral("StopButton")});
        walk.answer(StopQuestionClass, QStringLiteral("YesButton"));
        walk.waitForWindow(ResultClass);
        // The result comes up a moment before the thread of the clone has ended.
        walk.waitFor(QStringLiteral("the end of the clone"), []() {
            return windows::child(windows::byClass(MainWindowClass), QStringLiteral("CloneButton")) !=
                   nullptr;
        });
        walk.record(QStringLiteral("clone-stopped"));
    }
    walk.answer(ResultClass, QStringLiteral("OkButton"));
}

void leave(Walk &walk)
{
    walk.goTo(QStringLiteral("DiskStatusButton"), QStringLiteral("DiskStatus"));
}

} // namespace

StepList cloneSteps(Walk &walk)
{
    using Action = void (*)(Walk &, const Wish &);
    static const struct {
        const char *name;
        Action run;
    } actions[] = {
        {"clone without a target", seeNoTarget},
        {"clone refused, same disk", seeSameDisk},
        {"clone refused, too small", seeSmallTarget},
        {"clone-finished", seeToEnd},
        {"clone-stopped", [](Walk &person, const Wish &wish) { seeStopped(person, wish, false); }},
    };
    StepList steps;
    const QJsonArray wishes = walk.plan().wishes[QStringLiteral("clone")].toArray();
    for (const QJsonValue &value : wishes) {
        const Wish wish{value.toArray().at(0).toInt(-1), value.toArray().at(1).toInt(-1)};
        for (const auto &action : actions) {
            const Action run = action.run;
            steps.push_back({wish.name(action.name), [wish, run](Walk &person) { run(person, wish); }});
        }
        steps.push_back({wish.name("end of the clone"), leave});
    }
    return steps;
}

StepList stoppedCloneSteps(int source, int target)
{
    const Wish wish{source, target};
    return {{wish.name("clone without a target"), [wish](Walk &walk) { seeNoTarget(walk, wish); }},
            {wish.name("clone-stopped"), [wish](Walk &walk) {
                 seeStopped(walk, wish, true);
                 leave(walk);
             }}};
}
