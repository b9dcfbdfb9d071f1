// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QList>
#include <QPainterPath>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <memory>

/// One slice of a ring.
struct DonutSlice {
    QString strLabel;
    double dValue = 0;
    QString strColorText;
};

/// The slices of a ring and how they are drawn. It owns its slices. The owner of the view owns it.
class DonutSeries
{
public:
    DonutSeries() = default;
    DonutSeries(const DonutSeries &) = delete;
    DonutSeries &operator=(const DonutSeries &) = delete;
    ~DonutSeries();

    void AddSlice(double value, const QString &label, const QString &colourText);
    void Clear();

    /// The part of the circle that a value takes, in whole sixteenths of a degree, cut off. 0 if the total is
    /// 0.
    int SpanSixteenths(double value) const;
    /// The same in whole degrees.
    int SpanDegrees(double value) const;

    QList<DonutSlice *> listSlices;
    QString strUnit;            ///< stored only
    int nOffsetX = 0;           ///< stored only
    int nSliceInset = 0;        ///< pixels by which the ring is smaller than its square, on each side
    bool bFlagA = true;         ///< stored only
    bool bColourSlices = false; ///< if false, all slices have the same brush
    QColor colorBase;           ///< stored only
    double dTotal = 0;
};

/// The legend of a ring. It is not drawn. It only tells in which half of the view the ring stands.
struct DonutLegend {
    int nStyleA = 1;
    int nStyleB = 1;
    int nStyleC = 1; ///< 0: the ring stands in the right half
    QString strTitle;
    QFont fontTitle;
    QFont fontBody;
};

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
    /// Series and legend may be null. They are not owned, and must outlive the view.
    DonutChartView(DonutSeries *series, DonutLegend *legend, QWidget *parent = nullptr);

    /// Draws the ring of the series anew, at the widget's size.
    void Redraw();
    QVariantList sliceValues() const;

    DonutSeries *m_pSeries;
    DonutLegend *m_pLegend;
    std::unique_ptr<QImage> m_pImage;
    void *m_pSpare = nullptr;
    int m_nExplodedSlice = -1;         ///< the slice that is drawn without the inset
    QList<QPainterPath> m_listRegions; ///< the ring shape of each slice

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool hasSlices() const;
    void drawRing(QPainter *target);
    void drawSlices(QPainter *painter, const QRect &outer, const QRect &hole);
};
