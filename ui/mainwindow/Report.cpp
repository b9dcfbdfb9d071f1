#include "ui/MainWindow.h"

#include "app/state/Globals.h"
#include "platform/Platform.h"
#include "reports/ReportPage.h"
#include "reports/SmartReport.h"
#include "smart/PreviousTest.h"
#include "smart/SmartGlobals.h"
#include "ui/SmartStatus.h"

#include <QFileDialog>
#include <QPainter>
#include <QUrl>

void MainWindow::OnCheckPreviousTestResult()
{
    ReadPreviousTest();
}

void MainWindow::SavePDFReport()
{
    if (!g_bSmartAvailable)
        return;
    // Taken before the dialog: while that is open a refresh may rebuild the lists.
    SmartReport report = gatherSmartReport();
    const QString path = QFileDialog::getSaveFileName(this, tr("Save File"), suggestedReportName(report),
                                                      QStringLiteral("*.pdf"));
    if (path.isEmpty())
        return;
    if (!report.nvme) {
        OnCheckPreviousTestResult();
        report.lastTestType = g_strLastTestType;
        report.lastTestResult = g_strLastTestResult;
    }
    if (writeReport(path, report))
        Platform::current().OpenUrl(QUrl::fromUserInput(path));
}

void MainWindow::TakeScreenshot()
{
    if (!g_bSmartAvailable)
        return;
    ScreenshotButton->show();
    QPixmap picture(m_pSmartStatusPage->size());
    picture.fill(Qt::white);
    QPainter painter(&picture);
    m_pSmartStatusPage->render(&painter, QPoint(0, 0), QRegion(),
                               QWidget::DrawWindowBackground | QWidget::DrawChildren);
    painter.end();
    const QString path = QFileDialog::getSaveFileName(
        nullptr, QStringLiteral("Save File"), fileNamePart(g_strGraphTitle), QStringLiteral("JPEG (*.jpg);"));
    if (!path.isEmpty())
        picture.save(path);
}
