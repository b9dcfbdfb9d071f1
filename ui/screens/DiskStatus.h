// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/DiskIdentityTexts.h"
#include "ui/screens/Page.h"

#include "ui_DiskStatus.h"

class QGridLayout;
enum class DriveVerdict;
enum class TilePicture;
struct LifeTexts;

/// The first screen: three tiles with temperature, performance and health of the selected disk and a block of
/// details. Holds labels only; the main window fills them.
class DiskStatus : public Page, private Ui::m_pDiskStatus
{
    Q_OBJECT

public:
    explicit DiskStatus(QWidget *parent = nullptr);
    ~DiskStatus() override;

    /// Sets the fixed sizes that depend on the language.
    void ApplyLanguageMetrics();

    /// Shows the identity fields; a field without a value stays.
    void showIdentity(const DiskIdentityTexts &texts);

    /// Shows how the disk of a self-test calls itself.
    void showModelAndSerial(const QString &model, const QString &serial);

    enum class Picture { Temperature, Performance, Health };
    /// Shows the picture of a tile.
    void showPicture(Picture tile, TilePicture picture);

    /// Shows the three life fields.
    void showLife(const LifeTexts &texts);

    /// Shows what the drive says of itself, a failure in red.
    void showVerdict(DriveVerdict verdict);

    /// Shows no details, and the tiles' first pictures.
    void clearDisk();

    QLabel *healthTitleLbl;
    QLabel *healthValueLbl;
    QLabel *performanceTitleLbl;
    QLabel *performanceValueLbl;
    QLabel *tempValueLbl;
    QLabel *tempTitleLbl;

protected:
    void retranslate() override;

private:
    QLabel *makeTileLabel(QLabel *tile, const QString &name);
    QLabel *makeTileValue(QLabel *tile, const QString &name);
    void styleTexts();
    void layOutTiles();
    void layOutPage();
    QGridLayout *makeDetailsGrid();
    void setStaticTexts();
    void showFirstPictures();
    void redoDetails();
};
