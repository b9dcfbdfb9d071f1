// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/WindowFixture.h"
#include "ui/widgets/DonutChartView.h"
#include "ui/widgets/Style.h"

#include <QScrollArea>
#include <QScrollBar>

#include <cmath>

/// Disk Partition in the real window, on a PC with disks of many numbers of volumes.
class tst_Partitions : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        m_sections = sectionsOf(QStringLiteral("Partitions.txt"));
        openPc(QStringLiteral("volumes"));
        press("DiskPartitionButton");
    }
    void cleanup() { tearDown(); }

    void allFramesCanBeScrolledTo()
    {
        for (const float scaleFactor : {1.5F, 1.0F}) {
            m_pWindow.reset();
            g_App.m_fScale = scaleFactor;
            makeWindow();
            waitForRest();
            press("DiskPartitionButton");
            selectDisk(3);
            int bottom = 0;
            for (const QFrame *frame : frames()) {
                QVERIFY(frame->y() > bottom);
                QCOMPARE(frame->height(), static_cast<int>(50 * scaleFactor));
                bottom = frame->geometry().bottom();
            }
            QVERIFY(bottom < host()->height());
            // The wheel reaches the last one, but moves nothing where there is no bar.
            turnWheel();
            QCOMPARE(bar()->value(), bar()->maximum());
            selectDisk(0);
            turnWheel();
            QCOMPARE(bar()->value(), 0);
            // All three show without it.
            const QFrame *last = frames().last();
            QCOMPARE(last->visibleRegion().boundingRect(), last->rect());
        }
    }

    void theRing()
    {
        DonutChartView *view = ring();
        QCOMPARE(view->m_listRegions.size(), 3);
        const int side = std::min(view->width() / 2, view->height());
        const QPoint centre(view->width() / 4 + 10, view->height() / 2);
        const int middle = (side / 4 + side / 2 - 20) / 2; // the middle between hole and edge
        const auto colourAt = [&](const QPoint &place) { return view->m_pImage->pixelColor(centre + place); };
        // Counter-clockwise from the right: 100 : 50 : 33.
        QCOMPARE(colourAt({0, -middle}), g_listSliceColours.at(0));
        QCOMPARE(colourAt({-middle, middle / 2}), g_listSliceColours.at(1));
        QCOMPARE(colourAt({middle, middle / 4}), g_listSliceColours.at(2));
        for (const QPoint &beside : {QPoint(), -centre})
            QCOMPARE(colourAt(beside), QColor(Qt::white));

        auto *page = child<DiskPartition>();
        page->ShowSizes(QVector<qint64>(14, 1).toList());
        const double last = 13.5 / 14 * 2 * M_PI;
        QCOMPARE(colourAt(QPointF(middle * std::cos(last), -middle * std::sin(last)).toPoint()),
                 g_listSliceColours.at(0));
        page->ShowSizes({});
        for (const QPoint &direction : {QPoint(1, 0), QPoint(0, -1), QPoint(-1, 0), QPoint(0, 1)})
            QCOMPARE(colourAt(direction * middle), QColor(style::colour::EmptySign));
    }

    void onlyWhatShowsIsPainted()
    {
        EventCounter counter(ring(), QEvent::Paint);
        // The timer of the ring paints it about every 20 ms.
        const auto rests = [&counter] {
            QTest::qWait(50);
            const int before = counter.count;
            QTest::qWait(100);
            return counter.count == before;
        };
        QTRY_VERIFY(counter.count > 5);
        m_pWindow->showMinimized();
        QVERIFY(rests());
        const int minimised = counter.count;
        m_pWindow->showNormal();
        QTRY_VERIFY(counter.count > minimised + 5);
        press("ScanDiskButton");
        QVERIFY(rests());
    }

private:
    void selectDisk(int number) const
    {
        select(child<QComboBox>("DriveCombobox")->findData(PhysicalDriveBase + number));
        QCoreApplication::processEvents();
    }

    DonutChartView *ring() const { return child<DonutChartView>(); }
    QWidget *host() const { return child<QWidget>("m_pFrameHost"); }
    QScrollBar *bar() const { return child<QScrollArea>("m_pScrollArea")->verticalScrollBar(); }
    QList<QFrame *> frames() const { return host()->findChildren<QFrame *>(QStringLiteral("m_apFrame")); }

    void turnWheel() const
    {
        QWidget *viewport = child<QScrollArea>("m_pScrollArea")->viewport();
        for (int i = 0; i < 20; ++i) {
            QWheelEvent event(QPointF(5, 5), viewport->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(viewport, &event);
        }
    }
};

QTEST_MAIN(tst_Partitions)
#include "tst_Partitions.moc"
