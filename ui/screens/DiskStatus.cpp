// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/DiskStatus.h"

#include "smart/SmartGlobals.h"
#include "state/DiskIdentityTexts.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Languages.h"
#include "state/Scale.h"
#include "ui/screens/PageLook.h"
#include "ui/widgets/FittingTexts.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/Style.h"

#include <QGridLayout>

namespace
{

constexpr int TileRoom = 134; ///< of a value, up to the picture of its tile
constexpr int HighestTitle = 22;
constexpr std::size_t FirstLowerRow = 3; ///< of the details: from here the widths go by the language

void setIfAny(QLabel *label, const std::optional<QString> &text)
{
    if (text)
        label->setText(*text);
}

} // namespace

DiskStatus::DiskStatus(QWidget *parent) : Page(parent)
{
    using pagelook::named;
    m_ui.setupUi(this);
    healthTitleLbl = named(new QLabel(m_ui.HelthLable), "healthTitleLbl");
    healthValueLbl = named(new FittingLabel(style::px(TileRoom), m_ui.HelthLable), "healthValueLbl");
    performanceTitleLbl = named(new QLabel(m_ui.PerformanceLbl), "performanceTitleLbl");
    performanceValueLbl =
        named(new FittingLabel(style::px(TileRoom), m_ui.PerformanceLbl), "performanceValueLbl");
    tempValueLbl = named(new FittingLabel(style::px(TileRoom), m_ui.tempratureLbl), "tempValueLbl");
    tempTitleLbl = named(new QLabel(m_ui.tempratureLbl), "tempTitleLbl");

    style::setWhiteBackground(this);
    styleTexts();
    setTileTitles();
    ApplyLanguageMetrics();
    layOutTiles();
    layOutPage();
    const DetailRow hidden = details().front();
    for (QLabel *label : hidden)
        label->hide();
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
    const QString black = QStringLiteral("QLabel {color : black;}");
    pagelook::styleHeadings({m_ui.detailedLbl});
    for (const DetailRow &row : details()) {
        pagelook::styleNames({row[0], row[2]});
        pagelook::styleLabels({row[1], row[3]}, style::font(10), style::GreyLabel);
    }
    pagelook::styleLabels({healthTitleLbl, performanceTitleLbl, tempTitleLbl}, style::font(12), black);
    pagelook::styleLabels({healthValueLbl, performanceValueLbl, tempValueLbl}, style::font(15, true), black);
}

void DiskStatus::layOutTiles()
{
    struct Parts {
        QLabel *tile;
        QLabel *title;
        QLabel *value;
        int titleHeight; ///< 0: not fixed
        int valueHeight;
    };
    const Parts tiles[] = {
        {m_ui.tempratureLbl, tempTitleLbl, tempValueLbl, 0, 0},
        {m_ui.PerformanceLbl, performanceTitleLbl, performanceValueLbl, 22, 28},
        {m_ui.HelthLable, healthTitleLbl, healthValueLbl, 20, 28},
    };
    for (const Parts &entry : tiles) {
        auto *column = new QVBoxLayout(entry.tile);
        column->setContentsMargins(style::px(10), style::px(10), 0, style::px(20));
        column->setSpacing(0);
        // A title of less height is centred in the height of the highest one, so that the three are on one
        // line.
        if (entry.titleHeight > 0) {
            column->addSpacing(style::px(HighestTitle - entry.titleHeight) / 2);
            entry.title->setFixedHeight(style::px(entry.titleHeight));
        }
        if (entry.valueHeight > 0)
            entry.value->setFixedHeight(style::px(entry.valueHeight));
        entry.value->setAlignment(Qt::AlignBottom);
        column->addWidget(entry.title);
        column->addStretch(1);
        column->addWidget(entry.value);
    }
    performanceValueLbl->setAlignment(Qt::AlignLeft);
}

