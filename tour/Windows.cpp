// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Windows.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QWidget>

#include <algorithm>

namespace
{

/// The main window and the splash, which are no dialogs.
const QStringList &shellClasses()
{
    static const QStringList classes{QStringLiteral("MainWindow"), QStringLiteral("QWaitClass")};
    return classes;
}

/// The data of a combo item is this plus the physical number of the disk.
constexpr int DiskIdBase = 128;

bool isOfClass(const QWidget *widget, const QString &className)
{
    return className == QLatin1String(widget->metaObject()->className());
}

const QComboBox *driveCombo()
{
    return windows::combo(windows::byClass(QStringLiteral("MainWindow")), QStringLiteral("DriveCombobox"));
}

QString plainText(QString text)
{
    return text.remove(QLatin1Char('&')).trimmed();
}

} // namespace

namespace windows
{

QWidget *byClass(const QString &className)
{
    const QWidgetList all = QApplication::allWidgets();
    const auto found = std::find_if(all.cbegin(), all.cend(), [&className](const QWidget *widget) {
        return widget->isVisible() && isOfClass(widget, className);
    });
    return found == all.cend() ? nullptr : *found;
}

QWidget *child(QWidget *window, const QString &name)
{
    if (!window)
        return nullptr;
    const QList<QWidget *> all = window->findChildren<QWidget *>(name);
    const auto found =
        std::find_if(all.cbegin(), all.cend(), [](const QWidget *widget) { return widget->isVisible(); });
    return found == all.cend() ? nullptr : *found;
}

QWidget *button(QWidget *window, const QStringList &names)
{
    if (!window)
        return nullptr;
    const QList<QAbstractButton *> all = window->findChildren<QAbstractButton *>();
    for (const QString &name : names) {
        for (QAbstractButton *candidate : all) {
            const bool fits = candidate->objectName() == name || plainText(candidate->text()) == name;
            if (fits && candidate->isVisible() && candidate->isEnabled())
                return candidate;
        }
    }
    return nullptr;
}

QComboBox *combo(QWidget *window, const QString &name)
{
    return window ? window->findChild<QComboBox *>(name) : nullptr;
}

QWidget *openList(const QString &comboName)
{
    const QComboBox *lists = combo(byClass(QStringLiteral("MainWindow")), comboName);
    return lists && lists->view()->isVisible() ? lists->view()->window() : nullptr;
}

QMenu *openMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QAction *action(const QMenu *menu, const QString &name)
{
    if (!menu)
        return nullptr;
    const QList<QAction *> all = menu->actions();
    const auto found = std::find_if(all.cbegin(), all.cend(), [&name](const QAction *candidate) {
        return candidate->isVisible() &&
               (candidate->objectName() == name || plainText(candidate->text()) == name);
    });
    return found == all.cend() ? nullptr : *found;
}

QVector<QWidget *> dialogs()
{
    QVector<QWidget *> found;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *widget : all) {
        const Qt::WindowType type = widget->windowType();
        const bool passing = type == Qt::Popup || type == Qt::ToolTip || type == Qt::Desktop;
        const QLatin1String className(widget->metaObject()->className());
        if (widget->isVisible() && !passing && !shellClasses().contains(className))
            found.append(widget);
    }
    return found;
}

int diskIndex(const QString &comboName, int disk)
{
    const QComboBox *disks = combo(byClass(QStringLiteral("MainWindow")), comboName);
    return disks ? disks->findData(disk + DiskIdBase) : -1;
}

int selectedDisk()
{
    const QComboBox *drives = driveCombo();
    if (!drives || drives->currentIndex() < 0 || !drives->currentData().isValid())
        return -1;
    return drives->currentData().toInt() - DiskIdBase;
}

} // namespace windows
