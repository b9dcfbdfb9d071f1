// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scan/ScanGlobals.h"
#include "smart/AttributeHistory.h"
#include "smart/SelfTestGlobals.h"
#include "smart/SmartGlobals.h"
#include "tests/support/ScreenReader.h"
#include "tests/ui/WindowFixture.h"
#include "ui/widgets/SmartChartView.h"

#include <QTreeWidget>
#include <QtCharts/QLineSeries>

/// The words of the sessions that need no more than the window. tests/data/ui/README.md tells them all.
namespace sessionwords
{

/// What a step does or a reading sees, with the rest of its line. Of a step: what went wrong, empty if
/// nothing.
struct Word {
    Word() = default;
    template<typename Function>
    Word(Function function) // NOLINT(google-explicit-constructor)
        : run([function](const QString &rest) {
              if constexpr (std::is_void_v<decltype(function(rest))>)
                  return function(rest), QString();
              else
                  return QString(function(rest));
          })
    {
    }
    std::function<QString(const QString &rest)> run;
};
using Words = QHash<QString, Word>;

/// A flag of the program: sets it if it is given a value.
struct Flag {
    template<typename Variable>
    Flag(Variable &flag) // NOLINT(google-explicit-constructor)
        : value([&flag](const bool *set) -> bool {
              if (set)
                  flag = *set;
              return flag;
          })
    {
    }
    std::function<bool(const bool *set)> value;
};

inline const QMap<QString, Flag> flags{{"AbortJob", g_bAbortJob},
                                       {"AbortSent", g_bAbortSent},
                                       {"AccessDenied", g_App.m_bAccessDenied},
                                       {"JobRunning", g_bJobRunning},
                                       {"ListsLoading", g_bListsLoading},
                                       {"ListsStale", g_bListsStale},
                                       {"ScanFailed", g_bScanFailed},
                                       {"ScanResultOpen", g_bScanResultOpen},
                                       {"SelfTestRunning", g_bSelfTestRunning},
                                       {"SelfTestResultOpen", g_bSelfTestResultOpen},
                                       {"TestPending", g_bTestPending}};

inline const QMap<QString, QString *> variables{{"ApplicationFolder", &g_App.m_strApplicationFolder},
                                                {"GraphTitle", &g_strGraphTitle},
                                                {"HealthText", &g_strHealthText},
                                                {"LastTestResult", &g_strLastTestResult},
                                                {"SerialNumber", &g_strSerialNumber},
                                                {"StartArgument", &g_strStartArgument},
                                                {"TemperatureText", &g_strTemperatureText}};

/// Dialogs that are made when they are needed.
inline const QStringList madeLater{"QShowUpdate", "QDownloadApp", "SmallMessageDlg", "Settings",
                                   "QFileDialog"};

/// Those of the names that are not as `is` asks.
template<typename Test>
inline QString others(const QString &names, Test is)
{
    QStringList found = names.split(' ');
    found.erase(std::remove_if(found.begin(), found.end(), is), found.end());
    return found.join(' ');
}

/// Whether flags have a value, or sets it.
inline Word flagsAre(bool wanted, bool set)
{
    return [=](const QString &names) {
        return others(names, [=](const QString &name) {
            const auto flag = flags.find(name);
            return flag != flags.end() && flag->value(set ? &wanted : nullptr) == wanted;
        });
    };
}

/// The one of that name or class below `in`.
inline QObject *find(const QObject *in, const QString &name)
{
    auto *found = in->findChild<QObject *>(name);
    for (QObject *child : in->findChildren<QObject *>())
        found = !found && child->metaObject()->className() == name ? child : found;
    return found;
}

/// "MainWindow", a window or page of that class, or a part of the main window; behind each slash a part of
/// it.
inline QObject *object(const QString &path)
{
    const QString name = path.section('/', 0, 0);
    QWidget *window = nullptr;
    QObject *found = nullptr;
    for (QWidget *widget : QApplication::allWidgets()) {
        window = qobject_cast<MainWindow *>(widget) ? widget : window;
        if (widget->metaObject()->className() == name && (!found || widget->isVisible()))
            found = widget;
    }
    found = found || !window ? found : find(window, name);
    for (int part = 1; found && part <= path.count('/'); ++part)
        found = find(found, path.section('/', part, part));
    return found;
}

inline QString propertyOf(const QString &subject)
{
    const QObject *owner = object(subject.section('.', 0, 0));
    const QVariant value = owner ? owner->property(subject.section('.', 1).toLatin1()) : QVariant();
    if (!value.isValid())
        return QStringLiteral("no such property");
    return value.userType() == QMetaType::QVariantList ? value.toStringList().join(' ') : value.toString();
}

inline QString change(const QString &rest)
{
    QObject *owner = object(rest.section('.', 0, 0));
    const QByteArray name = rest.section('.', 1).section(' ', 0, 0).toLatin1();
    const bool known = owner && owner->property(name).isValid();
    return known && owner->setProperty(name, rest.section(' ', 1)) ? "" : "there is no such property";
}

inline QString call(const QString &path)
{
    QObject *owner = object(path.section('.', 0, 0));
    const bool called = owner && QMetaObject::invokeMethod(owner, path.section('.', 1).toLatin1());
    return called ? "" : "there is no such slot";
}

/// A step with one widget.
template<typename Widget = QWidget, typename Act>
inline Word with(Act act)
{
    return [=](const QString &name) {
        auto *found = qobject_cast<Widget *>(object(name));
        if (found)
            act(found);
        return found ? "" : "there is no such widget";
    };
}

/// Whether widgets are in a state.
inline Word are(bool (QWidget::*get)() const, bool expected)
{
    return [=](const QString &names) {
        return others(names, [=](const QString &name) {
            const auto *found = qobject_cast<QWidget *>(object(name));
            return found ? (found->*get)() == expected : !expected && madeLater.contains(name);
        });
    };
}

/// The data of a combo's entries.
inline QString data(const QString &name)
{
    QStringList found;
    const auto *combo = qobject_cast<QComboBox *>(object(name));
    for (int i = 0; combo && i < combo->count(); ++i)
        found << combo->itemData(i).toString();
    return found.join('|');
}

/// A row of a tree, or the heads, of the columns that show.
inline QString row(const QString &rest)
{
    QStringList found;
    const auto *tree = qobject_cast<QTreeWidget *>(object(rest.section(' ', 0, 0)));
    const QString number = rest.section(' ', 1);
    for (int column = 0; tree && column < tree->columnCount(); ++column) {
        const auto *item = number.isEmpty() ? tree->headerItem() : tree->topLevelItem(number.toInt());
        if (item && !tree->isColumnHidden(column))
            found << item->text(column);
    }
    return found.join('|');
}

/// The texts of all that bear one of the names.
inline QString shownTexts(const QString &names)
{
    QStringList found;
    for (const QString &name : names.split(' ')) {
        const auto labels = object("MainWindow")->findChildren<QLabel *>(name);
        for (const QLabel *label : labels)
            found << label->text();
        if (labels.isEmpty())
            found << QStringLiteral("no such label");
    }
    return found.join('|');
}

/// The points of the graph.
inline QString points(const QString &)
{
    QStringList found;
    const auto *line = qobject_cast<QtCharts::QLineSeries *>(g_pSmartChartView->chart()->series().value(0));
    for (const QPointF &point : line ? line->pointsVector() : QVector<QPointF>())
        found << QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
    return found.join(' ');
}

/// What is kept of a serial number: its days, or the values of an attribute.
inline QString history(const QString &rest)
{
    const HistoryPaths paths = historyPaths(rest.section(' ', 0, 0));
    if (!QFile::exists(paths.dates))
        return QStringLiteral("none");
    const auto dates = readHistoryDates(paths.dates, nullptr);
    if (!rest.contains(' '))
        return QString::number(dates.size());
    QStringList found;
    for (const qint64 value : readHistoryValues(paths.values, dates, rest.section(' ', 1)))
        found << QString::number(value);
    return found.join(' ');
}

/// The letters of a disk in the list that the screens read.
inline QString letters(const QString &disk)
{
    const DiskNode *node = findPhysicalDisk(disk.toInt());
    return node ? QString(node->pDetails->szDrives) : QStringLiteral("no disk");
}

/// Presses a key where the focus is: in the dialog in front, or else in the window.
inline void pressKey(const QString &chord)
{
    auto *window = qobject_cast<QWidget *>(object(QStringLiteral("MainWindow")));
    QApplication::setActiveWindow(window); // a dialog may have been in front of it
    for (QWidget *top : QApplication::topLevelWidgets())
        window = top->isVisible() && top->inherits("QDialog") ? top : window;
    const int key = QKeySequence(chord)[0];
    QTest::keyClick(window->focusWidget() ? window->focusWidget() : window,
                    Qt::Key(key & ~Qt::KeyboardModifierMask),
                    Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
}

inline QString tabTo(const QString &name)
{
    const QObject *wanted = object(name);
    for (int i = 0; i < 60 && QApplication::focusWidget() != wanted; ++i)
        pressKey(QStringLiteral("Tab"));
    return QApplication::focusWidget() == wanted ? "" : "the key Tab does not come to it";
}

} // namespace sessionwords
