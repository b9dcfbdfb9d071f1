// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QString>

/// One slice of a ring.
struct DonutSlice {
    QString strLabel;
    double dValue = 0;
    QString strColorText;
};

/// The slices of a ring and how they are drawn. Owns its slices; belongs to the owner of the view.
class DonutSeries
{
public:
    DonutSeries() = default;
    DonutSeries(const DonutSeries &) = delete;
    DonutSeries &operator=(const DonutSeries &) = delete;
    ~DonutSeries();

    void AddSlice(double value, const QString &label, const QString &colourText);
    void Clear();

    /// The part of the circle that a value takes, cut off to whole sixteenths of a degree; 0 while the total
    /// is.
    int SpanSixteenths(double value) const;
    /// The same in whole degrees.
    int SpanDegrees(double value) const;

    QList<DonutSlice *> listSlices;
    QString strUnit;            ///< stored only
    int nOffsetX = 0;           ///< stored only
    int nSliceInset = 0;        ///< pixels by which the ring is smaller than its square, on each side
    bool bFlagA = true;         ///< stored only
    bool bColourSlices = false; ///< while false, a slice has the brush of the one before it
    QColor colorBase;           ///< stored only
    double dTotal = 0;
};

/// The legend of a ring. It is not drawn: it only says in which half of the view the ring stands.
struct DonutLegend {
    int nStyleA = 1;
    int nStyleB = 1;
    int nStyleC = 1; ///< 0: the ring stands in the right half
    QString strTitle;
    QFont fontTitle;
    QFont fontBody;
};
