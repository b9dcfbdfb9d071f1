#pragma once

#include "app/state/DiskRecords.h"

#include "ui_CloneDisk.h"

#include <QWidget>

/// The Clone Disk screen: the choice of a source and a destination with the details of both.
class CloneDisk : public QWidget, public Ui::m_pCloneDiskwgt
{
    Q_OBJECT

public:
    explicit CloneDisk(QWidget *parent = nullptr);

    /// Shows the details of the source, hides those of the target and rebuilds the list of destinations; the
    /// choice of a destination goes back to none. Null: no source, and any physical disk is a destination.
    void RefreshSourceDetails(const DiskNode *pNode);
    /// Shows or hides the details of the target.
    void ShowTargetDetails(bool bShow);

    int m_nDestinationIndex = 0;  ///< row in DestinationComboBox, 0: none chosen
    int m_nDestinationDrive = -1; ///< physical number of the destination, negative: none chosen
    quint64 m_nSourceSectors = 0; ///< sectors of 512 bytes

signals:
    /// The source combo went to another row; it has the rows of the main window's drive combo.
    void ComboboxIndexChange(int index);

public slots:
    void OnActivatedSourceComboBox(int index);
    void OnActivatedDestinationComboBox(int index);

protected:
    void changeEvent(QEvent *event) override;

private:
    void stylePage();
    void setFixedTexts();
    void rebuildDestinations(const DiskNode *pSource);
};
