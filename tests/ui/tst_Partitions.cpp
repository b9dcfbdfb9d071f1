// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/WindowFixture.h"
#include "ui/widgets/DonutChartView.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScrollArea>
#include <QScrollBar>
#include <QTranslator>

#include <algorithm>
#include <cmath>

namespace
{

/// Marks every translated text.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QStringLiteral("~") + QString::fromUtf8(source);
    }
};

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

constexpr double VolumeSize = 100.0 * 1024 * 1024 * 1024;

/// The number of volumes on each disk; the last one is removable, and so is its volume.
const QList<int> volumeCounts = {3, 0, 4, 7, 1};

QJsonObject disk(int number)
{
    return {{"number", number},
            {"media", number == volumeCounts.size() - 1 ? "removable" : "fixed"},
            {"model", "Alpha One ATA Device"},
            {"interface", "IDE"},
            {"status", number == 2 ? "Error" : "OK"},
            {"sectors", 1953525168.0}};
}

QByteArray description()
{
    QJsonArray disks;
    QJsonArray volumes;
    QJsonArray partitions;
    QChar letter = QLatin1Char('C');
    for (int number = 0; number < volumeCounts.size(); ++number) {
        disks.append(disk(number));
        for (int i = 0; i < volumeCounts.at(number); ++i) {
            const double size = std::floor(VolumeSize / (i + 1) / 4096) * 4096;
            volumes.append(QJsonObject{
                {"letter", QString(letter)},
                {"type", number == volumeCounts.size() - 1 ? "removable" : "fixed"},
                {"fileSystem", "NTFS"},
                {"size", size},
                {"free", size / 4},
                {"bitLocker", i == 0 ? "2.0" : "None"},
                {"extents", QJsonArray{QJsonObject{
                                {"disk", number}, {"offset", 1048576.0 * (i + 1)}, {"length", size}}}}});
            // Disk 3 has a partition without a letter. From there on the lines of the two tables do not fit
            // each other.
            if (number == 3 && i == 0)
                partitions.append(QJsonObject{{"name", "Recovery"}, {"type", "x"}, {"size", 1}, {"disk", 2}});
            partitions.append(
                QJsonObject{{"name", "Partition"}, {"type", "x"}, {"size", size}, {"disk", number}});
            letter = QChar(letter.unicode() + 1);
        }
    }
    const QJsonObject pc{{"name", "Test PC"},
                         {"user", "tester"},
                         {"dpi", 96},
                         {"pauses", false},
                         {"disks", disks},
                         {"volumes", volumes},
                         {"partitions", partitions},
                         {"processes", QJsonArray{"explorer.exe"}},
                         {"settings", QJsonObject{{"TempValue", "C"}, {"FirstTimeLaunch", 1}}}};
    return QJsonDocument(pc).toJson();
}

} // namespace

/// Disk Partition in the real window, on a PC with disks of all numbers of volumes.
class tst_Partitions : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProgram(); }
    void init();
    void cleanup();

    void everyDisk_data();
    void everyDisk();
    void frames();
    void healthOfTheOwnDisk();
    void nothingStaysOfTheLastDisk();
    void allFramesCanBeScrolledTo_data();
    void allFramesCanBeScrolledTo();
    void language();
    void korean();
    void theRing();
    void onlyWhatShowsIsPainted();

private:
    void showPage();
    void selectDisk(int number);
    void setLanguageChange();
    QStringList texts(const char *label) const;
    DiskPartition *page() const { return m_pWindow->findChild<DiskPartition *>(); }
    DonutChartView *ring() const { return page()->findChild<DonutChartView *>(); }
    QScrollArea *scrollArea() const { return page()->findChild<QScrollArea *>(); }
    QWidget *host() const { return scrollArea()->widget(); }

    MarkingTranslator m_translator;
};

void tst_Partitions::init()
{
    g_App.m_fScale = 1.0F;
    languages::setFlag(0);
    startPc(description());
    showPage();
}

void tst_Partitions::cleanup()
{
    QCoreApplication::removeTranslator(&m_translator);
    tearDown();
}

void tst_Partitions::showPage()
{
    makeWindow();
    waitForRead();
    press("DiskPartitionButton");
}

void tst_Partitions::selectDisk(int number)
{
    select(child<QComboBox>("DriveCombobox")->findData(PhysicalDriveBase + number));
    QCoreApplication::processEvents();
}

QStringList tst_Partitions::texts(const char *label) const
{
    QStringList found;
    for (const QFrame *frame : host()->findChildren<QFrame *>(QStringLiteral("m_apFrame"))) {
        const auto *child = frame->findChild<QLabel *>(QLatin1String(label));
        found.append(child ? child->text() : QString());
    }
    return found;
}

