// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/DiskStatus.h"

#include "smart/SmartGlobals.h"
#include "smart/TilePicture.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Languages.h"
#include "state/Scale.h"
#include "ui/widgets/FittingTexts.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/Style.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace
{

constexpr int TileWidth = 218;
constexpr int TileHeight = 96;
constexpr int FieldHeight = 20;
constexpr int HighestTitle = 22;

void setIfAny(QLabel *label, const std::optional<QString> &text)
{
    if (text)
        label->setText(*text);
}

} // namespace

DiskStatus::DiskStatus(QWidget *parent) : Page(parent)
{
    setupUi(this);
    healthTitleLbl = makeTileLabel(HelthLable, QStringLiteral("healthTitleLbl"));
    healthValueLbl = makeTileValue(HelthLable, QStringLiteral("healthValueLbl"));
    performanceTitleLbl = makeTileLabel(PerformanceLbl, QStringLiteral("performanceTitleLbl"));
    performanceValueLbl = makeTileValue(PerformanceLbl, QStringLiteral("performanceValueLbl"));
    tempValueLbl = makeTileValue(tempratureLbl, QStringLiteral("tempValueLbl"));
    tempTitleLbl = makeTileLabel(tempratureLbl, QStringLiteral("tempTitleLbl"));

    style::setWhiteBackground(this);
    styleTexts();
    setStaticTexts();
    ApplyLanguageMetrics();
    layOutTiles();
    layOutPage();

    DisknumberLbl->hide();
    DisknumberValLbl->hide();
    InterFaceLbl->hide();
    InterFaceValLbl->hide();
    DisknumberValLbl->setText(QStringLiteral("0"));
    showFirstPictures();
}

DiskStatus::~DiskStatus() = default;

QLabel *DiskStatus::makeTileLabel(QLabel *tile, const QString &name)
{
    auto *label = new QLabel(tile);
    label->setObjectName(name);
    return label;
}

QLabel *DiskStatus::makeTileValue(QLabel *tile, const QString &name)
{
    constexpr int Room = 134; // up to the picture of the tile
    auto *label = new FittingLabel(style::px(Room), tile);
    label->setObjectName(name);
    return label;
}

void DiskStatus::styleTexts()
{
    detailedLbl->setFont(style::font(13));
    detailedLbl->setStyleSheet(style::BlackLabel);
    for (QLabel *name : std::initializer_list<QLabel *>{
             DisknumberLbl, ModelNumberLbl, FrimvareVersionLbl, InterFaceLbl, Seriallbl, SectorLbl,
             DiskLifeString, PowerOnTimeString, StartStopString, DriveVerdictString}) {
        name->setFont(style::semiBold(10));
        name->setStyleSheet(style::GreyLabel);
    }
    for (QLabel *value : std::initializer_list<QLabel *>{
             DisknumberValLbl, ModelNumValLbl, FrimvareVersValLbl, InterFaceValLbl, SerialValLbl,
             SectorValLbl, DiskLifeValue, PowerOnTimeValue, StartStopValue, DriveVerdictValue}) {
        value->setFont(style::font(10));
        value->setStyleSheet(style::GreyLabel);
    }
    for (QLabel *title : {healthTitleLbl, performanceTitleLbl, tempTitleLbl}) {
        title->setFont(style::font(12));
        title->setStyleSheet(QStringLiteral("QLabel {color : black;}"));
    }
    for (QLabel *value : {healthValueLbl, performanceValueLbl, tempValueLbl}) {
        value->setFont(style::font(15, true));
        value->setStyleSheet(QStringLiteral("QLabel {color : black;}"));
    }
}