QGridLayout *DiskStatus::makeDetailsGrid()
{
    constexpr int Spacing = 5;
    constexpr int RowHeight = 27; // a field of 20 stands in the middle of its row
    auto *grid = new QGridLayout;
    grid->setSpacing(Spacing);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto rows = details();
    for (std::size_t row = 1; row < rows.size(); ++row) {
        // The columns must not take the widths that the lower labels have of their own.
        const Qt::Alignment alignment =
            row < FirstLowerRow ? Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter;
        const int line = static_cast<int>(row);
        int column = 0;
        for (QLabel *label : rows[row]) {
            grid->addWidget(label, line, column, alignment);
            // Column 2 stays empty between the two pairs.
            column += column == 1 ? 2 : 1;
        }
        grid->setRowMinimumHeight(line, style::px(RowHeight));
    }
    grid->setColumnMinimumWidth(0, style::px(126));
    grid->setColumnMinimumWidth(2, style::px(10));
    grid->setColumnStretch(1, 5);
    grid->setColumnStretch(4, 3);
    return grid;
}

void DiskStatus::layOutPage()
{
    auto *tileRow = new QHBoxLayout;
    tileRow->setSpacing(style::px(30));
    for (QLabel *tile : {m_ui.tempratureLbl, m_ui.PerformanceLbl, m_ui.HelthLable})
        tileRow->addWidget(tile);

    auto *upperSpacer = new QLabel(this);
    if (const int set = scale::imageSet(scale::percent()))
        upperSpacer->setFixedHeight(set == 96 ? 35 : style::px(6));
    auto *lowerSpacer = new QLabel(this);
    lowerSpacer->setFixedHeight(style::px(88));

    auto *headingLine = new QFrame(this);
    headingLine->setFixedHeight(1);
    headingLine->setStyleSheet(QStringLiteral("QFrame{background: #e3e6e9; border: none;}"));

    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(style::px(25), style::px(15), style::px(25), style::px(25));
    page->setSpacing(0);
    page->addLayout(tileRow);
    page->addWidget(upperSpacer);
    page->addStretch(1);
    page->addWidget(m_ui.detailedLbl);
    page->addSpacing(style::px(6));
    page->addWidget(headingLine);
    page->addSpacing(style::px(9));
    page->addLayout(makeDetailsGrid());
    page->addStretch(1);
    page->addWidget(lowerSpacer);
}

void DiskStatus::ApplyLanguageMetrics()
{
    const DiskStatusMetrics &metrics = languages::current().diskStatus;
    const std::array<std::array<int, 4>, 2> lowerWidths = {
        {{metrics.lifeName, metrics.lifeValue, metrics.powerOnName, metrics.powerOnValue},
         {metrics.startStopName, metrics.startStopValue, metrics.verdictName, metrics.verdictValue}}};
    for (QLabel *tile : {m_ui.tempratureLbl, m_ui.PerformanceLbl, m_ui.HelthLable})
        tile->setFixedSize(style::px(218), style::px(96));
    m_ui.detailedLbl->setFixedHeight(style::px(32));
    const auto rows = details();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t column = 0; column < rows[row].size(); ++column) {
            rows[row][column]->setFixedHeight(style::px(20));
            if (row >= FirstLowerRow)
                rows[row][column]->setFixedWidth(style::px(lowerWidths[row - FirstLowerRow][column]));
        }
    }
    performanceTitleLbl->setFixedHeight(style::px(metrics.performanceTitleHeight));
}

void DiskStatus::setTileTitles()
{
    tempTitleLbl->setText(tr("Temperature"));
    performanceTitleLbl->setText(tr("Performance"));
    healthTitleLbl->setText(tr("Health"));
}

void DiskStatus::showTile(Tile tile, const QString &value, TilePicture picture)
{
    QLabel *const values[] = {tempValueLbl, performanceValueLbl, healthValueLbl};
    values[tile]->setText(value);
    showPicture(tile, picture);
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
}

void DiskStatus::showPicture(Tile tile, TilePicture picture)
{
    const struct {
        QLabel *label;
        std::array<const char *, 4> files; ///< good, average, bad, unknown
    } tiles[] = {
        {m_ui.tempratureLbl, {"img_temprature.png", "img_temAverage.png", "img_HighTemp96.png"}},
        {m_ui.PerformanceLbl, {"img_Performance.png", "img_PerformanceAve.png", "img_PerformanceHigh.png"}},
        {m_ui.HelthLable,
         {"img_Health.png", "img_HealthAverage.png", "img_HealthHigh.png", "img_HealthUnknown.png"}},
    };
    if (picture != TilePicture::Same)
        images::setLabelImage(tiles[tile].label,
                              QLatin1String(tiles[tile].files[static_cast<std::size_t>(picture)]));
}

void DiskStatus::retranslate()
{
    m_ui.retranslateUi(this);
    setTileTitles();
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
