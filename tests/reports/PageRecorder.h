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
    struct Picture {
        QRect target;
        QRect source;
    };

    QVector<Text> texts;
    QVector<QLineF> rules; ///< only lines with the pen of the rules
    QVector<Picture> pictures;

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
        switch (metric) {
        case PdmWidth:
            return 9251;
        case PdmHeight:
            return 13699;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 1200;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 0;
        }
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
        void drawImage(const QRectF &target, const QImage &, const QRectF &source,
                       Qt::ImageConversionFlags) override
        {
            m_page->pictures.append({target.toRect(), source.toRect()});
        }
        void drawPixmap(const QRectF &target, const QPixmap &, const QRectF &source) override
        {
            m_page->pictures.append({target.toRect(), source.toRect()});
        }
        using QPaintEngine::drawLines;

    private:
        PageRecorder *m_page;
    };

    mutable Engine m_engine{this};
};
