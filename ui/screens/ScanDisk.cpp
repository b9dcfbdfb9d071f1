// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/ScanDisk.h"

#include "scan/BlockMap.h"
#include "scan/ScanGlobals.h"
#include "state/GlobalApp.h"
#include "state/JobState.h"
#include "state/Scale.h"
#include "ui/screens/SaveListButton.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/QGridView.h"
#include "ui/widgets/Style.h"

#include <QButtonGroup>
#include <QMouseEvent>
#include <QTimer>
#include <QVBoxLayout>

namespace
{

void styleChoice(QFrame *card, bool chosen)
{
    card->setStyleSheet(QStringLiteral(".QFrame{background: %1; border: 1px solid %2; border-radius: %3px;}")
                            .arg(chosen ? QLatin1String("#f3f8fe") : QLatin1String(style::colour::White),
                                 chosen ? QLatin1String(style::colour::Sign) : QLatin1String("#dfe5eb"))
                            .arg(style::px(8)));
}

qint64 sectorsOf(const DiskNode *node)
{
    return node && node->pDetails ? static_cast<qint64>(node->pDetails->nTotalSectors) : 0;
}

} // namespace

ScanDisk::ScanDisk(QWidget *parent) : Page(parent)
{
    m_ui.setupUi(this);
    pagelook::makePage(this);
    m_pSelfTestPanel = new SelfTestPanel(m_ui.frame_3);
    auto *testColumn = new QVBoxLayout(m_ui.frame_3);
    testColumn->setContentsMargins(0, 0, 0, 0);
    testColumn->addWidget(m_pSelfTestPanel);
    m_pGridView = pagelook::named(new QGridView(m_ui.frame), "m_pGridView");
    m_pGridView->setGeometry(QRect(QPoint(0, 0), m_ui.frame->minimumSize()));
    m_pSaveListButton = pagelook::named(new SaveListButton(m_ui.frame_4), "m_pSaveListButton");
    m_ui.CounterColumn->addWidget(m_pSaveListButton);
    // A child of the window: the page's style sheets must not reach it.
    m_pResultBox = pagelook::named(new InfoDialogClass(window()), "m_pResultBox");
    connect(m_pResultBox, &MessageDialog::dismissed, this, &ScanDisk::OnResultRead);
    connect(m_pResultBox, &QDialog::rejected, this, &ScanDisk::OnResultRead);
    connect(m_pResultBox, &MessageDialog::confirmed, m_pSaveListButton, &SaveListButton::save);
    connect(&m_scanThread, &QScanDriveThread::ExactBadSectorCount, this, &ScanDisk::OnExactBadSectorCount);
    connect(&m_scanThread, &QScanDriveThread::MaximumBadBlockScanProgress, this,
            &ScanDisk::ScanMaxProgressForDisk);
    connect(&m_scanThread, &QScanDriveThread::AllBlockProcessed, this, &ScanDisk::OnAllBlockProcessed);
    connect(&m_scanThread, &QScanDriveThread::ScanProgressValue, this, &ScanDisk::ScanProgValForDisk);
    connect(&m_scanThread, &QScanDriveThread::OnFinish, this, &ScanDisk::OnScanFinish);
    connect(&m_scanThread, &QScanDriveThread::TotalBlockCount, this, &ScanDisk::OnTotalBlockCount);
    connect(&m_scanThread, &QScanDriveThread::setRemainingTime, this, &ScanDisk::OnSetRemainingTime);
    styleChooser();
    styleCounters();
    clearCounts();
    FillDisk(nullptr);
    ShowChooser();
}

void ScanDisk::styleChooser()
{
    pagelook::styleHeadings({m_ui.TestHeadingLabel});
    auto *tests = new QButtonGroup(this);
    const struct {
        QFrame *card;
        QRadioButton *radio;
        QLabel *text;
    } choices[] = {
        {m_ui.ChoiceCard1, m_ui.radioButton, m_ui.label},
        {m_ui.ChoiceCard2, m_ui.radioButton_2, m_ui.label_2},
        {m_ui.ChoiceCard3, m_ui.radioButton_3, m_ui.label_3},
    };
    for (const auto &choice : choices) {
        pagelook::styleLabels({choice.text}, style::font(10), style::GreyLabel);
        choice.text->setContentsMargins(0, style::px(1), 0, style::px(2)); // for marks above and below
        choice.radio->setFont(style::semiBold(10));
        tests->addButton(choice.radio);
        QFrame *card = choice.card;
        card->installEventFilter(this);
        card->setCursor(Qt::PointingHandCursor);
        connect(choice.radio, &QRadioButton::toggled, this,
                [card](bool chosen) { styleChoice(card, chosen); });
        styleChoice(card, false);
    }
}