void tst_Partitions::everyDisk_data()
{
    QTest::addColumn<int>("number");
    for (int number = 0; number < volumeCounts.size(); ++number)
        QTest::addRow("%d volumes", volumeCounts.at(number)) << number;
}

void tst_Partitions::everyDisk()
{
    QFETCH(int, number);
    const int count = volumeCounts.at(number);
    // Both ways past the disk, so that it does not rest on what showed before.
    selectDisk(3);
    selectDisk(number);
    QCOMPARE(texts("m_apVolumeName").size(), count);
    const QVariantList sizes = ring()->sliceValues();
    QCOMPARE(sizes.size(), std::max(count, 1));
    QCOMPARE(sizes.contains(12.0), count == 0);
    QCOMPARE(g_bNoPartitions, count == 0);
    const auto *notice = page()->findChild<QLabel *>(QStringLiteral("m_pNoPartition"));
    QCOMPARE(notice != nullptr, count == 0);
    if (notice)
        QCOMPARE(notice->text(), QStringLiteral("No Partition Found"));

    const QScrollBar *bar = scrollArea()->verticalScrollBar();
    QCOMPARE(bar->isVisible(), count >= 4);
    QCOMPARE(bar->isEnabled(), count >= 4);
    QCOMPARE(host()->minimumHeight(), 300);
}

void tst_Partitions::frames()
{
    selectDisk(0);
    QCOMPARE(texts("m_apPartitionTitle"), (QStringList{"Partition", "Partition", "Partition"}));
    QCOMPARE(texts("m_apVolumeName"), (QStringList{"C: (NTFS)(BitLocker)", "D: (NTFS)", "E: (NTFS)"}));
    QCOMPARE(texts("m_apSpaceValue"),
             (QStringList{"25 GB Free of 100 GB", "12.5 GB Free of 50 GB", "8.3 GB Free of 33.3 GB"}));
    QCOMPARE(texts("m_apPercentage").first(), QStringLiteral("25% Free"));
    QCOMPARE(texts("m_apSpaceTitle").first(), QStringLiteral("Space"));
    QCOMPARE(texts("m_apBlankLabel").first(), QString());
    QCOMPARE(page()->findChild<QLabel *>(QStringLiteral("m_apSeparator"))->size(), QSize(1, 32));
    for (const QFrame *frame : host()->findChildren<QFrame *>(QStringLiteral("m_apFrame"))) {
        QCOMPARE(frame->height(), 50);
        QCOMPARE(frame->styleSheet(), QStringLiteral(".QFrame{ border: 1px solid #e0d0e0;}"));
    }
}

void tst_Partitions::healthOfTheOwnDisk()
{
    for (int number = 0; number < volumeCounts.size(); ++number) {
        selectDisk(number);
        QStringList words;
        for (int i = 0; i < volumeCounts.at(number); ++i)
            words.append(number == 2 ? QStringLiteral("Not Healthy") : QStringLiteral("Healthy"));
        QCOMPARE(texts("m_apStatusValue"), words);
    }
}

void tst_Partitions::nothingStaysOfTheLastDisk()
{
    selectDisk(3);
    QScrollBar *bar = scrollArea()->verticalScrollBar();
    bar->setValue(bar->maximum());
    QVERIFY(bar->value() > 0);
    selectDisk(0);
    QCOMPARE(bar->value(), 0);
    QVERIFY(host()->visibleRegion().boundingRect().top() == 0);
}

void tst_Partitions::allFramesCanBeScrolledTo_data()
{
    QTest::addColumn<float>("scaleFactor");
    QTest::newRow("1.0") << 1.0F;
    QTest::newRow("1.25") << 1.25F;
    QTest::newRow("1.5") << 1.5F;
}

