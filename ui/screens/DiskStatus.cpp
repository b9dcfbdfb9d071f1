// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/DiskStatus.h"

#include "smart/Rating.h"
#include "smart/SmartGlobals.h"
#include "state/DiskIdentityTexts.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Languages.h"
#include "state/Scale.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/Style.h"

#include <algorithm>

namespace
{

constexpr std::size_t FirstLowerRow = 3; ///< of the details: from here the widths go by the language

void setIfAny(QLabel *label, const std::optional<QString> &text)
{
    if (text)
        label->setText(*text);
}

} // namespace

DiskStatus::DiskStatus(QWidget *parent) : Page(parent)
{
    constexpr int FirstTitleHeight = 22; // until the language changes
    m_ui.setupUi(this);
    pagelook::makePage(this);
    m_ui.DetailGrid->setSpacing(5);
    styleTexts();
    ApplyLanguageMetrics();
    m_ui.performanceTitleLbl->setFixedHeight(style::px(FirstTitleHeight));
    addLines();
    clearDisk();
    m_ui.DisknumberValLbl->setText(QStringLiteral("0"));
}

std::array<DiskStatus::DetailRow, 5> DiskStatus::details() const
{
    return {{{m_ui.DisknumberLbl, m_ui.DisknumberValLbl, m_ui.InterFaceLbl, m_ui.InterFaceValLbl}, // hidden
             {m_ui.ModelNumberLbl, m_ui.ModelNumValLbl, m_ui.Seriallbl, m_ui.SerialValLbl},
             {m_ui.FrimvareVersionLbl, m_ui.FrimvareVersValLbl, m_ui.SectorLbl, m_ui.SectorValLbl},
             {m_ui.DiskLifeString, m_ui.DiskLifeValue, m_ui.PowerOnTimeString, m_ui.PowerOnTimeValue},
             {m_ui.StartStopString, m_ui.StartStopValue, m_ui.DriveVerdictString, m_ui.DriveVerdictValue}}};
}

void DiskStatus::styleTexts()
{
    pagelook::styleHeadings({m_ui.detailedLbl});
    for (const DetailRow &row : details()) {
        pagelook::styleNames({row[0], row[2]});
        pagelook::styleLabels({row[1], row[3]}, style::font(10), style::GreyLabel);
        pagelook::makeCopyable({row[1], row[3]});
    }
    pagelook::styleLabels({m_ui.healthTitleLbl, m_ui.performanceTitleLbl, m_ui.tempTitleLbl}, style::font(12),
                          style::BlackLabel);
    pagelook::styleLabels({m_ui.healthValueLbl, m_ui.performanceValueLbl, m_ui.tempValueLbl},
                          style::font(15, true), style::BlackLabel);
    pagelook::makeCopyable({m_ui.healthValueLbl, m_ui.performanceValueLbl, m_ui.tempValueLbl});
}

/// The line below the heading, and an empty one below the tiles. Neither has a name.
void DiskStatus::addLines()
{
    auto *headingLine = new QFrame(this);
    headingLine->setFixedHeight(1);
    headingLine->setStyleSheet(QStringLiteral("QFrame{background: #e3e6e9; border: none;}"));
    m_ui.PageColumn->insertWidget(m_ui.PageColumn->indexOf(m_ui.detailedLbl) + 2, headingLine);
    auto *upperSpacer = new QLabel(this);
    if (const int set = scale::imageSet(scale::percent()))
        upperSpacer->setFixedHeight(set == 96 ? 35 : style::px(6));
    m_ui.PageColumn->insertWidget(1, upperSpacer);
}

void DiskStatus::ApplyLanguageMetrics()
{
    const DiskStatusMetrics &metrics = languages::current().diskStatus;
    const std::array<std::array<int, 4>, 2> lowerWidths = {
        {{metrics.lifeName, metrics.lifeValue, metrics.powerOnName, metrics.powerOnValue},
         {metrics.startStopName, metrics.startStopValue, metrics.verdictName, metrics.verdictValue}}};
    const auto rows = details();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t column = 0; column < rows[row].size(); ++column) {
            rows[row][column]->setFixedHeight(style::px(20));
            if (row >= FirstLowerRow)
                rows[row][column]->setFixedWidth(style::px(lowerWidths[row - FirstLowerRow][column]));
        }
    }
    m_ui.performanceTitleLbl->setFixedHeight(style::px(metrics.performanceTitleHeight));
    const std::pair<QLabel *, const QLabel *> tiles[] = {{m_ui.tempratureLbl, m_ui.tempTitleLbl},
                                                         {m_ui.PerformanceLbl, m_ui.performanceTitleLbl},
                                                         {m_ui.HelthLable, m_ui.healthTitleLbl}};
    for (const auto &[picture, title] : tiles)
        picture->setAccessibleName(title->text());
}

