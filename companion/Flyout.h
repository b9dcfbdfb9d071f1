// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "companion/Watch.h"

#include <QWidget>

class FlyoutRow;
class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

/// The small window beside the icon: a row for each disk. It closes at a press outside. Main thread only.
class Flyout : public QWidget
{
    Q_OBJECT

public:
    Flyout();

public slots:
    void take(const WatchView &view);
    void setPaused(bool paused);
    /// Opens beside the icon, or in the corner where the place of the icon is not known.
    void showAt(const QRect &icon);

signals:
    void pauseWanted();
    void seen(quint64 event);
    /// Limits were changed.
    void refreshWanted();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void addHeader(QVBoxLayout *column);
    void addFooter(QVBoxLayout *column);
    FlyoutRow *addRow();
    void retranslate();
    void showAge();
    void fit();
    void place();

    WatchView m_view;
    QRect m_icon;     ///< where it opened; empty: not known
    QPoint m_pointer; ///< of the mouse then
    bool m_bPaused = false;
    QLabel *m_pTitle = nullptr;
    QLabel *m_pAge = nullptr;
    QLabel *m_pNone = nullptr; ///< in place of rows
    QScrollArea *m_pScroll = nullptr;
    QVBoxLayout *m_pRows = nullptr;
    std::vector<FlyoutRow *> m_apRows;
    QPushButton *m_pPause = nullptr;
    QPushButton *m_pSettings = nullptr;
    QPushButton *m_pOpen = nullptr;
};
