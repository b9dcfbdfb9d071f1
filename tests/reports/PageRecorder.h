// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFontMetricsF>
#include <QMap>
#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>
#include <QVector>

/// Pages of the report's size that record what is painted on them.
class PageRecorder : public QPdfWriter, private QPaintEngine
{
public:
    PageRecorder() : QPdfWriter(QString()), QPaintEngine(AllFeatures)
    {
        setPageSize(QPageSize(QPageSize::A4));
        setPageMargins(QMarginsF(20, 10, 20, 10));
    }

    /// The lines by their tops: "x:text", tab by tab. Behind a text stands what is not black, of 8 points and
    /// plain.
    QVector<QMap<int, QString>> pages{1};
    /// "title" with the middle of a text of 14 points, to the next ten; "rule" from and to; "picture" with
    /// its place and size.
    QStringList marks;

    QPaintEngine *paintEngine() const override { return const_cast<PageRecorder *>(this); }

private:
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    Type type() const override { return User; }

    void drawTextItem(const QPointF &p, const QTextItem &item) override
    {
        const QFont face = painter()->font();
        const QFontMetricsF metrics(face, this);
        if (face.pointSize() == 14) {
            const int middle = qRound((p.x() + metrics.horizontalAdvance(item.text()) / 2) / 10) * 10;
            marks << QStringLiteral("title %1 %2").arg(middle).arg(item.text());
            return;
        }
        QString &line = pages.last()[qRound(p.y() - metrics.ascent())];
        line += (line.isEmpty() ? "" : "\t") + QString::number(qRound(p.x())) + ':' + item.text();
        const QColor ink = painter()->pen().color();
        if (ink != Qt::black)
            line += ink == Qt::red ? " red" : ink == Qt::darkGreen ? " green" : " another ink";
        if (face.pointSize() != 8)
            line += QStringLiteral(" %1 points").arg(face.pointSize());
        if (face.bold())
            line += QStringLiteral(" bold");
    }
    void drawLines(const QLineF *lines, int count) override
    {
        const QPen pen(Qt::black, 6.0, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin);
        for (const QLineF *line = lines; line != lines + count; ++line)
            mark(painter()->pen() == pen ? "rule" : "another line", line->p1(), line->p2());
    }
    void drawImage(const QRectF &target, const QImage &, const QRectF &, Qt::ImageConversionFlags) override
    {
        const QRect place = target.toRect();
        mark("picture", place.topLeft(), {double(place.width()), double(place.height())});
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    using QPaintEngine::drawLines;

    void mark(const char *kind, const QPointF &a, const QPointF &b)
    {
        marks << QStringLiteral("%1 %2,%3 %4,%5").arg(kind).arg(a.x()).arg(a.y()).arg(b.x()).arg(b.y());
    }
};
