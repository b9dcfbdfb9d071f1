// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scan/ScanRecord.h"

#include <QPushButton>

class InfoDialogClass;

/// The button that saves the bad sectors of a scan (g_BadSectors), as a list or as a map file. It is enabled
/// from the end of a scan until its results are dropped. Main thread only.
class SaveListButton : public QPushButton
{
    Q_OBJECT

public:
    explicit SaveListButton(QWidget *parent);

    /// A scan begins.
    void begin(const ScanRecord &record);
    /// So many sectors are read, from the first one on.
    void setScanned(qint64 sectors) { m_record.scanned = sectors; }
    /// The scan has ended.
    void end(ScanRecord::End how);
    /// There is nothing to be saved.
    void forget() { begin({}); }
    /// Asks for a file, and writes it.
    void save();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    ScanRecord m_record;
    InfoDialogClass *m_pFailedBox = nullptr; ///< made when it is first needed
};
