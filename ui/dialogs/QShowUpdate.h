// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

class QTextEdit;

/// Offers the update that the last check found. Ends with finished(): behind Cancel, and behind a download
/// that failed.
class QShowUpdate : public QDialog
{
    Q_OBJECT

public:
    explicit QShowUpdate(QWidget *parent = nullptr);

public slots:
    /// Hides the offer and begins the download.
    void DownloadApp();
    void CancelDownload();

protected:
    /// Whether the offer is of a release or of an update.
    enum class Kind { AsFound, Major };
    QShowUpdate(QWidget *parent, Kind kind);

    void changeEvent(QEvent *event) override;

private:
    void translateTexts();
    QString offerText() const;

    DialogFrame m_Frame;
    const Kind m_eKind;
    QTextEdit *m_pTextEdit;
    QLabel *m_pLinkLabel;
};
