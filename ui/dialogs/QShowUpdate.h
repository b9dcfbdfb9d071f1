// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

class QTextEdit;

/// Offers the update that the last check found. Emits finished() after Cancel, and after a download that
/// failed.
class QShowUpdate : public QDialog
{
    Q_OBJECT

public:
    /// With `major` it speaks of a major release, whatever was found.
    explicit QShowUpdate(QWidget *parent = nullptr, bool major = false);

public slots:
    /// Hides the offer and begins the download.
    void DownloadApp();
    void CancelDownload();

private:
    void translateTexts();
    QString offerText() const;

    DialogFrame m_Frame;
    const bool m_bMajor;
    QTextEdit *m_pTextEdit;
    QLabel *m_pLinkLabel;
};

/// The twin that always speaks of a major release. The check itself opens QShowUpdate, which tells both.
class QMajorUpdate : public QShowUpdate
{
    Q_OBJECT

public:
    explicit QMajorUpdate(QWidget *parent = nullptr) : QShowUpdate(parent, true) {}
};
