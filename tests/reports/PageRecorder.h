// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QVector>

#include <cmath>

/// A page of the report's size that records what is painted on it.
class PageRecorder : public QPaintDevice
{
public:
    struct Text {
        QString text;
        int x;
        int y; ///< top of the line
        QColor ink;
        int points;
        bool bold;
    };

    QVector<Text> texts;
    QVector<QLineF> rules; ///< only lines with the pen of the rules
    QVector<QRect> pictures;

    /// The first text that reads so; empty if there is none.
    Text find(const QString &wanted) const
    {
        for (const Text &text : texts) {
            if (text.text == wanted)
                return text;
        }
        return {};
    }
    /// The texts that begin in a rectangle.
    QVector<Text> within(const QRect &place) const
    {
        QVector<Text> found;
        for (const Text &text : texts) {
            if (place.contains(text.x, text.y))
                found.append(text);
        }
        return found;
    }

    QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        if (metric == PdmWidth)
            return 9251;
        if (metric == PdmHeight)
            return 13699;
        if (metric == PdmDevicePixelRatio)
            return 1;
        return metric == PdmDevicePixelRatioScaled ? static_cast<int>(devicePixelRatioFScale()) : 1200;
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        explicit Engine(PageRecorder *page) : QPaintEngine(AllFeatures), m_page(page) {}

        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState &) override {}
        Type type() const override { return User; }

        void drawTextItem(const QPointF &p, const QTextItem &item) override
        {
            const QFont face = painter()->font();
            const double top = p.y() - QFontMetricsF(face, m_page).ascent();
            m_page->texts.append({item.text(), qRound(p.x()), qRound(top), painter()->pen().color(),
                                  face.pointSize(), face.bold()});
        }
        void drawLines(const QLineF *lines, int count) override
        {
            const QPen pen = painter()->pen();
            for (int i = 0; i < count; ++i) {
                if (pen.color() == Qt::black && pen.widthF() == 6.0 && pen.capStyle() == Qt::RoundCap &&
                    pen.joinStyle() == Qt::BevelJoin)
                    m_page->rules.append(lines[i]);
            }
        }
        void drawImage(const QRectF &target, const QImage &, const QRectF &,
                       Qt::ImageConversionFlags) override
        {
            m_page->pictures.append(target.toRect());
        }
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
        using QPaintEngine::drawLines;

    private:
        PageRecorder *m_page;
    };

    mutable Engine m_engine{this};
};
