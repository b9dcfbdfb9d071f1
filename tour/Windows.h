// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QAction;
class QComboBox;
class QMenu;
class QWidget;

/// Finds the parts of the program by class names and object names, as the program has no code for the tour.
/// GUI thread only; null if there is no such part.
namespace windows
{

/// The visible window or page of that class.
QWidget *byClass(const QString &className);

/// The visible child of `window` with that object name.
QWidget *child(QWidget *window, const QString &name);

/// The visible and enabled button of `window` that fits the first of `names`, by object name or text, for
/// which there is one.
QWidget *button(QWidget *window, const QStringList &names);

/// The combo of that name below `window`, visible or not.
QComboBox *combo(QWidget *window, const QString &name);

/// The window of the list that a combo of the main window has dropped down.
QWidget *openList(const QString &comboName);

/// The menu that is open on top.
QMenu *openMenu();

/// The visible action of `menu` with that object name or that text.
QAction *action(const QMenu *menu, const QString &name);

/// All open windows except the main window, the splash, menus and tool tips.
QVector<QWidget *> dialogs();

/// The place of the disk with that physical number in a combo of the main window; -1 if it is not listed.
int diskIndex(const QString &comboName, int disk);

/// Physical number of the disk that the drive combo selects; -1 if none.
int selectedDisk();

} // namespace windows
