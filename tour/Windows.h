// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QAction;
class QComboBox;
class QMenu;
class QWidget;

/// Finds the parts of the program by class names and object names, as the program knows nothing of the
/// tour. GUI thread only; null for what is not there.
namespace windows
{

/// The visible window or page of that class.
QWidget *byClass(const QString &className);

/// The visible child of `window` with that object name.
QWidget *child(QWidget *window, const QString &name);

/// The visible and enabled button of `window` whose object name or text is the first of `names` that there
/// is.
QWidget *button(QWidget *window, const QStringList &names);

/// The combo of that name below `window`, visible or not.
QComboBox *combo(QWidget *window, const QString &name);

/// The menu that is open on top.
QMenu *openMenu();

/// The visible action of `menu` with that object name or that text.
QAction *action(const QMenu *menu, const QString &name);

/// Whatever is open beside the main window, the splash, menus and tool tips.
QVector<QWidget *> dialogs();

/// Where a combo of the main window lists the disk of that physical number; -1 if it does not.
int diskIndex(const QString &comboName, int disk);

/// Physical number of the disk that the drive combo selects; -1 if none.
int selectedDisk();

} // namespace windows
