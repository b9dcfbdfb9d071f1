// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/TilePicture.h"
#include "ui/screens/Page.h"

#include "ui_DiskStatus.h"

#include <array>

enum class LifeKind;
struct DiskIdentityTexts;
struct DiskNode;

/// The first screen: three tiles with temperature, performance and health of the selected disk and a block of
/// details.
class DiskStatus : public Page
{
    Q_OBJECT

public:
    explicit DiskStatus(QWidget *parent = nullptr);

    enum Tile { Temperature, Performance, Health };
    /// Shows the value of a tile and its picture.
    void showTile(Tile tile, const QString &value, TilePicture picture = TilePicture::Same);

    /// Which life figures a disk has: null as a fixed disk.
    static LifeKind lifeKindOf(const DiskNode *node);
    /// Shows the details of the selected disk: its identity, where a field without a value stays, its life
    /// with `separator` between days and hours, and its verdict, a failure in red.
    void showDetails(const DiskIdentityTexts &identity, const QString &separator);
    /// Shows how the disk of a self-test calls itself.
    void showModelAndSerial(const QString &model, const QString &serial);
    /// Shows no details, and the tiles' first pictures.
    void clearDisk();

protected:
    void retranslate() override;

private:
    void showPicture(Tile tile, TilePicture picture);
    using DetailRow = std::array<QLabel *, 4>; ///< name, value, name, value
    std::array<DetailRow, 5> details() const;
    void ApplyLanguageMetrics();
    void styleTexts();
    void addLines();

    Ui::m_pDiskStatus m_ui;
    std::array<TilePicture, 3> m_aePictures{}; ///< by Tile; Same: nothing is told of it
};