/// A click anywhere on a card chooses its test.
bool ScanDisk::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const auto *card = static_cast<QWidget *>(watched);
        if (mouse->button() == Qt::LeftButton && card->rect().contains(mouse->pos()))
            card->findChild<QRadioButton *>()->click();
    }
    return Page::eventFilter(watched, event);
}

void ScanDisk::styleCounters()
{
    pagelook::styleValues({m_ui.DiskSizeValLbl, m_ui.TotalBlkValLbl, m_ui.BlockSizeValLbl, m_ui.ElapsedValLbl,
                           m_ui.RemTimeValLbl});
    pagelook::styleLabels({m_ui.ProcessesLbl, m_ui.BadBlkLbl, m_ui.ProcessNameLbl}, style::font(10),
                          style::GreyLabel);
    pagelook::styleLabels({m_ui.DiskSizeLbl, m_ui.TotalBlkLbl, m_ui.BlockSizeLbl, m_ui.TimeElapsedLbl,
                           m_ui.TimeReLbl, m_ui.ProcessedVal, m_ui.BadBlkValLbl},
                          style::semiBold(10), style::GreyLabel);
    pagelook::makeCopyable({m_ui.ProcessedVal, m_ui.BadBlkValLbl});
    pagelook::styleHeadings({m_ui.ScanDiskLbl});
    images::setLabelImage(m_ui.BlueClrLbl, QStringLiteral("img_BlueLegend.png"));
    images::setLabelImage(m_ui.RedClrLBl, QStringLiteral("img_RedLegend.png"));
    images::setLabelImage(m_ui.ProcesClrLl, QStringLiteral("img_GrayLegend.png"));
    pagelook::styleCard(m_ui.frame_4);
}

/// A caption stands only above its value.
void ScanDisk::setTimeCaptions()
{
    m_ui.TimeReLbl->setText(m_ui.RemTimeValLbl->text().isEmpty() ? QString() : tr("Time Remaining"));
    m_ui.TimeElapsedLbl->setText(m_ui.ElapsedValLbl->text().isEmpty() ? QString() : tr("Time Elapsed"));
}

/// Tells a screen reader what the map shows.
void ScanDisk::describeMap()
{
    const std::pair<const QLabel *, const QLabel *> counts[] = {{m_ui.TotalBlkLbl, m_ui.TotalBlkValLbl},
                                                                {m_ui.ProcessesLbl, m_ui.ProcessedVal},
                                                                {m_ui.BadBlkLbl, m_ui.BadBlkValLbl}};
    QStringList texts(
        blockmap::spoken(blockmap::metrics(scale::percent()), g_nMapTotalSectors, g_BadSectors));
    for (const auto &[caption, value] : counts)
        texts << caption->text().trimmed() + QLatin1String(": ") + value->text();
    m_pGridView->setAccessibleName(m_ui.ScanDiskLbl->text());
    m_pGridView->setAccessibleDescription(texts.join(QLatin1String(", ")));
}

void ScanDisk::showBlockSize()
{
    constexpr qlonglong SectorSize = 512;
    constexpr qlonglong Megabyte = 1048576;
    m_ui.BlockSizeValLbl->setText(m_i64BlockStep == 0
                                      ? QStringLiteral("0")
                                      : QString::number(m_i64BlockStep * SectorSize / Megabyte) + tr(" MB"));
}

void ScanDisk::clearCounts()
{
    m_ui.BadBlkValLbl->setText(QStringLiteral("0"));
    m_ui.ProcessedVal->setText(QStringLiteral("0"));
    m_i64BlockStep = 0;
    showBlockSize();
    describeMap();
}

