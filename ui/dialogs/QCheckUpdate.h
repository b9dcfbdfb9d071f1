// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

class QProgressBar;
class QShowUpdate;

/// Asks the web folder for a newer version. The constructor does all of it and blocks as long as the network
/// does; the dialog itself never shows. Where there is an update, the offer opens and the object goes with
/// it: make it on the heap, with a parent.
class QCheckUpdate : public QDialog
{
    Q_OBJECT

public:
    explicit QCheckUpdate(QWidget *parent);
    ~QCheckUpdate() override;

    /// Whether an update was found, and is offered.
    bool HasOffer() const { return m_pOffer != nullptr; }

signals:
    void NoUpdates();

public slots:
    /// The file with the versions has come, or will not come: compares and tells.
    void downloadFinishedTxt();
    /// Something of it came.
    void downloadReadyReadTxt();

private:
    void check();
    void tellNoUpdate();
    void showOffer();

    DialogFrame m_Frame;
    QProgressBar *m_pProgressBar;
    QShowUpdate *m_pOffer = nullptr;
    bool m_bHttpRequestAborted = false;
    int m_nComparisons = 0; ///< of this object; only the first one counts
};

/// The user asks for an update: checks at once, blocking, with `owner` as parent of the dialogs, and tells
/// the outcome. Null where nothing was checked: while a job runs, which an update would end, and where the
/// brand opens a page instead. What is not null stays for as long as its offer does.
QCheckUpdate *checkForUpdates(QWidget *owner);
