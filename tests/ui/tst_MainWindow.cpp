// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SmartGlobals.h"
#include "tests/ui/WindowFixture.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/DiskPartition.h"
#include "ui/screens/DiskStatus.h"
#include "ui/screens/ScanDisk.h"
#include "ui/screens/SmartStatus.h"
#include "ui/widgets/Style.h"

#include <QAbstractItemView>

/// The real window, its screens and its files, on a described PC with an ATA disk, an NVMe disk and a stick
/// without SMART.
class tst_MainWindow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        m_sections = sectionsOf(QStringLiteral("MainWindow.txt"));
        openPc(QStringLiteral("three"));
    }
    void cleanup() { tearDown(); }

    void theMousePicksADisk()
    {
        auto *combo = child<QComboBox>("DriveCombobox");
        const int usual = QApplication::doubleClickInterval();
        QApplication::setDoubleClickInterval(0); // a release that soon after the press would not count
        QTest::mouseClick(combo, Qt::LeftButton);
        QCoreApplication::processEvents();
        QApplication::setDoubleClickInterval(usual);
        QAbstractItemView *view = combo->view();
        QVERIFY(view->isVisible() && view->window()->width() == combo->width());
        const QRect entry = view->visualRect(view->model()->index(2, 0));
        QCOMPARE(entry.height(), 28);
        QMouseEvent move(QEvent::MouseMove, entry.center(), view->viewport()->mapToGlobal(entry.center()),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &move);
        // The entry below the mouse has the colour of a chosen one.
        QCOMPARE(view->viewport()->grab(entry).toImage().pixelColor(2, 2), QColor(style::colour::Chosen));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, entry.center());
        QTRY_VERIFY(!view->isVisible());
        QCOMPARE(combo->currentIndex(), 2);
        waitForRest();
    }

    void noTextIsMarkup()
    {
        for (const QLabel *label : m_pWindow->findChildren<QLabel *>())
            QVERIFY2(label->textFormat() != Qt::AutoText, qPrintable(label->objectName()));
        auto *model = child<QLabel>("ModelNumValLbl");
        model->setText(QStringLiteral("<img src='/etc/motd'>") + QString(200, QLatin1Char('x')));
        model->grab();
        QCOMPARE(model->toolTip(), model->text().toHtmlEscaped());
    }

    void navigationShowsOneScreen()
    {
        const std::tuple<const char *, const char *, QString> screens[] = {
            {"SmartStatusButton", "SmartStatus", "ReportSaveButton ScreenshotButton"},
            {"CloneDiskButton", "CloneDisk", "CloneButton"},
            {"ScanDiskButton", "ScanDisk", "ScanButton"},
            {"DiskPartitionButton", "DiskPartition", ""},
            {"DiskStatusButton", "DiskStatus", ""}};
        for (const auto &[button, page, expected] : screens) {
            press(button);
            for (const MyButton *entry : m_pWindow->findChildren<MyButton *>())
                QCOMPARE(entry->isDown(), entry->objectName() == QLatin1String(button));
            for (const Page *screen :
                 std::initializer_list<Page *>{child<DiskStatus>(), child<SmartStatus>(),
                                               child<DiskPartition>(), child<ScanDisk>(), child<CloneDisk>()})
                QCOMPARE(screen->isVisible(), QLatin1String(screen->metaObject()->className()) == page);
            QStringList buttons;
            for (const char *name : {"ScanButton", "CloneButton", "ReportSaveButton", "ScreenshotButton",
                                     "StopButton", "StopTestButton"}) {
                if (shown(name))
                    buttons << QLatin1String(name);
            }
            QCOMPARE(buttons.join(' '), expected);
            // Contents and buttons end at one right edge.
            for (const char *name : {"m_pAttributeTree", "SourceFrame", "ChoiceCard1", "ScanButton",
                                     "CloneButton", "ScreenshotButton", "StopButton"}) {
                const auto *part = child<QWidget>(name);
                const auto *edge = child<QWidget>("StopTestButton");
                if (part->isVisible())
                    QCOMPARE(part->mapToGlobal(part->rect().topRight()).x(),
                             edge->mapToGlobal(edge->rect().topRight()).x());
            }
            waitForRest();
        }
        // The look under the pointer.
        auto *scan = child<MyButton>("ScanDiskButton");
        auto *status = child<MyButton>("DiskStatusButton");
        emit status->ChangePixmap();
        emit scan->ChangePixmap();
        QVERIFY(status->styleSheet().contains("img_DiskStatusSel") &&
                scan->styleSheet().contains("img_ScanDiskHov"));
        emit scan->OnUpdatePixmap();
        QVERIFY(scan->styleSheet().contains("img_ScanDiskNo"));
    }

    void screenshot()
    {
        goTo("SmartStatusButton");
        g_strGraphTitle = QStringLiteral("Reads/Writes");
        const QString name = m_strState + "/Reads-Writes";
        const QString path = name + ".jpg";
        const auto shoot = [this] {
            QTest::mouseClick(child<QPushButton>("ScreenshotButton"), Qt::LeftButton);
        };
        QVERIFY(!asked(shoot, QString()).isEmpty() && !QFile::exists(path)); // cancelled
        // The offered name gets its ending.
        QCOMPARE(asked(shoot, name), QStringLiteral("Save File|Reads-Writes|JPEG (*.jpg);|"));
        const auto *page = child<SmartStatus>();
        const QImage picture(path, "JPEG");
        QCOMPARE(picture.size(), page->size());
        // The picture has the page's texts, on white.
        QCOMPARE(picture.pixelColor(picture.width() - 3, picture.height() - 3), QColor(Qt::white));
        const auto *result = child<QLabel>("SmartResultLabel");
        const QImage text = picture.copy(QRect(result->mapTo(page, QPoint()), result->size()));
        QVERIFY(text.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0) !=
                Qt::white);
    }
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