std::optional<SelfTestKind> ScanDisk::ChosenTest() const
{
    return m_ui.radioButton_2->isChecked()   ? std::optional(SelfTestKind::Short)
           : m_ui.radioButton_3->isChecked() ? std::optional(SelfTestKind::Extended)
                                             : std::nullopt;
}

/// Shows one of the three parts: the choice of a test, the counters, or the panel of a self-test.
void ScanDisk::showPart(const QFrame *part)
{
    style::setVisible({m_ui.TestHeadingLabel, m_ui.frame, m_ui.frame_4}, false);
    style::setVisible({m_ui.ScanDiskLbl, m_ui.BlueClrLbl, m_ui.ProcessesLbl, m_ui.ProcessedVal,
                       m_ui.RedClrLBl, m_ui.BadBlkLbl, m_ui.BadBlkValLbl, m_ui.ProcesClrLl,
                       m_ui.ProcessNameLbl},
                      part == m_ui.frame_4);
    m_ui.frame_2->setVisible(part == m_ui.frame_2);
    m_ui.frame_3->setVisible(part == m_ui.frame_3);
}

void ScanDisk::ShowChooser()
{
    m_ui.frame_2->setWindowModality(Qt::WindowModal);
    m_ui.frame_2->raise();
    showPart(m_ui.frame_2);
    m_ui.radioButton->setChecked(true);
}

void ScanDisk::ShowSelfTest(const SelfTest::Shown &shown)
{
    TellSelfTest(shown);
    showPart(m_ui.frame_3);
}

void ScanDisk::FillDisk(const DiskNode *pNode)
{
    m_ui.DiskSizeValLbl->setText(pNode ? pNode->szSize.text() : QString());
    m_ui.TotalBlkValLbl->setText(QString::number(sectorsOf(pNode)));
    describeMap();
}

void ScanDisk::PrepareMap(const DiskNode *pNode)
{
    constexpr int MapSizeHint = 1439;
    g_nMapTotalSectors = sectorsOf(pNode);
    m_pGridView->SetHint(MapSizeHint);
    m_pGridView->Reset();
    g_nMapStep = 0;
    m_pGridView->show();
    m_pGridView->SetRange(0, g_nMapTotalSectors);
    describeMap();
}

void ScanDisk::StartScan(const QString &name)
{
    constexpr int UpdateInterval = 2000;
    constexpr int ScanMode = 3;
    HideResult();
    m_ui.frame_4->show();
    m_ui.frame->show();
    g_BadSectors.clear();
    clearTimes();
    // The timer of the last scan keeps running; it does the same.
    m_pUpdateTimer = new QTimer(this);
    connect(m_pUpdateTimer, &QTimer::timeout, this, &ScanDisk::OnUpdateTime);
    m_pUpdateTimer->start(UpdateInterval);
    m_clock.forgetEstimate();
    m_sinceStart.start();
    PrepareMap(g_App.m_pCurrentDisk);
    if (g_nMapTotalSectors > ScanBlockCount)
        g_nMapStep = g_nMapTotalSectors / ScanBlockCount;
    g_Jobs.begin(JobState::Job::Scan);
    m_bDropped = false;
    const WmicDiskRecord *record = g_App.m_pCurrentDisk ? findWmicDisk(g_App.m_pCurrentDisk->nId) : nullptr;
    m_pSaveListButton->begin({name, record ? record->szSmartSerial.text() : QString(),
                              QDateTime::currentDateTime(), g_nMapTotalSectors});
    m_scanThread.SetRange(0, g_nMapTotalSectors);
    m_scanThread.StartScan(g_App.m_pCurrentDisk, ScanMode);
    clearCounts();
}

void ScanDisk::DropResults()
{
    clearTimes();
    m_pSaveListButton->forget();
    m_pGridView->Reset();
    m_bDropped = g_Jobs.runs(JobState::Job::Scan);
    if (m_bDropped) {
        g_Jobs.giveUp();
    } else {
        g_BadSectors.clear();
        g_nBlockStep = 0;
    }
    clearCounts();
}

void ScanDisk::clearTimes()
{
    m_ui.ElapsedValLbl->clear();
    m_ui.RemTimeValLbl->clear();
    setTimeCaptions();
}

