// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/WindowFixture.h"
#include "ui/widgets/DonutChartView.h"
#include "ui/widgets/Style.h"

#include <QScrollArea>
#include <QScrollBar>

#include <cmath>

namespace
{

/// The number of volumes on each disk.
const QList<int> volumeCounts = {3, 0, 4, 7};

/// Disks with volumes of 100, 50, 33.3 … GB, a quarter of which is free. Disk 2 is not healthy.
QByteArray disksAndVolumes()
{
    const QString disk = R"({"number": %1, "model": "A", "sectors": 1953525168, "status": "%2"})";
    const QString volume =
        R"({"letter": "%1", "fileSystem": "NTFS", "size": %2, "free": %3, "bitLocker": "%4",
        "extents": [{"disk": %5, "offset": %6, "length": %2}]})";
    QStringList disks;
    QStringList volumes;
    for (int number = 0; number < volumeCounts.size(); ++number) {
        disks << disk.arg(number).arg(number == 2 ? "Error" : "OK");
        for (int i = 0; i < volumeCounts.at(number); ++i) {
            const qint64 bytes = 26214400 / (i + 1) * qint64{4096};
            volumes << volume.arg(QChar('C' + volumes.size()))
                           .arg(bytes)
                           .arg(bytes / 4)
                           .arg(i == 0 ? "2.0" : "None")
                           .arg(number)
                           .arg(1048576 * (i + 1));
        }
    }
    return (disks.join(',') + R"(], "volumes": [)" + volumes.join(',')).toUtf8();
}

} // namespace

/// Disk Partition in the real window, on a PC with disks of many numbers of volumes.
class tst_Partitions : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        openWindow(pcOf(disksAndVolumes()));
        press("DiskPartitionButton");
    }
    void cleanup() { tearDown(); }

    void everyDisk()
    {
        for (int number = 0; number < volumeCounts.size(); ++number) {
            const int count = volumeCounts.at(number);
            // Past another disk, so that it does not rest on what showed before.
            selectDisk(3);
            bar()->setValue(bar()->maximum());
            QVERIFY(bar()->value() > 0);
            selectDisk(number);
            QCOMPARE(bar()->value(), 0);
            QCOMPARE(host()->visibleRegion().boundingRect().top(), 0);
            QCOMPARE(texts("m_apStatusValue"),
                     QVector<QString>(count, number == 2 ? "Not Healthy" : "Healthy").toList());
            const QVariantList sizes = ring()->sliceValues();
            QCOMPARE(sizes.size(), std::max(count, 1));
            QCOMPARE(sizes.contains(12.0), count == 0);
            const auto *notice = child<QLabel>("m_pNoPartition");
            QCOMPARE(notice ? notice->text() : QString(), QString(count == 0 ? "No Partition Found" : ""));
            QCOMPARE(bar()->isVisible() && bar()->isEnabled(), count >= 4);
            QCOMPARE(host()->minimumHeight(), 300);
        }
    }

    void texts()
    {
        QCOMPARE(texts("m_apVolumeName"), (QStringList{"C: (NTFS)(BitLocker)", "D: (NTFS)", "E: (NTFS)"}));
        const auto first = [this] {
            QStringList found;
            for (const char *label : {"m_apPartitionTitle", "m_apVolumeName", "m_apSpaceTitle",
                                      "m_apBlankLabel", "m_apSpaceValue", "m_apPercentage"})
                found << texts(label).first();
            return found.join('|');
        };
        const QString plain = "Partition|C: (NTFS)(BitLocker)|Space||25 GB Free of 100 GB|25% Free";
        QCOMPARE(first(), plain);
        {
            const OtherLanguage language("~$");
            QCOMPARE(first(), "~Partition|C: (NTFS)~(BitLocker)|~Space||25 GB~ Free of 100 GB|25~% Free");
            // A selection writes the mark as it is.
            selectDisk(0);
            QCOMPARE(texts("m_apVolumeName").first(), QStringLiteral("C: (NTFS)(BitLocker)"));
            press("ScanDiskButton");
        }
        // While another screen shows, the frames do not change.
        QCoreApplication::processEvents();
        QCOMPARE(texts("m_apSpaceTitle").first(), QStringLiteral("~Space"));
        languages::setFlag(7);
        press("DiskPartitionButton");
        QCOMPARE(first(), QString(plain).replace("100 GB", "100 GB Available"));
    }

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

    QStringList texts(const char *label) const
    {
        QStringList found;
        for (const QFrame *frame : frames())
            found << labelOf(frame, label)->text();
        return found;
    }

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
