// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"

namespace
{

const QString QuestionClass = QStringLiteral("CloseWgt");

void askToClose(Walk &walk)
{
    walk.expect(QuestionClass);
    walk.press(QStringLiteral("MainWindow"), {QStringLiteral("CloseButton")});
    walk.waitForWindow(QuestionClass);
}

/// At the first question the answer is No.
void stay(Walk &walk)
{
    askToClose(walk);
    walk.recordDialog(QuestionClass);
    walk.press(QuestionClass, {QStringLiteral("NoButton"), QStringLiteral("No")});
    walk.waitForNoWindow(QuestionClass);
}

void leave(Walk &walk)
{
    askToClose(walk);
    walk.press(QuestionClass, {QStringLiteral("YesButton"), QStringLiteral("Yes")});
    walk.waitForEnd();
}

} // namespace

StepList closeSteps(Walk &)
{
    return {{QStringLiteral("dialog:CloseWgt"), stay}, {QStringLiteral("exit"), leave, true}};
}
