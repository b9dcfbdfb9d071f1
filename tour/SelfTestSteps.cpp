// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"
#include "tour/Windows.h"

#include <QJsonArray>
#include <QProgressBar>

namespace
{

const QString MainWindowClass = QStringLiteral("MainWindow");
const QString RefusalClass = QStringLiteral("SelfTestNotSupported");
const QString QuestionClass = QStringLiteral("ConfarmetionClass");
const QString StopButton = QStringLiteral("StopTestButton");
const QString StartButton = QStringLiteral("ScanButton");

struct Wish {
    int disk = -1;
    QString kind;

    QString name(const char *what) const
    {
        return QStringLiteral("%1 of disk %2, %3").arg(QLatin1String(what)).arg(disk).arg(kind);
    }
};

/// The percentage of the test that is done; -1 if no test runs. GUI thread.
double percent()
{
    const QWidget *page = windows::byClass(QStringLiteral("ScanDisk"));
    const auto bars = page ? page->findChildren<QProgressBar *>() : QList<QProgressBar *>();
    for (const QProgressBar *bar : bars) {
        if (bar->isVisible())
            return bar->value();
    }
    return -1;
}

bool canPress(const QString &button)
{
    return windows::button(windows::byClass(MainWindowClass), {button}) != nullptr;
}

/// False if the drive has no self-tests; the message about it is recorded.
bool startTest(Walk &walk, const Wish &wish)
{
    const Expectation refusal(&walk, RefusalClass);
    walk.goTo(QStringLiteral("DiskStatusButton"), QStringLiteral("DiskStatus"));
    walk.selectDisk(wish.disk);
    walk.goTo(QStringLiteral("ScanDiskButton"), QStringLiteral("ScanDisk"));
    const bool extended = wish.kind == QLatin1String("long");
    walk.press(MainWindowClass,
               {extended ? QStringLiteral("radioButton_3") : QStringLiteral("radioButton_2")});
    walk.press(MainWindowClass, {StartButton});
    walk.waitFor(QStringLiteral("the start of the self-test"),
                 []() { return windows::byClass(RefusalClass) || canPress(StopButton); });
    if (!walk.sees(RefusalClass))
        return true;
    walk.answer(RefusalClass, QStringLiteral("CloseButton"));
    return false;
}

bool ended()
{
    return !canPress(StopButton) && canPress(StartButton);
}

/// Records the test as soon as it has got on.
void seeRunning(Walk &walk)
{
    walk.waitWhileRising(QStringLiteral("the progress of the self-test"), percent,
                         []() { return percent() > 0 || ended(); });
    if (!walk.program().ask(ended))
        walk.record(QStringLiteral("self-test-running"));
}

void seeToEnd(Walk &walk, const Wish &wish)
{
    if (!startTest(walk, wish))
        return;
    seeRunning(walk);
    walk.waitWhileRising(QStringLiteral("the end of the self-test"), percent, ended);
    walk.record(QStringLiteral("self-test-finished"));
}

/// Aborts the test that was started.
void abort(Walk &walk)
{
    const Expectation question(&walk, QuestionClass);
    walk.press(MainWindowClass, {StopButton});
    walk.answer(QuestionClass, QStringLiteral("YesButton"));
    walk.waitFor(QStringLiteral("the end of the self-test"), ended);
    walk.record(QStringLiteral("self-test-aborted"));
}

void leaveResults(Walk &walk)
{
    walk.goTo(QStringLiteral("DiskStatusButton"), QStringLiteral("DiskStatus"));
}

} // namespace

StepList selfTestSteps(Walk &walk)
{
    StepList steps;
    const QJsonArray wishes = walk.plan().wishes[QStringLiteral("selfTest")].toArray();
    for (const QJsonValue &value : wishes) {
        const Wish wish{value.toArray().at(0).toInt(-1), value.toArray().at(1).toString()};
        steps.push_back({wish.name("self-test-finished"), [wish](Walk &person) { seeToEnd(person, wish); }});
        steps.push_back({wish.name("self-test-aborted"), [wish](Walk &person) {
                             if (startTest(person, wish))
                                 abort(person);
                         }});
        steps.push_back({wish.name("end of the self-test"), leaveResults});
    }
    return steps;
}

StepList stoppedSelfTestSteps(int disk)
{
    const Wish wish{disk, QStringLiteral("short")};
    const auto test = [wish](Walk &walk) {
        if (startTest(walk, wish)) {
            seeRunning(walk);
            abort(walk);
        }
        leaveResults(walk);
    };
    return {{wish.name("self-test-aborted"), test}};
}
