// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tour/Hand.h"
#include "tour/Program.h"
#include "tour/TourPlan.h"
#include "tour/TourReport.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

/// The operations of which the steps of the tour consist: what a person does, sees and waits for. Windows and
/// pages are named by their class, widgets by object name or text. An operation that is not done before the
/// step's time is over throws StepFailed. Tour thread only.
class Walk
{
public:
    Walk(Program *program, TourReport *report, const TourPlan *plan);

    const TourPlan &plan() const { return *m_pPlan; }
    Program &program() { return *m_pProgram; }

    /// Begins a step: its time starts now.
    void beginStep();

    /// Waits until `condition` is true; it runs on the GUI thread. `what` names it in the log.
    void waitFor(const QString &what, const std::function<bool()> &condition);
    void waitForWindow(const QString &className);
    void waitForNoWindow(const QString &className);
    /// Waits until no report is read and nothing else runs.
    void waitIdle();
    /// Waits until the program has ended.
    void waitForEnd();
    /// Like waitFor, for long work: the step's time begins anew whenever `progress` has risen. Both run on
    /// the GUI thread.
    void waitWhileRising(const QString &what, const std::function<double()> &progress,
                         const std::function<bool()> &condition);
    /// Whether any visible window or page is of that class.
    bool sees(const QString &windowClass);

    /// Presses and releases the mouse on the button of that window.
    void press(const QString &windowClass, const QStringList &buttonNames);
    /// Answers a dialog that the step expects: waits for it, records it, presses a button, waits until it
    /// closes.
    void answer(const QString &windowClass, const QString &buttonName);
    /// Presses a button that opens a file dialog, and enters `name` in the folder of the tour. The dialog is
    /// not recorded, as it shows folders of the machine. Waits for the file.
    void saveAs(const QString &buttonName, const QString &name);
    /// Presses a navigation button and waits for its page. Answers Yes if the results of a test would be
    /// lost.
    void goTo(const QString &buttonName, const QString &pageClass);
    /// Chooses an item of the drive combo with the mouse and waits until the disk has been read.
    void selectDrive(int index);
    /// The same by the physical number of the disk.
    void selectDisk(int number);
    /// Chooses an item of a combo of the main window with the mouse.
    void chooseItem(const QString &comboName, int index);
    /// The same by the physical number of the disk that the item stands for.
    void chooseDisk(const QString &comboName, int number);
    /// Clicks a row of a tree after scrolling to it.
    void clickRow(const QString &treeName, int row);
    /// Opens the list of the drive combo, records it as `drive-list`, and closes it.
    void recordDriveList();
    /// Opens the menu of a button of the main window.
    void openMenu(const QString &buttonName);
    void chooseInMenu(const QString &actionName);
    void closeMenu();

    /// Number of items in the drive combo.
    int driveCount();

    /// Chooses an item of the drive combo within a moment, as the arrow keys do, and waits for nothing.
    void hurryToDrive(int index);
    /// Presses a navigation button and waits for nothing.
    void hurryTo(const QString &buttonName) { press(QStringLiteral("MainWindow"), {buttonName}); }

    /// Records the contents of a window as `step`, with `more` in it.
    void record(const QString &step, const QString &windowClass = QStringLiteral("MainWindow"),
                const QJsonObject &more = {});
    /// The contents of the main window, without recording them.
    QJsonObject contents();
    void recordMenu(const QString &step);
    /// Has the chosen disk read again and records the window meanwhile, as `busy`.
    void recordBusy();
    /// Records a window that a step expects as `dialog:<class>`, unless it was recorded with the same texts.
    void recordDialog(const QString &windowClass);

    /// A window of that class is expected from now on: it is not closed as an unexpected one.
    void expect(const QString &windowClass) { m_expected.insert(windowClass); }
    void noLongerExpect(const QString &windowClass) { m_expected.remove(windowClass); }

    /// Records and closes the dialogs that no step expects.
    void sweepDialogs();

private:
    using Finder = std::function<QWidget *()>;

    void endRound(const QString &what);
    TourReport::Screen look(const QString &step, const Finder &find);
    void recordOnce(const QString &className, const Finder &find);
    void openList(const QString &comboName);
    void dismiss(const QString &className, const Finder &find);
    void click(const QString &what, const std::function<hand::Place()> &find);

    Program *m_pProgram;
    TourReport *m_pReport;
    const TourPlan *m_pPlan;
    QSet<QString> m_expected;
    QSet<QString> m_seenDialogs; ///< class and texts
    QSet<quintptr> m_dismissed;  ///< windows that were closed and may still show
};

/// Expects windows of a class for as long as it lives.
class Expectation
{
public:
    Expectation(Walk *walk, const QString &windowClass) : m_pWalk(walk), m_strClass(windowClass)
    {
        walk->expect(windowClass);
    }
    ~Expectation() { m_pWalk->noLongerExpect(m_strClass); }
    Expectation(const Expectation &) = delete;
    Expectation &operator=(const Expectation &) = delete;

private:
    Walk *m_pWalk;
    QString m_strClass;
};
