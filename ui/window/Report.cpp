// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "platform/Platform.h"
#include "reports/ReportPage.h"
#include "reports/SmartReport.h"
#include "smart/DiskFigures.h"
#include "smart/SmartGlobals.h"
#include "smart/ToolInvocation.h"
#include "state/Globals.h"
#include "ui/dialogs/SavePath.h"
#include "ui/widgets/Images.h"

#include <QUrl>

void MainWindow::OnCheckPreviousTestResult()
{
    ReadPreviousTest(storedDevice(ToolPurpose::SelfTestLog));
}

void MainWindow::SavePDFReport()
{
    if (!reportKnown())
        return;
    // Gathered before the dialog opens: a refresh may rebuild the lists while it is open.
    SmartReport report = gatherSmartReport();
    report.logo = images::path(report.secondBrand ? QStringLiteral("img_Korvane.png")
                                                  : QStringLiteral("img_Velmora.png"),
                               images::Family::Folder);
    report.watermark = images::path(QStringLiteral("img_WaterMark.png"), images::Family::Folder);
    report.icon = QStringLiteral(":/images/Halvane48.png");
    const QString path = askForPath(this, tr("Save File"), suggestedReportName(report),
                                    {{QStringLiteral("*.pdf"), QStringLiteral(".pdf")}});
    if (path.isEmpty())
        return;
    if (!report.nvme) {
        g_strLastTestType.clear();
        g_strLastTestResult.clear();
        ReadPreviousTest(report.device);
        report.lastTestType = g_strLastTestType;
        report.lastTestResult = g_strLastTestResult;
    }
    if (writeReport(path, report))
        Platform::current().OpenUrl(QUrl::fromUserInput(path));
}

void MainWindow::TakeScreenshot()
{
    if (!reportKnown())
        return;
    m_ui.ScreenshotButton->show();
    const QPixmap picture = m_pSmartStatusPage->grab();
    const QString path = askForPath(nullptr, QStringLiteral("Save File"), fileNamePart(g_strGraphTitle),
                                    {{QStringLiteral("JPEG (*.jpg);"), QStringLiteral(".jpg")}});
    if (!path.isEmpty())
        writePicture(path, picture);
}
