#include "ui/dialogs/QDownloadApp.h"

#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/Scale.h"
#include "ui/widgets/Style.h"
#include "update/UpdateCheck.h"
#include "update/UpdateFetch.h"
#include "update/UpdateLink.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>

#include <algorithm>
#include <limits>

namespace
{

constexpr int ProgressInterval = 50; ///< ms
const QString BarSheet = QStringLiteral(
    "QProgressBar:horizontal{border: 1px solid gray; border-radius: 3px; background: white;padding: 0px;}"
    "QProgressBar::chunk:horizontal{background-color: rgb(1,169,26);margin-right: 0px;width: 1px}");

/// QMessageBox::information() in the look of the dialogs.
void tellFailure(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    style::setWhiteBackground(&box);
    box.setFont(style::font(10));
    QAbstractButton *ok = box.button(QMessageBox::Ok);
    style::styleButton(qobject_cast<QPushButton *>(ok), style::ButtonRole::Main);
    ok->setMinimumSize(style::px(96), style::px(32));
    const QPixmap picture(scale::imagePath(QStringLiteral("img_Information.png"), g_App.m_fScale));
    if (!picture.isNull())
        box.setIconPixmap(picture);
    box.exec();
}

} // namespace

QDownloadApp::QDownloadApp(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setupUi(this);
    DialogLook look;
    look.title = HeaderLabel;
    look.heading = label;
    m_Frame.dress(look);
    setModal(true);
    progressBar->setStyleSheet(BarSheet);
    update::removeVersions();
    update::removeLeftovers();
    progressBar->setMaximum(update::expectedSize());
    m_thread.m_strUrl = update::link() + update::installerName();
    m_thread.m_limits = update::installerLimits(update::expectedSize());
    m_timer.setInterval(ProgressInterval);
    connect(&m_timer, &QTimer::timeout, this, &QDownloadApp::OnTimerLoadSlot);
    connect(&m_thread, &QDownloadThread::OnDownloadStart, this, &QDownloadApp::OnDownloadStart);
    connect(&m_thread, &QDownloadThread::OnDownloadFailed, this, &QDownloadApp::OnDownloadFailed);
    connect(&m_thread, &QDownloadThread::OnDownloadFinish, this, &QDownloadApp::OnDownloadFinish);
    const auto labels = details();
    for (QLabel *detail : labels) {
        detail->setText(QStringLiteral(" "));
        detail->hide();
    }
    progressBar->hide();
    if (!m_thread.isRunning())
        m_thread.start(QThread::LowPriority);
}

QList<QLabel *> QDownloadApp::details() const
{
    return {InfoLabel, CopiedLabel, TimeLabel, RateLabel};
}

void QDownloadApp::OnDownloadStart()
{
    m_elapsed.restart();
    m_timer.start();
    InfoLabel->setText(tr("Downloading under progress..."));
    for (QWidget *shown : std::initializer_list<QWidget *>{InfoLabel, progressBar, CopiedLabel, TimeLabel})
        shown->show();
}

void QDownloadApp::showProgress(qint64 bytes, const QString &copied)
{
    // Behind its maximum the bar stays where it is.
    progressBar->setValue(static_cast<int>(std::min<qint64>(bytes, std::numeric_limits<int>::max())));
    CopiedLabel->setText(copied);
    TimeLabel->setText(tr("Time Elapsed: ") + QString::number(m_elapsed.elapsed() / 1000) + tr(" sec "));
}

void QDownloadApp::OnTimerLoadSlot()
{
    const qint64 bytes = update::loadedBytes();
    showProgress(bytes, update::megabytes(bytes) + tr(" MB copied) "));
}

void QDownloadApp::downloadReadyRead()
{
    OnTimerLoadSlot();
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
    RateLabel->setText(tr("Transfer Rate: ") + QString::number(rate, 'f', 2) + tr(" KB/sec "));
    RateLabel->show();
}

void QDownloadApp::clearProgress()
{
    m_timer.stop();
    const auto labels = details();
    for (QLabel *detail : labels) {
        detail->setText(QStringLiteral("      "));
        detail->hide();
    }
    progressBar->hide();
}

void QDownloadApp::OnDownloadFinish(QString strDownloadPath)
{
    clearProgress();
    hide();
    Platform::current().ShellExecuteW(strDownloadPath, QString(), QString());
    QCoreApplication::quit();
}

void QDownloadApp::OnDownloadFailed()
{
    clearProgress();
    hide();
    tellFailure(this, tr("Software Update"), tr("Update failed \n\nUpdate failed due to partial download."));
    reject();
}

void QDownloadApp::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        // What was blank stays so; the figures follow with their next tick.
        const bool blank = InfoLabel->text().trimmed().isEmpty();
        const QString before = InfoLabel->text();
        retranslateUi(this);
        if (blank)
            InfoLabel->setText(before);
    }
    QDialog::changeEvent(event);
}
