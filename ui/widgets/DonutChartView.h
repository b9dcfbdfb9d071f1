// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/DonutSeries.h"

#include <QBasicTimer>
#include <QImage>
#include <QList>
#include <QPainterPath>
#include <QVariant>
#include <QWidget>

/// The colours of a ring's slices, filled anew at each drawing. Main thread only.
inline QList<QColor> g_listSliceColours;
/// The selected disk has no volumes: the ring is grey. Main thread only.
inline bool g_bNoPartitions = false;

/// A ring of slices with the number of the selected disk in its centre. It is drawn once into an image, which
/// is painted again and again while the widget shows. Main thread only.
class DonutChartView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QVariantList sliceValues READ sliceValues)

public:
    /// Neither series nor legend is owned; both may be null and have to outlive the view.
    DonutChartView(DonutSeries *series, DonutLegend *legend, QWidget *parent = nullptr);
    ~DonutChartView() override;

    /// Draws the ring of the series anew, at the widget's size.
    void Redraw();
    QVariantList sliceValues() const;

    DonutSeries *m_pSeries;
    DonutLegend *m_pLegend;
    QImage *m_pImage = nullptr; ///< owned
    void *m_pSpare = nullptr;
    QBasicTimer m_nextPaint;
    int m_nExplodedSlice = -1;         ///< the slice that is drawn without the inset
    QList<QPainterPath> m_listRegions; ///< the ring shape of each slice

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool hasSlices() const;
    void drawRing(QPainter *target);
    void drawSlices(QPainter *painter, const QRect &outer, const QRect &hole);
};