void ScanDisk::CentreResult()
{
    style::centreOn(m_pResultBox, window()->geometry());
}

// Signals of a scan that was given up may still arrive. They do not belong to the disk on show.
void ScanDisk::ScanMaxProgressForDisk()
{
    if (m_bDropped)
        return;
    m_pGridView->Reset();
    m_pGridView->show();
}

void ScanDisk::ScanProgValForDisk(qlonglong value)
{
    if (m_bDropped)
        return;
    m_pGridView->m_i64Position = g_nMapStep * value;
    m_pGridView->update();
}

void ScanDisk::OnTotalBlockCount(qlonglong position, qlonglong total, qlonglong step)
{
    if (m_bDropped)
        return;
    m_i64BlockStep = step;
    m_pSaveListButton->setScanned(position);
    showBlockSize();
    m_ui.ProcessedVal->setText(QString::number(position));
    emit Progressed(static_cast<int>(position * 100 / qMax<qlonglong>(total, 1)));
}

void ScanDisk::OnExactBadSectorCount(qlonglong count)
{
    if (!m_bDropped)
        m_ui.BadBlkValLbl->setText(QString::number(count));
}

void ScanDisk::OnAllBlockProcessed(qlonglong i64ProcessedBlocks)
{
    if (m_bDropped)
        return;
    m_pSaveListButton->setScanned(i64ProcessedBlocks);
    m_ui.ProcessedVal->setText(QString::number(i64ProcessedBlocks));
}

void ScanDisk::OnSetRemainingTime(qlonglong sectors, qlonglong endSector)
{
    m_clock.takeFirstChunk(sectors, endSector, m_sinceStart.elapsed());
}

void ScanDisk::OnUpdateTime()
{
    if (!g_bJobRunning || !g_Jobs.runs(JobState::Job::Scan) || m_bDropped)
        return;
    const qint64 elapsed = m_sinceStart.elapsed();
    if (const auto remaining = m_clock.remainingText(elapsed))
        m_ui.RemTimeValLbl->setText(*remaining);
    m_ui.ElapsedValLbl->setText(ScanClock::elapsedText(elapsed));
    setTimeCaptions();
    describeMap();
}

void ScanDisk::OnScanFinish(QString verdict)
{
    // The thread signals its end a moment before it has ended, and would clear g_bJobRunning of the next
    // job.
    m_scanThread.wait();
    clearTimes();
    m_clock.forgetEstimate();
    g_Jobs.end(JobState::Job::Scan);
    const ScanRecord::End how = scanrecord::endOf(g_bAbortJob, verdict, g_bScanDiskGone);
    m_pSaveListButton->end(how);
    emit Ended(scanrecord::jobEnd(how, g_BadSectors.count()));
    if (m_bDropped)
        DropResults();
    else if (!g_bAbortJob && verdict == QLatin1String("Pass"))
        // The progress comes in rounded steps, the last of which seldom meets the end of the disk.
        m_pGridView->m_i64Position = g_nMapTotalSectors;
    describeMap();
    showResult(verdict);
    emit OnScanFinished();
}

void ScanDisk::showResult(const QString &verdict)
{
    if (g_bAbortJob)
        m_pResultBox->SetTexts(tr("Disk Scan"), tr("Disk scan aborted."), tr("Disk scan aborted by user."));
    else if (verdict == QLatin1String("Pass"))
        m_pResultBox->SetTexts(tr("Scan Completed"), tr("Scan Completed."), QString());
    else if (verdict == QLatin1String("Failed"))
        m_pResultBox->SetTexts(tr("Scan Failed"), tr("Scan Failed."),
                               g_bScanDiskGone ? tr("The disk is no longer connected.") : QString());
    else
        return;
    // A disk that was pulled out goes from the lists when the box is closed, and its results with it.
    m_pResultBox->OfferSaving(!g_bAbortJob && g_bScanDiskGone && m_pSaveListButton->isEnabled());
    CentreResult();
    m_pResultBox->show();
}

void ScanDisk::retranslate()
{
    m_ui.retranslateUi(this);
    setTimeCaptions();
    showBlockSize();
    describeMap();
}
