// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monitor/DiskSummary.h"
#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QSpinBox;

/// The limits of one disk, in the unit in which temperatures are shown. Accepted once they are stored.
class LimitsDialog : public QDialog
{
    Q_OBJECT

public:
    LimitsDialog(const DiskSummary &disk, bool fahrenheit);

public slots:
    void accept() override;

private:
    QSpinBox *addLimit(QVBoxLayout *column, QLabel *caption, int celsius);
    void retranslate();
    int celsiusOf(const QSpinBox *box) const;

    const QString m_strSerial;
    const bool m_bFahrenheit;
    DialogFrame m_Frame;
    QCheckBox *m_pOwn = nullptr;
    QLabel *m_pWarningCaption;
    QLabel *m_pShutDownCaption;
    QSpinBox *m_pWarning = nullptr;
    QSpinBox *m_pShutDown = nullptr;
};