void DiskStatus::layOutTiles()
{
    struct Tile {
        QLabel *tile;
        QLabel *title;
        QLabel *value;
        int titleHeight; ///< 0: not fixed
        int valueHeight;
    };
    const Tile tiles[] = {
        {tempratureLbl, tempTitleLbl, tempValueLbl, 0, 0},
        {PerformanceLbl, performanceTitleLbl, performanceValueLbl, 22, 28},
        {HelthLable, healthTitleLbl, healthValueLbl, 20, 28},
    };
    for (const Tile &entry : tiles) {
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
    constexpr int FirstFixedRow =
        3; // from here the labels have widths of their own, which the columns must not take
    constexpr Qt::Alignment fills = Qt::AlignVCenter;
    auto *grid = new QGridLayout;
    grid->setSpacing(Spacing);
    grid->setContentsMargins(0, 0, 0, 0);
    QLabel *const rows[][4] = {
        {ModelNumberLbl, ModelNumValLbl, Seriallbl, SerialValLbl},
        {FrimvareVersionLbl, FrimvareVersValLbl, SectorLbl, SectorValLbl},
        {DiskLifeString, DiskLifeValue, PowerOnTimeString, PowerOnTimeValue},
        {StartStopString, StartStopValue, DriveVerdictString, DriveVerdictValue},
    };
    int row = 1;
    for (const auto &labels : rows) {
        int column = 0;
        for (QLabel *label : labels) {
            grid->addWidget(label, row, column, row < FirstFixedRow ? fills : Qt::AlignLeft | fills);
            // Column 2 stays empty between the two pairs.
            column += column == 1 ? 2 : 1;
        }
        grid->setRowMinimumHeight(row, style::px(RowHeight));
        ++row;
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
    for (QLabel *tile : {tempratureLbl, PerformanceLbl, HelthLable})
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
    page->addWidget(detailedLbl);
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
    for (QLabel *tile : {tempratureLbl, PerformanceLbl, HelthLable})
        tile->setFixedSize(style::px(TileWidth), style::px(TileHeight));
    detailedLbl->setFixedHeight(style::px(32));
    for (QLabel *label : std::initializer_list<QLabel *>{
             ModelNumberLbl, ModelNumValLbl, Seriallbl, SerialValLbl, FrimvareVersionLbl, FrimvareVersValLbl,
             SectorLbl, SectorValLbl, DisknumberLbl, DisknumberValLbl, InterFaceLbl, InterFaceValLbl})
        label->setFixedHeight(style::px(FieldHeight));
    const struct {
        QLabel *label;
        int width;
    } lower[] = {
        {DiskLifeString, metrics.lifeName},        {DiskLifeValue, metrics.lifeValue},
        {PowerOnTimeString, metrics.powerOnName},  {PowerOnTimeValue, metrics.powerOnValue},
        {StartStopString, metrics.startStopName},  {StartStopValue, metrics.startStopValue},
        {DriveVerdictString, metrics.verdictName}, {DriveVerdictValue, metrics.verdictValue},
    };
    for (const auto &entry : lower)
        entry.label->setFixedSize(style::px(entry.width), style::px(FieldHeight));
    performanceTitleLbl->setFixedHeight(style::px(metrics.performanceTitleHeight));
}

void DiskStatus::setStaticTexts()
{
    tempTitleLbl->setText(tr("Temperature"));
    performanceTitleLbl->setText(tr("Performance"));
    healthTitleLbl->setText(tr("Health"));
    detailedLbl->setText(tr("Disk Details"));
    DisknumberLbl->setText(tr("Disk Number"));
    ModelNumberLbl->setText(tr("Model Number"));
    FrimvareVersionLbl->setText(tr("Firmware Revision"));
    InterFaceLbl->setText(tr("Interface Type"));
    Seriallbl->setText(tr("Serial Number"));
    SectorLbl->setText(tr("Total Sectors"));
    DiskLifeString->setText(tr("Hard Disk Life"));
    PowerOnTimeString->setText(tr("Power-on Time"));
    StartStopString->setText(tr("Start/Stop Count"));
    DriveVerdictString->setText(tr("Drive's verdict"));
}

void DiskStatus::showIdentity(const DiskIdentityTexts &texts)
{
    DisknumberValLbl->setText(texts.diskNumber);
    setIfAny(ModelNumValLbl, texts.model);
    setIfAny(SerialValLbl, texts.serial);
    setIfAny(FrimvareVersValLbl, texts.firmware);
    setIfAny(InterFaceValLbl, texts.interfaceText);
    setIfAny(SectorValLbl, texts.sectors);
}

void DiskStatus::showModelAndSerial(const QString &model, const QString &serial)
{
    ModelNumValLbl->setText(model);
    SerialValLbl->setText(serial);
}

void DiskStatus::showPicture(Picture tile, TilePicture picture)
{
    const struct {
        QLabel *label;
        std::array<const char *, 4> files; ///< good, average, bad, unknown
    } tiles[] = {
        {tempratureLbl, {"img_temprature.png", "img_temAverage.png", "img_HighTemp96.png"}},
        {PerformanceLbl, {"img_Performance.png", "img_PerformanceAve.png", "img_PerformanceHigh.png"}},
        {HelthLable,
         {"img_Health.png", "img_HealthAverage.png", "img_HealthHigh.png", "img_HealthUnknown.png"}},
    };
    const auto &shown = tiles[static_cast<int>(tile)];
    if (picture != TilePicture::Same)
        images::setLabelImage(shown.label, QLatin1String(shown.files[static_cast<std::size_t>(picture)]));
}

void DiskStatus::showLife(const LifeTexts &texts)
{
    DiskLifeValue->setText(texts.life);
    PowerOnTimeValue->setText(texts.powerOn);
    StartStopValue->setText(texts.startStop);
}

void DiskStatus::showVerdict(DriveVerdict verdict)
{
    const bool failed = verdict == DriveVerdict::Failed;
    DriveVerdictValue->setText(failed                            ? tr("Failed: back up your data")
                               : verdict == DriveVerdict::Passed ? tr("Passed")
                                                                 : tr("Not told"));
    DriveVerdictValue->setStyleSheet(failed ? style::FailedLabel : style::GreyLabel);
}

void DiskStatus::showFirstPictures()
{
    for (const Picture tile : {Picture::Temperature, Picture::Performance, Picture::Health})
        showPicture(tile, TilePicture::Good);
}

void DiskStatus::clearDisk()
{
    const QString none;
    showIdentity({none, none, none, none, none, none, none});
    showLife({});
    DriveVerdictValue->clear();
    showFirstPictures();
}

void DiskStatus::redoDetails()
{
    const DiskNode *node = findPhysicalDisk(PhysicalDriveBase + g_nCurrentDiskIndex);
    const WmicDiskRecord *record = node ? findWmicDisk(node->nId) : nullptr;
    showIdentity(identityTextsAfterLanguageChange(node, record, g_nCurrentDiskIndex));
    const LifeKind kind =
        lifeKind(g_App.m_bNVMe, node && node->nKind == RemovableDisk, !g_smartTable.rows.isEmpty());
    showLife(lifeTexts(kind, g_lifeFigures, RetranslateSeparator));
    showVerdict(g_driveVerdict);
}

void DiskStatus::retranslate()
{
    retranslateUi(this);
    setStaticTexts();
    ApplyLanguageMetrics();
    if (!g_bReportPending) {
        if (!g_bSmartAvailable) {
            for (QLabel *value : {tempValueLbl, performanceValueLbl})
                value->setText(tr("Not Supported"));
        }
        if (!g_bSmartAvailable || !g_bHealthKnown)
            healthValueLbl->setText(tr("Not Supported"));
        redoDetails();
    }
}
