// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Navigation.h"

#include <QCoreApplication>

namespace navigation
{

const std::array<Button, ScreenCount> buttons = {{
    {QT_TRANSLATE_NOOP("MainWindow", "   Disk Status"),
     QT_TRANSLATE_NOOP("MainWindow", "View the health status of your hard disk"), false, false, false, false},
    {QT_TRANSLATE_NOOP("MainWindow", "   SMART Status"),
     QT_TRANSLATE_NOOP("MainWindow", "Detailed SMART status of the hard disk"), false, false, true, true},
    {QT_TRANSLATE_NOOP("MainWindow", "   Disk Partition"),
     QT_TRANSLATE_NOOP("MainWindow", "View description of partitions in your hard disk"), false, false, false,
     false},
    {QT_TRANSLATE_NOOP("MainWindow", "   Scan Disk"),
     QT_TRANSLATE_NOOP("MainWindow", "Scan your hard disk for bad sectors"), true, false, false, false},
    {QT_TRANSLATE_NOOP("MainWindow", "   Clone Disk"),
     QT_TRANSLATE_NOOP("MainWindow", "Clone hard disk to avoid impending disk issues"), false, true, false,
     false},
}};

} // namespace navigation
