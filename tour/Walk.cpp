// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Walk.h"

#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "tour/LayoutCheck.h"
#include "tour/ScreenRecorder.h"
#include "tour/Windows.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QMenu>
#include <QTreeView>

#include <algorithm>

namespace
{

constexpr int PollInterval = 25;     ///< ms
constexpr int SettleTime = 300;      ///< ms in which the program must be idle before the next press
constexpr int DialogPatience = 3000; ///< ms in which a dialog has to close
const QString MainWindowClass = QStringLiteral("MainWindow");
const QString DriveCombo = QStringLiteral("DriveCombobox");
const QString SwitchQuestionClass = QStringLiteral("ScanSwitchClass");
const QString NoticeClass = QStringLiteral("AccessNotice");
const QString FileDialogClass = QStringLiteral("QFileDialog");

/// Buttons that close a dialog without doing what it asks for, in the order in which they are tried.
const QStringList &dismissals()
{
    static const QStringList names{
        QStringLiteral("CancelButton"), QStringLiteral("NoButton"), QStringLiteral("CloseButton"),
        QStringLiteral("OkButton"),     QStringLiteral("Cancel"),   QStringLiteral("No"),
        QStringLiteral("Close"),        QStringLiteral("OK"),       QStringLiteral("Ok")};
    return names;
}

QWidget *mainWindow()
{
    return windows::byClass(MainWindowClass);
}

bool isIdle()
{
    return mainWindow() && !windows::child(mainWindow(), QStringLiteral("GifFrame"));
}

constexpr int CurrentDrive = -1;

/// Chooses an item of the drive combo, as the arrow keys do.
void chooseDrive(int index)
{
    QComboBox *drives = windows::combo(mainWindow(), DriveCombo);
    if (!drives || !drives->isVisible() || !drives->isEnabled())
        return;
    if (index != CurrentDrive)
        drives->setCurrentIndex(index);
    emit drives->activated(drives->currentIndex());
}

QString className(const QWidget *widget)
{
    return QLatin1String(widget->metaObject()->className());
}

/// The dialog with that address while it is open, else null.
QWidget *openDialog(quintptr id)
{
    const QVector<QWidget *> open = windows::dialogs();
    const auto found = std::find_if(open.cbegin(), open.cend(), [id](const QWidget *dialog) {
        return reinterpret_cast<quintptr>(dialog) == id;
    });
    return found == open.cend() ? nullptr : *found;
}

QString allTexts(const QJsonObject &contents)
{
    QStringList texts{contents[QStringLiteral("title")].toString()};
    const QJsonArray widgets = contents[QStringLiteral("widgets")].toArray();
    for (const QJsonValue &widget : widgets)
        texts.append(widget.toObject()[QStringLiteral("text")].toString());
    return texts.join(QLatin1Char('\n'));
}

} // namespace

Walk::Walk(Program *program, TourReport *report, const TourPlan *plan)
    : m_pProgram(program), m_pReport(report), m_pPlan(plan)
{
}

void Walk::beginStep()
{
    m_pProgram->setDeadline(Program::Clock::now() + std::chrono::seconds(m_pPlan->stepLimit));
}

/// Called after each round of waiting without success.
void Walk::endRound(const QString &what)
{
    if (m_pProgram->isLate())
        throw StepFailed(QStringLiteral("waited in vain for ") + what);
    sweepDialogs();
    m_pProgram->pause(PollInterval);
}

void Walk::waitFor(const QString &what, const std::function<bool()> &condition)
{
    while (!m_pProgram->ask(condition))
        endRound(what);
}

void Walk::waitForWindow(const QString &windowClass)
{
    waitFor(windowClass, [windowClass]() { return windows::byClass(windowClass) != nullptr; });
}

void Walk::waitForNoWindow(const QString &windowClass)
{
    waitFor(QStringLiteral("the end of ") + windowClass,
            [windowClass]() { return windows::byClass(windowClass) == nullptr; });
}

void Walk::waitIdle()
{
    // Between two reads the busy frame may be hidden for a moment.
    const auto settled = [this]() {
        for (int waited = 0; waited < SettleTime; waited += PollInterval) {
            m_pProgram->pause(PollInterval);
            if (!m_pProgram->ask(isIdle))
                return false;
        }
        return true;
    };
    do {
        waitFor(QStringLiteral("the end of reading"), isIdle);
    } while (!settled());
}