void DiskStatus::showTile(Tile tile, const QString &value, TilePicture picture)
{
    QLabel *const values[] = {m_ui.tempValueLbl, m_ui.performanceValueLbl, m_ui.healthValueLbl};
    values[tile]->setText(value);
    // A tile without a figure knows nothing, so nothing in it is green.
    const bool told = std::any_of(value.cbegin(), value.cend(), [](QChar sign) { return sign.isDigit(); });
    values[tile]->setStyleSheet(told ? style::BlackLabel : style::GreyLabel);
    showPicture(tile, told ? picture : TilePicture::Unknown);
}

LifeKind DiskStatus::lifeKindOf(const DiskNode *node)
{
    return lifeKind(g_App.m_bNVMe, node && node->nKind == RemovableDisk, !g_smartTable.rows.isEmpty());
}

void DiskStatus::showDetails(const DiskIdentityTexts &identity, const QString &separator)
{
    m_ui.DisknumberValLbl->setText(identity.diskNumber);
    setIfAny(m_ui.ModelNumValLbl, identity.model);
    setIfAny(m_ui.SerialValLbl, identity.serial);
    setIfAny(m_ui.FrimvareVersValLbl, identity.firmware);
    setIfAny(m_ui.InterFaceValLbl, identity.interfaceText);
    setIfAny(m_ui.SectorValLbl, identity.sectors);

    const DiskNode *node = findPhysicalDisk(PhysicalDriveBase + g_nCurrentDiskIndex);
    const LifeTexts life = lifeTexts(lifeKindOf(node), g_lifeFigures, separator);
    m_ui.DiskLifeValue->setText(life.life);
    m_ui.PowerOnTimeValue->setText(life.powerOn);
    m_ui.StartStopValue->setText(life.startStop);

    const bool failed = g_driveVerdict == DriveVerdict::Failed;
    m_ui.DriveVerdictValue->setText(failed                                   ? tr("Failed: back up your data")
                                    : g_driveVerdict == DriveVerdict::Passed ? tr("Passed")
                                                                             : tr("Not told"));
    m_ui.DriveVerdictValue->setStyleSheet(failed ? style::FailedLabel : style::GreyLabel);
}

void DiskStatus::showModelAndSerial(const QString &model, const QString &serial)
{
    m_ui.ModelNumValLbl->setText(model);
    m_ui.SerialValLbl->setText(serial);
}

void DiskStatus::clearDisk()
{
    for (const DetailRow &row : details()) {
        row[1]->clear();
        row[3]->clear();
    }
    for (const Tile tile : {Temperature, Performance, Health})
        showPicture(tile, TilePicture::Good);
    for (QLabel *tile : {m_ui.tempratureLbl, m_ui.PerformanceLbl, m_ui.HelthLable})
        tile->setAccessibleDescription(QString());
    m_aePictures.fill(TilePicture::Same);
}

void DiskStatus::showPicture(Tile tile, TilePicture picture)
{
    const struct {
        QLabel *label;
        std::array<const char *, 4> files; ///< good, average, bad, unknown
    } tiles[] = {
        {m_ui.tempratureLbl,
         {"img_temprature.png", "img_temAverage.png", "img_HighTemp96.png", "img_temUnknown.png"}},
        {m_ui.PerformanceLbl,
         {"img_Performance.png", "img_PerformanceAve.png", "img_PerformanceHigh.png",
          "img_PerformanceUnknown.png"}},
        {m_ui.HelthLable,
         {"img_Health.png", "img_HealthAverage.png", "img_HealthHigh.png", "img_HealthUnknown.png"}},
    };
    if (picture == TilePicture::Same)
        return;
    m_aePictures[tile] = picture;
    // To the eye the colour and the shape tell it.
    tiles[tile].label->setAccessibleDescription(pictureText(picture));
    images::setLabelImage(tiles[tile].label,
                          QLatin1String(tiles[tile].files[static_cast<std::size_t>(picture)]));
}

void DiskStatus::retranslate()
{
    m_ui.retranslateUi(this);
    for (const Tile tile : {Temperature, Performance, Health})
        showPicture(tile, m_aePictures[tile]);
    ApplyLanguageMetrics();
    if (g_bReportPending)
        return;
    if (!g_bSmartAvailable) {
        showTile(Temperature, tr("Not Supported"));
        showTile(Performance, tr("Not Supported"));
    }
    if (!g_bSmartAvailable || !g_bHealthKnown)
        showTile(Health, tr("Not Supported"));
    const DiskNode *node = findPhysicalDisk(PhysicalDriveBase + g_nCurrentDiskIndex);
    const WmicDiskRecord *record = node ? findWmicDisk(node->nId) : nullptr;
    showDetails(identityTextsAfterLanguageChange(node, record, g_nCurrentDiskIndex), RetranslateSeparator);
}
