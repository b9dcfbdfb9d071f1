// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Named.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/DiskPartition.h"
#include "ui/screens/ScanDisk.h"
#include "ui/screens/SmartStatus.h"

#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>
#include <QTreeWidget>

namespace
{

/// Marks every text, so that a text which was not translated anew is found.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QStringLiteral("~") + QString::fromUtf8(source);
    }
};

DiskNode *addDisk(int id, const QString &model, DiskKind kind = FixedDisk)
{
    DiskNode &node = g_App.m_diskList.append();
    node.nId = static_cast<std::uint16_t>(id);
    node.nKind = kind;
    node.szSize.assign(QStringLiteral("%1 GB").arg(id));
    node.pDetails = std::make_unique<DiskDetails>();
    node.pDetails->nTotalSectors = static_cast<std::uint64_t>(id) * 1000;
    WmicDiskRecord &record = g_wmicDisks.append();
    record.nDiskId = static_cast<std::uint32_t>(id);
    record.szModel.assign(QStringLiteral("bus ") + model);
    record.szSmartModel.assign(model);
    return &node;
}

QComboBox *comboOf(const CloneDisk &page, const char *name)
{
    return page.findChild<QComboBox *>(QLatin1String(name));
}

void addSources(CloneDisk &page)
{
    for (const DiskNode &node : g_App.m_diskList)
        comboOf(page, "SourceComboBox")->addItem(QString::number(node.nId), node.nId);
}

QRadioButton *radioOf(const ScanDisk &page, const char *name)
{
    return page.findChild<QRadioButton *>(QLatin1String(name));
}

QStringList choices(const QComboBox *combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts.append(combo->itemText(i));
    return texts;
}

} // namespace

class PagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        g_App.m_fScale = 1.0F;
        addDisk(128, QStringLiteral("A"));
        addDisk(129, QStringLiteral("B"));
        addDisk(130, QStringLiteral("C"), RemovableDisk);
    }

    void cleanup()
    {
        QCoreApplication::removeTranslator(&m_translator);
        g_App.m_diskList.clear();
        g_wmicDisks.clear();
        g_App.m_pCurrentDisk = nullptr;
        g_App.m_pCloneDisk = nullptr;
        g_App.m_bNVMe = false;
        g_bSmartAvailable = false;
        g_nCurrentDiskIndex = 0;
    }

    void aNewSourceTakesTheDestinationAway()
    {
        CloneDisk page;
        QSignalSpy moved(&page, &CloneDisk::ComboboxIndexChange);
        addSources(page);
        QCOMPARE(choices(comboOf(page, "DestinationComboBox")),
                 (QStringList{QStringLiteral("Select Destination"), QStringLiteral("B |  | 129 GB"),
                              QStringLiteral("bus C ")}));
        QCOMPARE(comboOf(page, "DestinationComboBox")->itemData(0, Qt::SizeHintRole).toSize(), QSize(0, 0));
        QVERIFY(!comboOf(page, "DestinationComboBox")->itemData(0).isValid());

        comboOf(page, "DestinationComboBox")->setCurrentIndex(1);
        page.OnActivatedDestinationComboBox(1);
        QCOMPARE(g_App.m_pCloneDisk, findPhysicalDisk(129));
        QVERIFY(page.HasDestination());
        QCOMPARE(page.DestinationId(), 129);
        QVERIFY(labelOf(&page, "TargetModelLbl")->isVisibleTo(&page));
        QCOMPARE(labelOf(&page, "TargetModelLbl")->text(), QStringLiteral("Model Number\t: B"));

        moved.clear();
        comboOf(page, "SourceComboBox")->setCurrentIndex(1);
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.at(0).at(0).toInt(), 1);
        QCOMPARE(g_App.m_pCurrentDisk, findPhysicalDisk(129));
        QCOMPARE(labelOf(&page, "ModelNLbl")->text(), QStringLiteral("Model Number\t: B"));
        QVERIFY(!page.HasDestination());
        QCOMPARE(comboOf(page, "DestinationComboBox")->currentIndex(), 0);
        QCOMPARE(comboOf(page, "DestinationComboBox")->findData(129), -1);
        QVERIFY(!labelOf(&page, "TargetModelLbl")->isVisibleTo(&page));
    }

    void emptyingTheCombosMovesNothing()
    {
        CloneDisk page;
        addSources(page);
        QSignalSpy moved(&page, &CloneDisk::ComboboxIndexChange);
        comboOf(page, "SourceComboBox")->clear();
        QCOMPARE(moved.count(), 0);
        QCOMPARE(g_App.m_pCurrentDisk, findPhysicalDisk(128));
    }

    void aDestinationThatIsGoneIsNotKept()
    {
        CloneDisk page;
        addSources(page);
        g_App.m_diskList.clear();
        page.OnActivatedDestinationComboBox(1);
        QVERIFY(!g_App.m_pCloneDisk);
        QVERIFY(!labelOf(&page, "TargetModelLbl")->isVisibleTo(&page));
    }

    void theSmartTreeChangesItsKind()
    {
        SmartStatus page;
        const auto *tree = page.findChild<QTreeWidget *>();
        const auto hidden = [tree] {
            QList<int> columns;
            for (int i = 0; i < tree->columnCount(); ++i) {
                if (tree->isColumnHidden(i))
                    columns.append(i);
            }
            return columns;
        };
        const QList<int> lookedUp{7, 8, 9, 10, 11};
        QCOMPARE(hidden(), lookedUp);
        g_App.m_bNVMe = true;
        page.FormatSmartTable();
        QCOMPARE(hidden(), (QList<int>{3, 4, 5, 6} + lookedUp));
        QCOMPARE(tree->columnWidth(1), 300);
        QCOMPARE(tree->headerItem()->text(2), QStringLiteral("Values"));
        g_App.m_bNVMe = false;
        page.FormatSmartTable();
        QCOMPARE(hidden(), lookedUp);
        QCOMPARE(tree->columnWidth(1), 150);
        QCOMPARE(tree->headerItem()->text(2), QStringLiteral("Status"));
    }

    void thePartitionHeaderFollowsTheSelection()
    {
        DiskPartition page;
        g_nCurrentDiskIndex = 1;
        page.FillPartitionHeader();
        QCOMPARE(labelOf(&page, "CapcityValLbl")->text(), QStringLiteral("129 GB"));
        QCOMPARE(labelOf(&page, "SerialNunValueLbl")->text(), QStringLiteral("bus B"));
        QCOMPARE(labelOf(&page, "InterfaceValLbl")->text(), QStringLiteral("ATA Disk"));
        g_pWmicDiskListHead->pNext->szSmartSerial.assign(QStringLiteral("S129"));
        g_pWmicDiskListHead->pNext->szInterface.assign(QStringLiteral("USB"));
        page.FillPartitionHeader();
        QCOMPARE(labelOf(&page, "SerialNunValueLbl")->text(), QStringLiteral("S129"));
        QCOMPARE(labelOf(&page, "InterfaceValLbl")->text(), QStringLiteral("USB"));
        g_nCurrentDiskIndex = 7;
        page.FillPartitionHeader();
        QCOMPARE(labelOf(&page, "CapcityValLbl")->text(), QString());
        QCOMPARE(labelOf(&page, "SerialNunValueLbl")->text(), QString());
    }

    void theChooserComesBackToTheSurfaceScan()
    {
        ScanDisk page;
        radioOf(page, "radioButton_3")->setChecked(true);
        QVERIFY(!radioOf(page, "radioButton")->isChecked());
        page.findChild<QFrame *>(QStringLiteral("frame_2"))->hide();
        page.findChild<QFrame *>(QStringLiteral("frame"))->show();
        page.ShowChooser();
        QVERIFY(radioOf(page, "radioButton")->isChecked());
        QVERIFY(!radioOf(page, "radioButton_3")->isChecked());
        QVERIFY(page.findChild<QFrame *>(QStringLiteral("frame_2"))->isVisibleTo(&page));
        QVERIFY(!page.findChild<QFrame *>(QStringLiteral("frame"))->isVisibleTo(&page));
        page.FillDisk(findPhysicalDisk(129));
        QCOMPARE(labelOf(&page, "DiskSizeValLbl")->text(), QStringLiteral("129 GB"));
        QCOMPARE(labelOf(&page, "TotalBlkValLbl")->text(), QStringLiteral("129000"));
        page.FillDisk(nullptr);
        QCOMPARE(labelOf(&page, "DiskSizeValLbl")->text(), QString());
        QCOMPARE(labelOf(&page, "TotalBlkValLbl")->text(), QStringLiteral("0"));
    }

    void aNewLanguageReachesEveryText()
    {
        SmartStatus smart;
        DiskPartition partition;
        ScanDisk scan;
        CloneDisk clone;
        addSources(clone);
        g_bSmartAvailable = true;
        QCoreApplication::installTranslator(&m_translator);
        QCoreApplication::processEvents();

        const QStringList kept{QStringLiteral("TimeReLbl"), QStringLiteral("TimeElapsedLbl")};
        for (QWidget *page : std::initializer_list<QWidget *>{&smart, &partition, &scan, &clone}) {
            const auto labels = page->findChildren<QLabel *>();
            for (const QLabel *label : labels) {
                const bool data = label->text().isEmpty() || label->objectName().contains("Val") ||
                                  label->objectName() == QStringLiteral("ProcessedVal");
                if (!data && !kept.contains(label->objectName()))
                    QVERIFY2(label->text().startsWith(QLatin1Char('~')), qPrintable(label->text()));
            }
        }
        QCOMPARE(labelOf(&smart, "SmartResultLabel")->text(), QStringLiteral("~Passed"));
        QCOMPARE(labelOf(&smart, "GraphLabel")->text(), QStringLiteral("~Graph"));
        QCOMPARE(smart.findChild<QTreeWidget *>()->headerItem()->text(1), QStringLiteral("~Attribute Name"));
        QCOMPARE(labelOf(&scan, "TimeReLbl")->text(), QStringLiteral("Time Remaining"));
        QCOMPARE(radioOf(scan, "radioButton_2")->text(), QStringLiteral("~Short Self-test"));
        QCOMPARE(comboOf(clone, "DestinationComboBox")->itemText(0), QStringLiteral("~Select Destination"));
        QCOMPARE(comboOf(clone, "DestinationComboBox")->count(), 3);
    }

    void detailLabelsKeepTheirText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("value");
        QTest::newRow("padded with a tab") << QStringLiteral("Total Sector\t   : 12")
                                           << QStringLiteral("Total Sector") << QStringLiteral(": 12");
        QTest::newRow("value with a colon")
            << QStringLiteral("Serial: A:B") << QStringLiteral("Serial") << QStringLiteral(": A:B");
        QTest::newRow("wide colon") << QString::fromUtf8("容量： 1 GB") << QString::fromUtf8("容量")
                                    << QString::fromUtf8("： 1 GB");
        QTest::newRow("no colon") << QStringLiteral("Serial 12") << QStringLiteral("Serial 12") << QString();
    }

    void detailLabelsKeepTheirText()
    {
        QFETCH(QString, text);
        const DetailLabel::Parts parts = DetailLabel::parts(text);
        QTEST(parts.caption, "caption");
        QTEST(parts.value, "value");
    }

    void aCutNameHasATip()
    {
        CloneDisk clone;
        const QString name = QStringLiteral("A Name & Sons <b>1");
        comboOf(clone, "SourceComboBox")->addItem(name);
        labelOf(&clone, "ModelNLbl")->setText(QStringLiteral("Model: ") + name);
        for (QWidget *cut : std::initializer_list<QWidget *>{labelOf(&clone, "ModelNLbl"),
                                                             comboOf(clone, "SourceComboBox")}) {
            cut->setFixedWidth(90);
            cut->grab();
            QVERIFY(cut->toolTip().endsWith(QStringLiteral("A Name &amp; Sons &lt;b&gt;1")));
            cut->setFixedWidth(600);
            cut->grab();
            QCOMPARE(cut->toolTip(), QString());
        }
    }

    void pagesHaveTheirSizeAtEveryScale_data()
    {
        QTest::addColumn<float>("scaleFactor");
        QTest::addColumn<QSize>("size");
        QTest::newRow("1.0") << 1.0F << QSize(764, 452);
        QTest::newRow("1.25") << 1.25F << QSize(955, 565);
        QTest::newRow("1.5") << 1.5F << QSize(1146, 678);
    }

    void pagesHaveTheirSizeAtEveryScale()
    {
        QFETCH(float, scaleFactor);
        QFETCH(QSize, size);
        g_App.m_fScale = scaleFactor;
        SmartStatus smart;
        DiskPartition partition;
        ScanDisk scan;
        CloneDisk clone;
        for (const QWidget *page : std::initializer_list<const QWidget *>{&smart, &partition, &scan, &clone})
            QCOMPARE(page->size(), size);
        QCOMPARE(scan.findChild<QFrame *>(QStringLiteral("frame"))->minimumSize(),
                 QSize(static_cast<int>(501 * scaleFactor), static_cast<int>(321 * scaleFactor)));
    }

private:
    MarkingTranslator m_translator;
};

QTEST_MAIN(PagesTest)
#include "tst_Pages.moc"