void Walk::waitForEnd()
{
    while (!m_pProgram->hasEnded()) {
        if (m_pProgram->isLate())
            throw ProgramGone(QStringLiteral("the program does not end"));
        m_pProgram->pause(PollInterval);
    }
}

void Walk::waitWhileRising(const QString &what, const std::function<double()> &progress,
                           const std::function<bool()> &condition)
{
    double highest = m_pProgram->ask(progress);
    while (!m_pProgram->ask(condition)) {
        const double now = m_pProgram->ask(progress);
        if (now > highest) {
            highest = now;
            beginStep();
        }
        endRound(what);
    }
}

bool Walk::sees(const QString &windowClass)
{
    return m_pProgram->ask([windowClass]() { return windows::byClass(windowClass) != nullptr; });
}

void Walk::click(const QString &what, const std::function<hand::Place()> &find)
{
    waitFor(what, [find]() { return find().window != nullptr; });
    const hand::Place place = m_pProgram->ask(find);
    if (!place.window)
        throw StepFailed(what + QStringLiteral(" went away"));
    m_pProgram->ask([place]() { hand::move(place); });
    // The press may open a menu or a modal message, and then returns only when that is closed.
    m_pProgram->act([place]() { hand::press(place); });
    m_pProgram->act([place]() { hand::release(place); });
}

void Walk::press(const QString &windowClass, const QStringList &buttonNames)
{
    click(QStringLiteral("%1 of %2").arg(buttonNames.first(), windowClass), [windowClass, buttonNames]() {
        QWidget *button = windows::button(windows::byClass(windowClass), buttonNames);
        return button ? hand::middleOf(button) : hand::Place();
    });
}

void Walk::answer(const QString &windowClass, const QString &buttonName)
{
    const Expectation dialog(this, windowClass);
    waitForWindow(windowClass);
    recordDialog(windowClass);
    press(windowClass, {buttonName});
    waitForNoWindow(windowClass);
}

void Walk::saveAs(const QString &buttonName, const QString &name)
{
    const Expectation dialog(this, FileDialogClass);
    const QString path = QDir(m_pPlan->out).filePath(name);
    press(MainWindowClass, {buttonName});
    waitForWindow(FileDialogClass);
    m_pProgram->ask([path]() {
        if (auto *field = windows::child(windows::byClass(FileDialogClass), QStringLiteral("fileNameEdit")))
            hand::fill(field, QDir::toNativeSeparators(path));
    });
    m_pProgram->act([]() { hand::key(windows::byClass(FileDialogClass), Qt::Key_Return); });
    waitForNoWindow(FileDialogClass);
    waitFor(name, [path]() { return QFileInfo(path).size() > 0; });
    TourReport::log(name);
}

void Walk::goTo(const QString &buttonName, const QString &pageClass)
{
    const Expectation question(this, SwitchQuestionClass);
    press(MainWindowClass, {buttonName});
    // If no disk may be opened, a notice replaces every page.
    const QString wanted = sees(NoticeClass) ? NoticeClass : pageClass;
    waitFor(wanted, [wanted]() { return windows::byClass(SwitchQuestionClass) || windows::byClass(wanted); });
    if (sees(SwitchQuestionClass))
        answer(SwitchQuestionClass, QStringLiteral("YesButton"));
    waitForWindow(wanted);
    waitIdle();
}

int Walk::driveCount()
{
    return m_pProgram->ask([]() {
        const QComboBox *drives = windows::combo(mainWindow(), QStringLiteral("DriveCombobox"));
        return drives ? drives->count() : 0;
    });
}

void Walk::openList(const QString &comboName)
{
    click(comboName, [comboName]() {
        QComboBox *combo = windows::combo(mainWindow(), comboName);
        return combo && combo->isVisible() && combo->isEnabled() ? hand::middleOf(combo) : hand::Place();
    });
    waitFor(QStringLiteral("the list of ") + comboName,
            [comboName]() { return windows::openList(comboName) != nullptr; });
}

