// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "tests/ui/Named.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/DiskPartition.h"
#include "ui/widgets/Style.h"

#include <QComboBox>
#include <QtTest>

#include <cmath>

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

    /// Texts of the palette stand out from what is behind them, by the measure for small letters.
    void theColoursCanBeRead()
    {
        const auto light = [](const QColor &colour) {
            double sum = 0;
            for (const auto &[part, weight] :
                 {std::pair(colour.redF(), 0.2126), {colour.greenF(), 0.7152}, {colour.blueF(), 0.0722}})
                sum += weight * (part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
            return sum + 0.05;
        };
        const QPalette palette = style::lightPalette();
        using Role = QPalette::ColorRole;
        const std::pair<Role, Role> pairs[] = {
            {Role::WindowText, Role::Window},         {Role::Text, Role::Base},
            {Role::Text, Role::AlternateBase},        {Role::ButtonText, Role::Button},
            {Role::HighlightedText, Role::Highlight}, {Role::ToolTipText, Role::ToolTipBase},
            {Role::PlaceholderText, Role::Base},      {Role::Link, Role::Base}};
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const auto &[text, behind] : pairs) {
                const double one = light(palette.color(group, text));
                const double other = light(palette.color(group, behind));
                QVERIFY2(std::max(one, other) / std::min(one, other) >= 4.5,
                         qPrintable(QString::number(text)));
            }
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
