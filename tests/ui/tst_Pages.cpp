// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "tests/ui/Named.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/DiskPartition.h"

#include <QComboBox>
#include <QtTest>

/// Pages without a window.
class PagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        g_App.m_fScale = 1.0F;
        addDisk(128, QStringLiteral("A"), FixedDisk);
        addDisk(129, QStringLiteral("B"), FixedDisk);
        addDisk(130, QStringLiteral("C"), RemovableDisk);
    }

    void cleanup()
    {
        g_App.m_diskList.clear();
        g_wmicDisks.clear();
        g_App.m_pCurrentDisk = nullptr;
        g_App.m_pCloneDisk = nullptr;
        g_nCurrentDiskIndex = 0;
    }

    void aNewSourceTakesTheDestinationAway()
    {
        CloneDisk page;
        QSignalSpy moved(&page, &CloneDisk::ComboboxIndexChange);
        QComboBox *source = addSources(page);
        QComboBox *destination = comboOf(page, "DestinationComboBox");
        QCOMPARE(destination->count(), 3);
        QCOMPARE(destination->itemText(0), QStringLiteral("Select Destination"));
        QCOMPARE(destination->itemText(1), QStringLiteral("B |  | 129 GB"));
        QCOMPARE(destination->itemData(0, Qt::SizeHintRole).toSize(), QSize(0, 0));
        QVERIFY(!destination->itemData(0).isValid());

        destination->setCurrentIndex(1);
        page.OnActivatedDestinationComboBox(1);
        QCOMPARE(g_App.m_pCloneDisk, findPhysicalDisk(129));
        QVERIFY(page.HasDestination());
        QCOMPARE(page.DestinationId(), 129);
        QVERIFY(labelOf(&page, "TargetModelLbl")->isVisibleTo(&page));
        QCOMPARE(labelOf(&page, "TargetModelLbl")->text(), QStringLiteral("Model Number\t: B"));

        moved.clear();
        source->setCurrentIndex(1);
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.at(0).at(0).toInt(), 1);
        QCOMPARE(g_App.m_pCurrentDisk, findPhysicalDisk(129));
        QCOMPARE(labelOf(&page, "ModelNLbl")->text(), QStringLiteral("Model Number\t: B"));
        QVERIFY(!page.HasDestination());
        QCOMPARE(destination->currentIndex(), 0);
        QCOMPARE(destination->findData(129), -1);
        QVERIFY(!labelOf(&page, "TargetModelLbl")->isVisibleTo(&page));

        // Emptied combos move nothing.
        source->clear();
        QCOMPARE(moved.count(), 1);
        QCOMPARE(g_App.m_pCurrentDisk, findPhysicalDisk(129));
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

    void thePartitionHeaderFollowsTheSelection()
    {
        DiskPartition page;
        const auto texts = [&page](int disk) {
            g_nCurrentDiskIndex = disk;
            page.FillPartitionHeader();
            return QStringList{labelOf(&page, "CapcityValLbl")->text(),
                               labelOf(&page, "SerialNunValueLbl")->text(),
                               labelOf(&page, "InterfaceValLbl")->text()};
        };
        QCOMPARE(texts(1), (QStringList{"129 GB", "bus B", "ATA Disk"}));
        g_pWmicDiskListHead->pNext->szSmartSerial.assign(QStringLiteral("S129"));
        g_pWmicDiskListHead->pNext->szInterface.assign(QStringLiteral("USB"));
        QCOMPARE(texts(1), (QStringList{"129 GB", "S129", "USB"}));
        QCOMPARE(texts(7), (QStringList{"", "", ""}));
    }

    void detailLabelsKeepTheirText()
    {
        const QVector<QStringList> rows{
            {"Total Sector\t   : 12", "Total Sector", ": 12"},
            {"Serial: A:B", "Serial", ": A:B"},
            {QString::fromUtf8("容量： 1 GB"), QString::fromUtf8("容量"), QString::fromUtf8("： 1 GB")},
            {"Serial 12", "Serial 12", ""},
        };
        for (const QStringList &row : rows) {
            const DetailLabel::Parts parts = DetailLabel::parts(row[0]);
            QCOMPARE(parts.caption, row[1]);
            QCOMPARE(parts.value, row[2]);
        }
    }

    void aCutNameHasATip()
    {
        CloneDisk page;
        const QString name = QStringLiteral("A Name & Sons <b>1");
        QComboBox *source = comboOf(page, "SourceComboBox");
        source->addItem(name);
        labelOf(&page, "ModelNLbl")->setText(QStringLiteral("Model: ") + name);
        for (QWidget *cut : std::initializer_list<QWidget *>{labelOf(&page, "ModelNLbl"), source}) {
            cut->setFixedWidth(90);
            cut->grab();
            QVERIFY(cut->toolTip().endsWith(QStringLiteral("A Name &amp; Sons &lt;b&gt;1")));
            cut->setFixedWidth(600);
            cut->grab();
            QCOMPARE(cut->toolTip(), QString());
        }
    }

private:
    static void addDisk(int id, const QString &model, DiskKind kind)
    {
        DiskNode &node = g_App.m_diskList.append();
        node.nId = static_cast<std::uint16_t>(id);
        node.nKind = kind;
        node.szSize.assign(QStringLiteral("%1 GB").arg(id));
        node.pDetails = std::make_unique<DiskDetails>();
        WmicDiskRecord &record = g_wmicDisks.append();
        record.nDiskId = static_cast<std::uint32_t>(id);
        record.szModel.assign(QStringLiteral("bus ") + model);
        record.szSmartModel.assign(model);
    }

    static QComboBox *comboOf(const CloneDisk &page, const char *name)
    {
        return page.findChild<QComboBox *>(QLatin1String(name));
    }

    static QComboBox *addSources(const CloneDisk &page)
    {
        QComboBox *combo = comboOf(page, "SourceComboBox");
        for (const DiskNode &node : g_App.m_diskList)
            combo->addItem(QString::number(node.nId), node.nId);
        return combo;
    }
};

QTEST_MAIN(PagesTest)
#include "tst_Pages.moc"