void Walk::recordDriveList()
{
    const auto find = []() { return windows::openList(DriveCombo); };
    openList(DriveCombo);
    const TourReport::Screen screen = look(QStringLiteral("drive-list"), find);
    m_pProgram->act([find]() { hand::key(find(), Qt::Key_Escape); });
    waitFor(QStringLiteral("the end of the list"), [find]() { return !find(); });
    m_pReport->add(screen);
}

void Walk::chooseItem(const QString &comboName, int index)
{
    const auto find = [comboName]() { return windows::combo(mainWindow(), comboName); };
    openList(comboName);
    // A release soon after the press that opened the list would count as the end of that press.
    m_pProgram->pause(m_pProgram->ask([]() { return QApplication::doubleClickInterval(); }) + PollInterval);
    const QString item = QStringLiteral("item %1 of %2").arg(index).arg(comboName);
    click(item, [find, index]() {
        QComboBox *combo = find();
        if (!combo || index >= combo->count())
            return hand::Place();
        QAbstractItemView *view = combo->view();
        const QModelIndex row = combo->model()->index(index, combo->modelColumn(), combo->rootModelIndex());
        view->scrollTo(row);
        return hand::at(view->viewport(), view->visualRect(row).center());
    });
    waitFor(QStringLiteral("the choice of ") + item, [find, index]() {
        return find() && !find()->view()->isVisible() && find()->currentIndex() == index;
    });
}

void Walk::chooseDisk(const QString &comboName, int number)
{
    const int index =
        m_pProgram->ask([comboName, number]() { return windows::diskIndex(comboName, number); });
    if (index < 0)
        throw StepFailed(QStringLiteral("%1 has no disk %2").arg(comboName).arg(number));
    chooseItem(comboName, index);
}

void Walk::selectDrive(int index)
{
    chooseItem(DriveCombo, index);
    waitIdle();
}

void Walk::selectDisk(int number)
{
    chooseDisk(DriveCombo, number);
    waitIdle();
}

void Walk::clickRow(const QString &treeName, int row)
{
    const auto rowOf = [treeName, row](QTreeView **tree) {
        *tree = qobject_cast<QTreeView *>(windows::child(mainWindow(), treeName));
        return *tree ? (*tree)->model()->index(row, (*tree)->header()->logicalIndexAt(0)) : QModelIndex();
    };
    click(QStringLiteral("row %1 of %2").arg(row).arg(treeName), [rowOf]() {
        QTreeView *tree = nullptr;
        const QModelIndex cell = rowOf(&tree);
        if (!cell.isValid())
            return hand::Place();
        tree->scrollTo(cell);
        return hand::at(tree->viewport(), tree->visualRect(cell).center());
    });
    waitFor(QStringLiteral("the choice of row %1 of %2").arg(row).arg(treeName), [rowOf, row]() {
        QTreeView *tree = nullptr;
        return rowOf(&tree).isValid() && tree->currentIndex().row() == row;
    });
}

void Walk::openMenu(const QString &buttonName)
{
    press(MainWindowClass, {buttonName});
    waitFor(QStringLiteral("the menu of ") + buttonName, []() { return windows::openMenu() != nullptr; });
}

void Walk::chooseInMenu(const QString &actionName)
{
    m_pProgram->pause(m_pProgram->ask([]() { return QApplication::doubleClickInterval(); }));
    click(actionName, [actionName]() {
        QMenu *menu = windows::openMenu();
        QAction *action = windows::action(menu, actionName);
        return action ? hand::at(menu, menu->actionGeometry(action).center()) : hand::Place();
    });
    waitFor(QStringLiteral("the end of the menu"), []() { return windows::openMenu() == nullptr; });
}

void Walk::closeMenu()
{
    m_pProgram->ask([]() {
        if (QMenu *menu = windows::openMenu())
            hand::move(hand::at(menu, QPoint(0, 0)));
    });
    m_pProgram->act([]() { hand::key(windows::openMenu(), Qt::Key_Escape); });
    waitFor(QStringLiteral("the end of the menu"), []() { return windows::openMenu() == nullptr; });
}

TourReport::Screen Walk::look(const QString &step, const Finder &find)
{
    return m_pProgram->ask([step, find]() {
        TourReport::Screen screen;
        QWidget *window = find();
        if (!window)
            return screen;
        screen.step = step;
        screen.disk = windows::selectedDisk();
        screen.language = QLatin1String(languages::current().text);
        screen.scale = static_cast<double>(g_App.m_fScale);
        // What was hidden or shown just now may not have moved the rest yet.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        screen.picture = window->grab().toImage();
        screen.contents = screenrecorder::describe(window);
        screen.clipped = layoutcheck::clipped(window, step);
        screen.overlaps = layoutcheck::overlaps(window, step);
        return screen;
    });
}

