// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "companion/Watch.h"

#include <QAbstractButton>

class QLabel;

/// A disk in the flyout: sign, name, state, its last day as a line, and its temperature. A press opens the
/// program on it.
class FlyoutRow : public QAbstractButton
{
    Q_OBJECT

public:
    explicit FlyoutRow(QWidget *parent = nullptr);

    void setDisk(const DiskSummary &disk, bool fahrenheit, const QDateTime &now);

signals:
    void openWanted(const DiskSummary &disk);
    void limitsWanted(const DiskSummary &disk);
    void seen(quint64 event);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    DiskSummary m_disk;
    QLabel *m_pName;
    QLabel *m_pState;
    QWidget *m_pDay; ///< the place of the line
    QLabel *m_pTemperature;
    qint64 m_nNow = 0; ///< ms since 1970
};
