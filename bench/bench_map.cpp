// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BlockMap.h"
#include "scan/ScanGlobals.h"
#include "state/GlobalApp.h"
#include "ui/widgets/QGridView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>

namespace
{

constexpr qint64 DiskSectors = 976773168;
constexpr int Rounds = 20;

/// Milliseconds of `work`, the median of the rounds.
double measure(const std::function<void()> &work)
{
    std::array<double, Rounds> spent{};
    for (double &round : spent) {
        QElapsedTimer timer;
        timer.start();
        work();
        round = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }
    std::sort(spent.begin(), spent.end());
    return spent[Rounds / 2];
}

/// The same picture, made in plain loops: a rectangle for each cell and for each bad sector.
void paintPlainly(QImage *image, const QVector<qint64> &badSectors, qint64 position)
{
    constexpr int Side = 20;
    constexpr int Columns = 25;
    const qint64 perCell = DiskSectors / 400;
    image->fill(QColor::fromRgba(blockmap::BackgroundColour));
    QPainter painter(image);
    QRect last;
    for (qint64 cell = 0; cell < position / perCell; ++cell) {
        last = QRect(static_cast<int>(cell % Columns) * Side, static_cast<int>(cell / Columns) * Side, Side,
                     Side);
        painter.drawRect(last);
        painter.fillRect(last, QColor::fromRgba(blockmap::ProcessedColour));
    }
    painter.fillRect(last, QColor::fromRgba(blockmap::WorkingColour));
    qint64 lastBad = 0;
    for (const qint64 sector : badSectors) {
        lastBad = sector;
        const int cell = static_cast<int>(sector / perCell - 1);
        last = QRect(cell % Columns * Side, cell / Columns * Side, Side, Side);
        painter.fillRect(last, QColor::fromRgba(blockmap::BadColour));
    }
    if (lastBad >= position)
        painter.fillRect(last, QColor::fromRgba(blockmap::WorkingColour));
    painter.setPen(QColor::fromRgba(blockmap::GridColour));
    for (int x = 0; x <= 500; x += Side)
        painter.drawLine(x, 0, x, 320);
    for (int y = 0; y <= 500; y += Side)
        painter.drawLine(0, y, 500, y);
    painter.drawRect(0, 0, 500, 320);
}

/// One row of the table. False if the two pictures differ.
bool bench(const char *what, const QVector<qint64> &badSectors)
{
    g_BadSectors.clear();
    for (const qint64 sector : badSectors)
        g_BadSectors.append(sector);
    g_nMapTotalSectors = DiskSectors;
    QGridView view;
    view.resize(501, 321);
    view.m_i64Position = DiskSectors / 400 * 390;

    QImage painted(view.size(), QImage::Format_RGB32);
    QImage plain(view.size(), QImage::Format_RGB32);
    const double map = measure([&] { view.render(&painted); });
    const double loops = measure([&] { paintPlainly(&plain, badSectors, view.position()); });
    std::printf("%-44s %10.3f ms %10.3f ms %8.1fx\n", what, map, loops, loops / map);
    return painted == plain;
}

/// `count` sectors, `step` apart.
QVector<qint64> every(qint64 step, int count)
{
    QVector<qint64> sectors;
    for (int i = 0; i < count; ++i)
        sectors.append(i * step);
    return sectors;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    g_App.m_fScale = 1.0F;
    std::printf("%-44s %13s %13s %9s\n", "one paint of the block map, bad sectors:", "the map", "plain loops",
                "ratio");
    bool same = bench("none", {});
    same = bench("100000, none beside another", every(DiskSectors / 100000, 100000)) && same;
    same = bench("100000 in a row", every(1, 100000)) && same;
    same = bench("1000000, none beside another", every(DiskSectors / 1000000, 1000000)) && same;
    std::printf("the pictures are %s\n", same ? "the same" : "NOT the same");
    return same ? 0 : 1;
}
