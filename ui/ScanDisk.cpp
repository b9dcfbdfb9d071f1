#include "ui/ScanDisk.h"

#include "app/state/Globals.h"
#include "ui/Images.h"
#include "ui/PageLook.h"
#include "ui/SelfTestPanel.h"
#include "ui/Style.h"

#include <QButtonGroup>
#include <QEvent>
#include <QVBoxLayout>

namespace
{

/// The semibold cut of the plain family, for the words that head a value or a text.
QFont strongFont()
{
    QFont font = style::font(10);
    font.setWeight(QFont::DemiBold);
    return font;
}

void styleChoice(QFrame *card, bool chosen)
{
    card->setStyleSheet(QStringLiteral(".QFrame{background: %1; border: 1px solid %2; border-radius: %3px;}")
                            .arg(chosen ? QStringLiteral("#f3f8fe") : QStringLiteral("#ffffff"),
                                 chosen ? QStringLiteral("#2a81e5") : QStringLiteral("#dfe5eb"))
                            .arg(style::px(8)));
}

} // namespace

ScanDisk::ScanDisk(QWidget *parent) : QWidget(parent)
{
    setupUi(this);
    pagelook::makePage(this);
    m_pSelfTestPanel = new SelfTestPanel(frame_3);
    auto *testColumn = new QVBoxLayout(frame_3);
    testColumn->setContentsMargins(0, 0, 0, 0);
    testColumn->addWidget(m_pSelfTestPanel);
    styleChooser();
    styleCounters();
    for (QLabel *count : {BlockSizeValLbl, ProcessedVal, BadBlkValLbl})
        count->setText(QStringLiteral("0"));
    setFixedTexts();
    TimeReLbl->setText(tr("Time Remaining"));
    TimeElapsedLbl->setText(tr("Time Elapsed"));
    FillDisk(nullptr);
    ShowChooser();
}

void ScanDisk::styleChooser()
{
    pagelook::styleHeadings({TestHeadingLabel});
    auto *tests = new QButtonGroup(this);
    const struct {
        QFrame *card;
        QRadioButton *radio;
        QLabel *text;
    } choices[] = {
        {ChoiceCard1, radioButton, label},
        {ChoiceCard2, radioButton_2, label_2},
        {ChoiceCard3, radioButton_3, label_3},
    };
    for (const auto &choice : choices) {
        choice.text->setFont(style::font(10));
        choice.text->setStyleSheet(style::BlackLabel);
        choice.radio->setFont(strongFont());
        tests->addButton(choice.radio);
        QFrame *card = choice.card;
        connect(choice.radio, &QRadioButton::toggled, this,
                [card](bool chosen) { styleChoice(card, chosen); });
        styleChoice(card, false);
    }
}

void ScanDisk::styleCounters()
{
    pagelook::styleValues({DiskSizeValLbl, TotalBlkValLbl, BlockSizeValLbl, ElapsedValLbl, RemTimeValLbl});
    for (QLabel *plain : {ProcessesLbl, BadBlkLbl, ProcessNameLbl}) {
        plain->setFont(style::font(10));
        plain->setStyleSheet(style::GreyLabel);
    }
    for (QLabel *strong :
         {DiskSizeLbl, TotalBlkLbl, BlockSizeLbl, TimeElapsedLbl, TimeReLbl, ProcessedVal, BadBlkValLbl}) {
        strong->setFont(strongFont());
        strong->setStyleSheet(style::GreyLabel);
    }
    ScanDiskLbl->setFont(style::font(13));
    ScanDiskLbl->setStyleSheet(style::GreyLabel);
    images::setLabelImage(BlueClrLbl, QStringLiteral("img_BlueLegend.png"));
    images::setLabelImage(RedClrLBl, QStringLiteral("img_RedLegend.png"));
    images::setLabelImage(ProcesClrLl, QStringLiteral("img_GrayLegend.png"));
    pagelook::styleCard(frame_4);
}

void ScanDisk::setFixedTexts()
{
    ScanDiskLbl->setText(tr("Scan Disk"));
    TestHeadingLabel->setText(tr("Scan Disk"));
    DiskSizeLbl->setText(tr("Disk Size"));
    TotalBlkLbl->setText(tr("Total Sectors"));
    BlockSizeLbl->setText(tr("Block Size"));
    ProcessesLbl->setText(tr("  Processed"));
    BadBlkLbl->setText(tr("  Bad Sectors"));
    ProcessNameLbl->setText(tr("  Processing"));
    radioButton->setText(tr("Scan Disk"));
    radioButton_2->setText(tr("Short Self-test"));
    radioButton_3->setText(tr("Extended Self-test"));
    label->setText(
        tr("Perform a surface scan on the selected disk to identify if the disk has bad sectors."));
    label_2->setText(tr("Run this test to check the electrical and mechanical performance of a device along "
                        "with the read/write operations on a portion of the disk. This test may take few "
                        "minutes to complete."));
    label_3->setText(tr("This test is same as a short self-test with a complete disk surface examination. "
                        "This test may take up to few hours to complete."));
}

void ScanDisk::hideParts()
{
    for (QWidget *part : std::initializer_list<QWidget *>{
             ScanDiskLbl, TestHeadingLabel, frame, frame_3, frame_4, BlueClrLbl, ProcessesLbl, ProcessedVal,
             RedClrLBl, BadBlkLbl, BadBlkValLbl, ProcesClrLl, ProcessNameLbl})
        part->hide();
}

void ScanDisk::ShowChooser()
{
    hideParts();
    frame_2->setWindowModality(Qt::WindowModal);
    frame_2->raise();
    frame_2->show();
    radioButton->setChecked(true);
}

void ScanDisk::ShowSelfTest()
{
    hideParts();
    frame_2->hide();
    m_pSelfTestPanel->ShowProgress(true);
    m_pSelfTestPanel->ShowTimes(true);
    frame_3->show();
}

void ScanDisk::FillDisk(const DiskNode *pNode)
{
    DiskSizeValLbl->setText(pNode ? pNode->szSize.text() : QString());
    const quint64 sectors = pNode && pNode->pDetails ? pNode->pDetails->nTotalSectors : 0;
    TotalBlkValLbl->setText(QString::number(sectors));
}

void ScanDisk::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi(this);
        setFixedTexts();
        // A finished scan leaves the times empty, captions included.
        if (g_bJobRunning) {
            TimeReLbl->setText(tr("Time Remaining"));
            TimeElapsedLbl->setText(tr("Time Elapsed"));
        }
        FillDisk(findPhysicalDisk(PhysicalDriveBase + g_nCurrentDiskIndex));
    }
    QWidget::changeEvent(event);
}
