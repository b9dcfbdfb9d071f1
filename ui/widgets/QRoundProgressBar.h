// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGradient>
#include <QWidget>

/// A gauge of 270 degrees, open at the bottom, with its value in the middle. It is drawn in design pixels and
/// scaled to the display. Its caps fit a side of 210. Main thread only.
class QRoundProgressBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ Value)
    Q_PROPERTY(QString text READ Text)

public:
    enum BarStyle { RingStyle = 0, LineStyle = 2 };

    using QWidget::QWidget;

    /// If the minimum is above the maximum, they are swapped. The value stays between them.
    void SetMinimum(double minimum);
    void SetMaximum(double maximum);
    void SetValue(int value);
    /// Where the bar begins, in degrees counter-clockwise from three o'clock.
    void SetNullPosition(double degrees);
    void SetBarStyle(int style);
    /// Digits behind the point; a negative number is ignored.
    void SetDecimals(int decimals);
    /// Colours along the bar; the line style alone shows them.
    void SetGradientStops(const QGradientStops &stops);

    double Value() const { return m_dValue; }
    /// The text in the middle.
    QString Text() { return ValueToText(m_dValue); }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return width; }
    QSize minimumSizeHint() const override { return QSize(32, 32); }

protected:
    void paintEvent(QPaintEvent *event) override;

    /// Steps of the painting; rectangles in design pixels
    virtual void PaintBackground(QPainter &painter, const QRectF &rect);
    virtual void PaintBase(QPainter &painter, const QRectF &rect);
    /// `delta`: degrees that the bar takes, clockwise.
    virtual void PaintValue(QPainter &painter, const QRectF &rect, double value, double delta);
    virtual void InnerRect(const QRectF &outerRect, double outerRadius, QRectF &innerRect,
                           double &innerRadius);
    virtual void PaintInnerBackground(QPainter &painter, const QRectF &rect);
    virtual void PaintText(QPainter &painter, const QRectF &rect, double innerRadius, double value);
    virtual QString ValueToText(double value);
    virtual void OnValueFormatChanged();

private:
    void keepInBounds();
    void repaintBar();
    void rebuildBrush();
    void paintRing(QPainter &painter, const QRectF &rect, double value, double delta);

    double m_dMinimum = 0;
    double m_dMaximum = 100;
    double m_dValue = 25;
    double m_dNullPosition = 90;
    int m_nBarStyle = RingStyle;
    double m_dOutlinePenWidth = 1;
    double m_dDataPenWidth = 1;
    QGradientStops m_vecGradientStops;
    bool m_bRebuildBrush = false;
    QString m_strFormat = QStringLiteral("%p%");
    int m_nDecimals = 1;
    int m_nUpdateFlags = 2; ///< placeholders of the format
};
