// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/DialogFrame.h"
#include "update/HelpLinks.h"

#include <QDialog>

/// The About box: version, system, legal line, and links to support and licence. Frees itself when closed.
class AboutDlg : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDlg(QWidget *parent = nullptr);

public slots:
    /// Opens the agreement in the language in use.
    void OpenLicense() { links::openAgreement(); }
    /// Begins a mail to the support. Does nothing where no address is set.
    void OpenSupport() { links::openSupport(); }

private:
    void translateTexts();

    DialogFrame m_Frame;
};
