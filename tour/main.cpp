// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"
#include "tour/TourDriver.h"
#include "tour/TourPlan.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <memory>

/// The tour: starts the program as its own main() does, and uses it as a person would.
/// Exit status: 0 all steps done, 1 a step failed, 2 the program hung, 64 wrong command line.

namespace
{

constexpr int UsageStatus = 64;

std::unique_ptr<QTemporaryDir> stateFolder;
std::unique_ptr<TourDriver> driver;

void startDriver()
{
    if (driver)
        driver->start();
}
Q_COREAPP_STARTUP_FUNCTION(startDriver)

int finish(int exitCode)
{
    const std::unique_ptr<TourDriver> ending = std::move(driver);
    const int status = ending->finish(exitCode);
    stateFolder.reset();
    return status;
}

/// Ends the process if the program hangs. Called on the tour's thread.
void abandon(int status)
{
    stateFolder.reset();
    std::_Exit(status);
}

/// Leaves out the lines that the offscreen platform writes for every window.
void message(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

/// The program may call exit(), as a second instance does.
void finishEarly()
{
    if (driver)
        std::_Exit(finish(EXIT_SUCCESS));
}

} // namespace

int main(int argc, char **argv)
{
    TourPlan plan;
    QString error;
    if (!tourplan::read(argc, argv, &plan, &error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return UsageStatus;
    }
    QDir().mkpath(QFileInfo(plan.out).path());
    stateFolder = std::make_unique<QTemporaryDir>(plan.out + QStringLiteral("-state-XXXXXX"));
    tourplan::setEnvironment(plan, stateFolder->path());
    driver = std::make_unique<TourDriver>(plan, abandon);
    std::atexit(finishEarly);
    qInstallMessageHandler(message);

    // The tour cannot use a file dialog of the system.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // The program gets no arguments; those of the command line are for the tour.
    char *arguments[] = {argv[0], nullptr};
    return finish(runApplication(1, arguments));
}
