// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/PreviousTest.h"

#include "inventory/CommandRunner.h"
#include "smart/ToolInvocation.h"

#include <QCoreApplication>
#include <QTextStream>

namespace
{

struct Phrase {
    const char *inLog;
    const char *shown;
};

constexpr Phrase Types[] = {
    {"Extended offline", QT_TRANSLATE_NOOP("MainWindow", "Extended Self-test")},
    {"Short offline", QT_TRANSLATE_NOOP("MainWindow", "Short Self-test")},
};

constexpr Phrase Results[] = {
    {"Aborted by host", QT_TRANSLATE_NOOP("MainWindow", "Aborted by User")},
    {"Completed without error", QT_TRANSLATE_NOOP("MainWindow", "Successfully Completed")},
    {"Completed: read failure", QT_TRANSLATE_NOOP("MainWindow", "Failed by Read Element")},
    {"Interrupted (host reset)", QT_TRANSLATE_NOOP("MainWindow", "Test Interrupted by the Host")},
    {"Fatal or unknown error", QT_TRANSLATE_NOOP("MainWindow", "Test ended by Fatal or Unknown Error")},
    {"Completed: unknown failure", QT_TRANSLATE_NOOP("MainWindow", "Test failed by Unknown Element")},
    {"Completed: electrical failure", QT_TRANSLATE_NOOP("MainWindow", "Test failed by Electrical Element")},
    {"Completed: servo/seek failure", QT_TRANSLATE_NOOP("MainWindow", "Test failed by Servo Element")},
    {"Completed: handling damage", QT_TRANSLATE_NOOP("MainWindow", "Test failed, Handling Damage suspected")},
    {"", QT_TRANSLATE_NOOP("MainWindow", "Not Available")}, // any other line
};

/// The text shown for the first phrase that the line holds; null if it holds none.
template<std::size_t N>
const char *shownFor(const QString &line, const Phrase (&phrases)[N])
{
    for (const Phrase &phrase : phrases) {
        if (line.contains(QLatin1String(phrase.inLog)))
            return phrase.shown;
    }
    return nullptr;
}

} // namespace

PreviousTest newestTest(QTextStream &log)
{
    PreviousTest test;
    while (!log.atEnd()) {
        const QString line = log.readLine();
        const char *type = shownFor(line, Types);
        if (!type)
            continue;
        test.type = QCoreApplication::translate("MainWindow", type);
        if (!log.atEnd())
            test.result = QCoreApplication::translate("MainWindow", shownFor(line, Results));
        break;
    }
    return test;
}

PreviousTest ReadPreviousTest(const QString &device)
{
    PreviousTest test;
    runner::readOutput(runTool(ToolPurpose::SelfTestLog, device),
                       [&test](QTextStream &log) { test = newestTest(log); });
    return test;
}
