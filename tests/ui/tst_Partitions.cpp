// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/WindowFixture.h"
#include "ui/widgets/DonutChartView.h"

#include <QScrollArea>
#include <QScrollBar>

#include <cmath>

namespace
{

/// The number of volumes on each disk.
const QList<int> volumeCounts = {3, 0, 4, 7};

/// A PC with these disks. The volumes of each have 100, 50, 33.3 … GB, a quarter of which is free. Disk 2 is
/// not healthy.
QByteArray volumesAndPartitions()
{
    QByteArrayList volumes;
    QByteArrayList partitions;
    char letter = 'C';
    for (int disk = 0; disk < volumeCounts.size(); ++disk) {
        const QByteArray number = QByteArray::number(disk);
        for (int i = 0; i < volumeCounts.at(disk); ++i) {
            const qint64 bytes = 26214400 / (i + 1) * qint64{4096};
            const QByteArray size = QByteArray::number(bytes);
            volumes << QByteArray(R"({"letter": ")") + letter++ + R"(", "fileSystem": "NTFS", "size": )" +
                           size + R"(, "free": )" + QByteArray::number(bytes / 4) + R"(, "bitLocker": )" +
                           (i == 0 ? R"("2.0")" : R"("None")") + R"(, "extents": [{"disk": )" + number +
                           R"(, "offset": )" + QByteArray::number(1048576 * (i + 1)) + R"(, "length": )" +
                           size + "}]}";
            // Disk 3 has a partition without a letter. From there on the lines of the two tables do not fit
            // each other.
            if (disk == 3 && i == 0)
                partitions << R"({"name": "Recovery", "type": "x", "size": 1, "disk": 2})";
            partitions << R"({"name": "P", "type": "x", "size": )" + size + R"(, "disk": )" + number + "}";
        }
    }
    return R"(, "volumes": [)" + volumes.join(',') + R"(], "partitions": [)" + partitions.join(',') + "]";
}

} // namespace

/// Disk Partition in the real window, on a PC with disks of many numbers of volumes.
class tst_Partitions : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        openWindow(pcOf(R"({"number": 0, "model": "A", "sectors": 1953525168},
                           {"number": 1, "model": "A", "sectors": 1953525168},
                           {"number": 2, "model": "A", "sectors": 1953525168, "status": "Error"},
                           {"number": 3, "model": "A", "sectors": 1953525168})",
                        QByteArray(), volumesAndPartitions()));
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
            QCOMPARE(g_bNoPartitions, count == 0);
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
            QCOMPARE(first(), "~" + QString(plain)
                                        .replace("Space", "~Space")
                                        .replace("(Bit", "~(Bit")
                                        .replace(" Free of", "~ Free of")
                                        .replace("% Free", "~% Free"));
            // A selection writes the mark as it is.
            selectDisk(0);
            QCOMPARE(texts("m_apVolumeName").first(), QStringLiteral("C: (NTFS)(BitLocker)"));
            press("ScanDiskButton");
        }
        // While another screen shows, the frames do not change.
        QCoreApplication::processEvents();
        QCOMPARE(texts("m_apSpaceTitle").first(), QStringLiteral("~Space"));
        press("DiskPartitionButton");
        QCOMPARE(first(), plain);
        languages::setFlag(7);
        selectDisk(0);
        QCOMPARE(texts("m_apSpaceValue").first(), QStringLiteral("25 GB Free of 100 GB Available"));
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
        QCOMPARE(colourAt({0, -middle}), QColor(0x10, 0x97, 0xc6));
        QCOMPARE(colourAt({-middle, middle / 2}), QColor(0x00, 0x62, 0xc4));
        QCOMPARE(colourAt({middle, middle / 4}), QColor(0x0b, 0x8a, 0xa3));
        QCOMPARE(colourAt({0, 0}), QColor(Qt::white));
        QCOMPARE(colourAt(-centre), QColor(Qt::white));

        auto *page = child<DiskPartition>();
        page->ShowSizes(QVector<qint64>(14, 1).toList());
        const double last = 13.5 / 14 * 2 * M_PI;
        QCOMPARE(colourAt(QPointF(middle * std::cos(last), -middle * std::sin(last)).toPoint()),
                 QColor(0x10, 0x97, 0xc6));
        page->ShowSizes({});
        for (const QPoint &direction : {QPoint(1, 0), QPoint(0, -1), QPoint(-1, 0), QPoint(0, 1)})
            QCOMPARE(colourAt(direction * middle), QColor(0x8c, 0x8c, 0x8c));
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