void Walk::hurryToDrive(int index)
{
    m_pProgram->ask([index]() { chooseDrive(index); });
}

void Walk::recordBusy()
{
    // The tool's end is told by an event, so the busy frame shows until the picture is taken, however quick
    // the tool is.
    const TourReport::Screen screen = look(QStringLiteral("busy"), []() {
        chooseDrive(CurrentDrive);
        return isIdle() ? nullptr : mainWindow();
    });
    if (screen.step.isEmpty())
        throw StepFailed(QStringLiteral("no busy frame shows"));
    m_pReport->add(screen);
    waitIdle();
}

QJsonObject Walk::contents()
{
    return m_pProgram->ask(
        []() { return mainWindow() ? screenrecorder::describe(mainWindow()) : QJsonObject(); });
}

void Walk::record(const QString &step, const QString &windowClass, const QJsonObject &more)
{
    TourReport::Screen screen = look(step, [windowClass]() { return windows::byClass(windowClass); });
    if (screen.step.isEmpty())
        throw StepFailed(windowClass + QStringLiteral(" is not there"));
    for (auto it = more.begin(); it != more.end(); ++it)
        screen.contents.insert(it.key(), it.value());
    m_pReport->add(screen);
}

void Walk::recordMenu(const QString &step)
{
    const TourReport::Screen screen = look(step, []() { return windows::openMenu(); });
    if (screen.step.isEmpty())
        throw StepFailed(QStringLiteral("no menu is open"));
    m_pReport->add(screen);
}

void Walk::recordOnce(const QString &windowClass, const Finder &find)
{
    const TourReport::Screen screen = look(QStringLiteral("dialog:") + windowClass, find);
    const QString key = windowClass + QLatin1Char('\n') + allTexts(screen.contents);
    if (screen.step.isEmpty() || m_seenDialogs.contains(key))
        return;
    m_seenDialogs.insert(key);
    m_pReport->add(screen);
}

void Walk::recordDialog(const QString &windowClass)
{
    recordOnce(windowClass, [windowClass]() { return windows::byClass(windowClass); });
}

void Walk::sweepDialogs()
{
    struct Open {
        quintptr id = 0;
        QString className;
    };
    const QVector<Open> open = m_pProgram->ask([]() {
        QVector<Open> found;
        const QVector<QWidget *> dialogs = windows::dialogs();
        for (const QWidget *dialog : dialogs)
            found.append({reinterpret_cast<quintptr>(dialog), className(dialog)});
        return found;
    });
    QSet<quintptr> stillThere;
    for (const Open &dialog : open) {
        if (m_expected.contains(dialog.className))
            continue;
        stillThere.insert(dialog.id);
        if (m_dismissed.contains(dialog.id))
            continue;
        const quintptr id = dialog.id;
        const Finder find = [id]() { return openDialog(id); };
        if (dialog.className != FileDialogClass)
            recordOnce(dialog.className, find);
        dismiss(dialog.className, find);
    }
    m_dismissed = stillThere;
}

void Walk::dismiss(const QString &windowClass, const Finder &find)
{
    TourReport::log(QStringLiteral("dialog %1 came up; sending it away").arg(windowClass));
    const hand::Place place = m_pProgram->ask([find]() {
        QWidget *button = windows::button(find(), dismissals());
        return button ? hand::middleOf(button) : hand::Place();
    });
    if (place.window) {
        m_pProgram->act([place]() { hand::press(place); });
        m_pProgram->act([place]() { hand::release(place); });
    } else {
        m_pProgram->act([find]() { hand::key(find(), Qt::Key_Escape); });
    }
    const auto gone = [find]() { return find() == nullptr; };
    for (int waited = 0; waited < DialogPatience; waited += PollInterval) {
        if (m_pProgram->ask(gone))
            return;
        m_pProgram->pause(PollInterval);
    }
    TourReport::log(QStringLiteral("dialog %1 stays open").arg(windowClass));
}