void tst_Partitions::allFramesCanBeScrolledTo()
{
    QFETCH(float, scaleFactor);
    m_pWindow.reset();
    g_App.m_fScale = scaleFactor;
    showPage();
    selectDisk(3);
    int bottom = 0;
    for (const QFrame *frame : host()->findChildren<QFrame *>(QStringLiteral("m_apFrame"))) {
        QVERIFY(frame->y() > bottom);
        QCOMPARE(frame->height(), static_cast<int>(50 * scaleFactor));
        bottom = frame->geometry().bottom();
    }
    QVERIFY(bottom < host()->height());
    // The wheel reaches the last one, but moves nothing where there is no bar.
    QScrollBar *bar = scrollArea()->verticalScrollBar();
    const auto turn = [this] {
        QWidget *viewport = scrollArea()->viewport();
        for (int i = 0; i < 20; ++i) {
            QWheelEvent event(QPointF(5, 5), viewport->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(viewport, &event);
        }
    };
    turn();
    QCOMPARE(bar->value(), bar->maximum());
    selectDisk(0);
    turn();
    QCOMPARE(bar->value(), 0);
    // All three show without it.
    const auto *last = host()->findChildren<QFrame *>(QStringLiteral("m_apFrame")).last();
    QCOMPARE(last->visibleRegion().boundingRect(), last->rect());
}

void tst_Partitions::setLanguageChange()
{
    QCoreApplication::installTranslator(&m_translator);
    QCoreApplication::processEvents();
}

void tst_Partitions::language()
{
    setLanguageChange();
    QCOMPARE(texts("m_apVolumeName").first(), QStringLiteral("C: (NTFS)~(BitLocker)"));
    QCOMPARE(texts("m_apSpaceValue").first(), QStringLiteral("25 GB~ Free of 100 GB"));
    QCOMPARE(texts("m_apPercentage").first(), QStringLiteral("25~% Free"));
    QCOMPARE(texts("m_apSpaceTitle").first(), QStringLiteral("~Space"));
    // A selection writes the mark as it is.
    selectDisk(0);
    QCOMPARE(texts("m_apVolumeName").first(), QStringLiteral("C: (NTFS)(BitLocker)"));

    // While another screen shows, the frames do not change.
    press("ScanDiskButton");
    QCoreApplication::removeTranslator(&m_translator);
    QCoreApplication::processEvents();
    QCOMPARE(texts("m_apSpaceTitle").first(), QStringLiteral("~Space"));
    press("DiskPartitionButton");
    QCOMPARE(texts("m_apSpaceTitle").first(), QStringLiteral("Space"));
}

void tst_Partitions::korean()
{
    languages::setFlag(7);
    selectDisk(0);
    QCOMPARE(texts("m_apSpaceValue").first(), QStringLiteral("25 GB Free of 100 GB Available"));
    languages::setFlag(0);
}

void tst_Partitions::theRing()
{
    selectDisk(0);
    DonutChartView *view = ring();
    QCOMPARE(view->m_listRegions.size(), 3);
    const int side = std::min(view->width() / 2, view->height());
    QVERIFY(view->width() >= 300);
    QVERIFY(view->height() >= 143);
    const QPoint centre(view->width() / 4 + 10, view->height() / 2);
    const int middle = (side / 4 + side / 2 - 20) / 2; // the middle between hole and edge
    // Counter-clockwise from the right: 100 : 50 : 33.
    QCOMPARE(view->m_pImage->pixelColor(centre + QPoint(0, -middle)), QColor(29, 207, 250));
    QCOMPARE(view->m_pImage->pixelColor(centre + QPoint(-middle, middle / 2)), QColor(0, 140, 249));
    QCOMPARE(view->m_pImage->pixelColor(centre + QPoint(middle, middle / 4)), QColor(16, 164, 193));
    QCOMPARE(view->m_pImage->pixelColor(centre), QColor(Qt::white));
    QCOMPARE(view->m_pImage->pixelColor(0, 0), QColor(Qt::white));

    page()->ShowSizes(QVector<qint64>(14, 1).toList());
    const double last = 13.5 / 14 * 2 * M_PI;
    const QPointF place(middle * std::cos(last), -middle * std::sin(last));
    QCOMPARE(view->m_pImage->pixelColor(centre + place.toPoint()), QColor(29, 207, 250));

    page()->ShowSizes({});
    for (const QPoint &direction : {QPoint(1, 0), QPoint(0, -1), QPoint(-1, 0), QPoint(0, 1)})
        QCOMPARE(view->m_pImage->pixelColor(centre + direction * middle), QColor(188, 188, 188));
}

void tst_Partitions::onlyWhatShowsIsPainted()
{
    PaintCounter counter(ring());
    QTRY_VERIFY(counter.count > 5);
    m_pWindow->showMinimized();
    QTest::qWait(50);
    const int minimised = counter.count;
    QTest::qWait(100);
    QCOMPARE(counter.count, minimised);
    m_pWindow->showNormal();
    QTRY_VERIFY(counter.count > minimised + 5);
    press("ScanDiskButton");
    QCoreApplication::processEvents();
    const int before = counter.count;
    QTest::qWait(100);
    QCOMPARE(counter.count, before);
}

QTEST_MAIN(tst_Partitions)
#include "tst_Partitions.moc"
