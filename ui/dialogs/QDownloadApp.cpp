// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/QDownloadApp.h"

#include "platform/Platform.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/widgets/Style.h"
#include "update/UpdateCheck.h"
#include "update/UpdateFetch.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>

#include <algorithm>
#include <limits>

namespace
{

constexpr int ProgressInterval = 50; ///< ms
const QString BarSheet = QStringLiteral(
    "QProgressBar:horizontal{border: 1px solid gray; border-radius: 3px; background: white;padding: 0px;}"
    "QProgressBar::chunk:horizontal{background-color: rgb(1,169,26);margin-right: 0px;width: 1px}");

const DialogShape DownloadShape = {"DownloadUpdate",
                                   440,
                                   {"HeaderLabel", QT_TRANSLATE_NOOP("DownloadUpdate", "Software Update")},
                                   {},
                                   {{"label", QT_TRANSLATE_NOOP("DownloadUpdate", "Downloading Files")}},
                                   {},
                                   DialogButton::None,
                                   DialogButton::None,
                                   "frame",
                                   "",
                                   true};

/// The text is a heading, an empty line and a sentence. Another sentence can take the place of that one.
void tellFailure(QWidget *parent, const QString &title, const QString &text, const QString &other)
{
    const QString gap = QStringLiteral("\n\n");
    InfoDialogClass box(parent);
    box.SetTexts(title, text.section(gap, 0, 0).trimmed(), other.isEmpty() ? text.section(gap, 1) : other);
    box.exec();
}

} // namespace

QDownloadApp::QDownloadApp(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    buildDetails();
    m_Frame.dress();
    m_Frame.label("label")->setFont(style::semiBold(10));
    setModal(true);
    m_pProgressBar->setStyleSheet(BarSheet);
    update::removeVersions();
    update::removeLeftovers();
    m_pProgressBar->setMaximum(update::expectedSize());
    m_thread.m_strLink = languages::storedText(key::rxUpdateLink);
    m_thread.m_strUrl = m_thread.m_strLink + update::installerName();
    m_thread.m_strInstalled = SettingsStore().text(key::rxVersion);
    m_thread.m_limits = update::installerLimits(update::expectedSize());
    m_timer.setInterval(ProgressInterval);
    connect(&m_timer, &QTimer::timeout, this, &QDownloadApp::OnTimerLoadSlot);
    connect(&m_thread, &QDownloadThread::OnDownloadStart, this, &QDownloadApp::OnDownloadStart);
    connect(&m_thread, &QDownloadThread::OnDownloadFailed, this, &QDownloadApp::OnDownloadFailed);
    connect(&m_thread, &QDownloadThread::OnDownloadFinish, this, &QDownloadApp::OnDownloadFinish);
    clearProgress(QStringLiteral(" "));
    // A blank label stays blank. The numbers are written anew with the next tick.
    m_Frame.keepTranslated([this] {
        if (!m_pInfoLabel->text().trimmed().isEmpty())
            m_pInfoLabel->setText(tr("Downloading under progress..."));
    });
    if (!m_thread.isRunning())
        m_thread.start(QThread::LowPriority);
}

void QDownloadApp::buildDetails()
{
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("CentralFrame"));
    m_Frame.build(DownloadShape)->addWidget(frame);
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    m_pInfoLabel = DialogFrame::addLabel(column, "InfoLabel");
    m_pProgressBar = DialogFrame::addBar(column);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(16);
    column->addLayout(row);
    m_pCopiedLabel = DialogFrame::addLabel(row, "CopiedLabel");
    row->addStretch();
    m_pTimeLabel = DialogFrame::addLabel(row, "TimeLabel");
    m_pRateLabel = DialogFrame::addLabel(column, "RateLabel");
}

void QDownloadApp::OnDownloadStart()
{
    m_elapsed.restart();
    m_timer.start();
    m_pInfoLabel->setText(tr("Downloading under progress..."));
    style::setVisible({m_pInfoLabel, m_pProgressBar, m_pCopiedLabel, m_pTimeLabel}, true);
}

void QDownloadApp::showProgress(qint64 bytes, const QString &copied)
{
    // A value above the maximum does not move the bar.
    m_pProgressBar->setValue(static_cast<int>(std::min<qint64>(bytes, std::numeric_limits<int>::max())));
    m_pCopiedLabel->setText(copied);
    m_pTimeLabel->setText(tr("Time Elapsed: ") + QString::number(m_elapsed.elapsed() / 1000) + tr(" sec "));
}

void QDownloadApp::OnTimerLoadSlot()
{
    const qint64 bytes = update::loadedBytes();
    showProgress(bytes, update::megabytes(bytes) + tr(" MB copied) "));
}

void QDownloadApp::downloadFinished()
{
    m_timer.stop();
    OnTimerLoadSlot();
}

void QDownloadApp::OnDownloadProgress(qlonglong bytesReceived, qlonglong bytesTotal)
{
    showProgress(bytesReceived, update::megabytes(bytesReceived) + tr(" MB of  ") +
                                    update::megabytes(bytesTotal) + tr(" MB copied) "));
    const double seconds = static_cast<double>(std::max<qint64>(1, m_elapsed.elapsed())) / 1000.0;
    const double rate = static_cast<double>(bytesReceived) / 1024.0 / seconds;
    m_pRateLabel->setText(tr("Transfer Rate: ") + QString::number(rate, 'f', 2) + tr(" KB/sec "));
    m_pRateLabel->show();
}

void QDownloadApp::clearProgress(const QString &blank)
{
    m_timer.stop();
    for (QLabel *detail : {m_pInfoLabel, m_pCopiedLabel, m_pTimeLabel, m_pRateLabel}) {
        detail->setText(blank);
        detail->hide();
    }
    m_pProgressBar->hide();
}

void QDownloadApp::OnDownloadFinish(QString strDownloadPath)
{
    if (!m_thread.mayStart()) {
        OnDownloadFailed();
        return;
    }
    clearProgress(QStringLiteral("      "));
    hide();
    Platform::current().ShellExecuteW(strDownloadPath, QString(), QString());
    QCoreApplication::quit();
}

void QDownloadApp::OnDownloadFailed()
{
    clearProgress(QStringLiteral("      "));
    hide();
    tellFailure(this, tr("Software Update"), tr("Update failed \n\nUpdate failed due to partial download."),
                m_thread.wasRefused() ? tr("The update could not be verified and was not started.")
                                      : QString());
    reject();
}
