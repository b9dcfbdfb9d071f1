// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Navigation.h"

#include "state/GlobalApp.h"
#include "state/Scale.h"

#include <QCoreApplication>

namespace navigation
{

const std::array<Button, ScreenCount> buttons = {{
    {QT_TRANSLATE_NOOP("MainWindow", "   Disk Status"),
     QT_TRANSLATE_NOOP("MainWindow", "View the health status of your hard disk"), "img_DiskStatusNor",
     "img_DiskStatusHo", "img_DiskStatusSel"},
    {QT_TRANSLATE_NOOP("MainWindow", "   SMART Status"),
     QT_TRANSLATE_NOOP("MainWindow", "Detailed SMART status of the hard disk"), "img_SmartStatusNor",
     "img_SmartStatusHov", "img_SmartStatusSel"},
    {QT_TRANSLATE_NOOP("MainWindow", "   Disk Partition"),
     QT_TRANSLATE_NOOP("MainWindow", "View description of partitions in your hard disk"),
     "img_DiskPartitionNor", "img_DiskPartitionHo", "img_DiskPartitionSel"},
    {QT_TRANSLATE_NOOP("MainWindow", "   Scan Disk"),
     QT_TRANSLATE_NOOP("MainWindow", "Scan your hard disk for bad sectors"), "img_ScanDiskNo",
     "img_ScanDiskHov", "img_ScanDiskSel"},
    {QT_TRANSLATE_NOOP("MainWindow", "   Clone Disk"),
     QT_TRANSLATE_NOOP("MainWindow", "Clone hard disk to avoid impending disk issues"), "img_CloneDiskNormal",
     "img_CloneDiskHo", "img_CLoneDiskSel"},
}};

namespace
{

/// Picture, alignment and text colour of a button.
QString sheet(const char *image, Look look, float scaleFactor)
{
    const QString path = scale::imagePath(QLatin1String(image) + QStringLiteral(".png"), scaleFactor);
    // At a scale without an image set the button is left with its text.
    const QString picture =
        path.isEmpty() ? QString() : QStringLiteral("QPushButton{border-image: url(%1)}").arg(path);
    const QString colour = look == Look::Normal ? QStringLiteral("QPushButton {color : rgb(0,0,0);}")
                                                : QStringLiteral("QPushButton {color : rgb(42,129,229);}");
    return picture + QStringLiteral("QPushButton{Text-align:left}") + colour;
}

} // namespace

QString styleSheet(Screen screen, Look look, float scaleFactor)
{
    const Button &button = buttons[static_cast<std::size_t>(screen)];
    const char *image = look == Look::Normal  ? button.normalImage
                        : look == Look::Hover ? button.hoverImage
                                              : button.selectedImage;
    return sheet(image, look, scaleFactor);
}

QString backButtonSheet(Look look, float scaleFactor)
{
    return sheet(look == Look::Normal ? "img_BackTestNor" : "img_BackTestHov", look, scaleFactor);
}

const ShellButtons &shellButtons(Screen screen)
{
    static const std::array<ShellButtons, ScreenCount> table = {{
        {false, false, false, false},
        {false, false, true, true},
        {false, false, false, false},
        {true, false, false, false},
        {false, true, false, false},
    }};
    return table[static_cast<std::size_t>(screen)];
}

} // namespace navigation
