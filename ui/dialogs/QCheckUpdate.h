// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

class QProgressBar;
class QShowUpdate;

/// Asks the web folder for a newer version. The constructor does all the work and waits for the network; the
/// dialog itself never shows. If there is an update, the offer opens, and the object deletes itself when the
/// offer closes: make it on the heap, with a parent.
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
    /// The download of the versions has ended, well or not: compares them and tells the outcome.
    void downloadFinishedTxt();
    /// A part of the file has come.
    void downloadReadyReadTxt();

private:
    void check();
    void tellNoUpdate();
    void showOffer();

    DialogFrame m_Frame;
    QProgressBar *m_pProgressBar;
    QShowUpdate *m_pOffer = nullptr;
    bool m_bHttpRequestAborted = false;
    int m_nComparisons = 0; ///< done by this object; it compares only once
};

/// The user asks for an update: checks at once, waits for the network, and tells the outcome. `owner` is the
/// parent of the dialogs. Null where nothing was checked: a job runs, which an update would end, or the brand
/// opens a web page instead. The object lives as long as its offer is open.
QCheckUpdate *checkForUpdates(QWidget *owner);
