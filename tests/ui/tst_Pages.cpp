// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BlockMap.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Scale.h"
#include "tests/ui/Named.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/DiskPartition.h"
#include "ui/screens/DiskStatus.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/Style.h"

#include <QClipboard>
#include <QComboBox>
#include <QMenu>
#include <QtTest>

#include <cmath>

/// Pages and widgets without a window.
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
        QComboBox *source = comboOf(page, "SourceComboBox");
        QComboBox *destination = comboOf(page, "DestinationComboBox");
        for (const DiskNode &node : g_App.m_diskList)
            source->addItem(QString::number(node.nId), node.nId);
        QCOMPARE(destination->count(), 3);
        QCOMPARE(destination->itemData(0, Qt::SizeHintRole).toSize(), QSize(0, 0));
        QVERIFY(!destination->itemData(0).isValid());
        const auto target = [&page] {
            const QLabel *model = labelOf(&page, "TargetModelLbl");
            return model->isVisibleTo(&page) ? model->text() : QString();
        };

        destination->setCurrentIndex(1);
        page.OnActivatedDestinationComboBox(1);
        QCOMPARE(g_App.m_pCloneDisk, findPhysicalDisk(129));
        QVERIFY(page.HasDestination());
        QCOMPARE(page.DestinationId(), 129);
        QCOMPARE(target(), QStringLiteral("Model Number\t: B"));

        moved.clear();
        source->setCurrentIndex(1);
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.at(0).at(0).toInt(), 1);
        QCOMPARE(labelOf(&page, "ModelNLbl")->text(), QStringLiteral("Model Number\t: B"));
        QVERIFY(!page.HasDestination());
        QCOMPARE(destination->currentIndex(), 0);
        QCOMPARE(destination->findData(129), -1);
        QCOMPARE(target(), QString());

        // Emptied combos move nothing.
        source->clear();
        QCOMPARE(moved.count(), 1);
        QCOMPARE(g_App.m_pCurrentDisk, findPhysicalDisk(129));

        // A destination that is gone is not kept.
        g_App.m_diskList.clear();
        page.OnActivatedDestinationComboBox(1);
        QVERIFY(!g_App.m_pCloneDisk);
        QCOMPARE(target(), QString());
    }

    void thePartitionHeaderFollowsTheSelection()
    {
        DiskPartition page;
        const auto texts = [&page](int disk) {
            g_nCurrentDiskIndex = disk;
            page.FillPartitionHeader();
            return labelOf(&page, "CapcityValLbl")->text() + '|' +
                   labelOf(&page, "SerialNunValueLbl")->text() + '|' +
                   labelOf(&page, "InterfaceValLbl")->text();
        };
        QCOMPARE(texts(1), QStringLiteral("129 GB|bus B|ATA Disk"));
        g_pWmicDiskListHead->pNext->szSmartSerial.assign(QStringLiteral("S129"));
        g_pWmicDiskListHead->pNext->szInterface.assign(QStringLiteral("USB"));
        QCOMPARE(texts(1), QStringLiteral("129 GB|S129|USB"));
        QCOMPARE(texts(7), QStringLiteral("||"));
    }

    void detailLabelsKeepTheirText()
    {
        for (const char *const row : {"Total Sector|: 12", "Serial|: A:B", "容量|： 1 GB", "Serial 12|"}) {
            const QStringList parts = QString::fromUtf8(row).split('|');
            const DetailLabel::Parts found = DetailLabel::parts(parts.join(QStringLiteral("\t ")));
            QCOMPARE((QStringList{found.caption, found.value}), parts);
        }
    }

    /// Texts and signs stand out from what is behind them, by the measures for small letters and for signs.
    void theColoursCanBeRead()
    {
        const auto light = [](const QColor &colour) {
            double sum = 0;
            for (const auto &[part, weight] :
                 {std::pair(colour.redF(), 0.2126), {colour.greenF(), 0.7152}, {colour.blueF(), 0.0722}})
                sum += weight * (part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
            return sum + 0.05;
        };
        const auto contrast = [&light](const QColor &one, const QColor &other) {
            return std::max(light(one), light(other)) / std::min(light(one), light(other));
        };
        namespace colour = style::colour;
        for (const char *ground : {colour::White, colour::Pale, colour::Head, colour::Chosen}) {
            for (const char *text :
                 {colour::Text, colour::Grey, colour::Accent, colour::Passed, colour::Failed})
                QVERIFY2(contrast(text, ground) >= 4.5, text);
        }
        for (const char *ground : {colour::Main, colour::MainHover, colour::MainPressed})
            QVERIFY2(contrast(colour::OnMain, ground) >= 4.5, ground);
        DiskPartition page;
        page.ShowSizes({1, 2});
        QList<QColor> signs = g_listSliceColours;
        QVERIFY(!signs.isEmpty());
        for (const quint32 cell : {blockmap::ProcessedColour, blockmap::WorkingColour, blockmap::BadColour})
            signs.append(QColor::fromRgba(cell));
        for (const char *sign : {colour::Sign, colour::GaugeSign, colour::EmptySign})
            signs.append(QColor(sign));
        for (const QColor &sign : qAsConst(signs))
            QVERIFY2(contrast(sign, Qt::white) >= 3, qPrintable(sign.name()));
        const QPalette palette = style::lightPalette();
        using Role = QPalette::ColorRole;
        const std::pair<Role, Role> pairs[] = {
            {Role::WindowText, Role::Window},         {Role::Text, Role::Base},
            {Role::Text, Role::AlternateBase},        {Role::ButtonText, Role::Button},
            {Role::HighlightedText, Role::Highlight}, {Role::ToolTipText, Role::ToolTipBase},
            {Role::PlaceholderText, Role::Base},      {Role::Link, Role::Base}};
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const auto &[text, behind] : pairs) {
                QVERIFY2(contrast(palette.color(group, text), palette.color(group, behind)) >= 4.5,
                         qPrintable(QString::number(text)));
            }
        }
    }

    void aSerialOf20LettersFits()
    {
        DiskStatus page;
        page.showModelAndSerial(QStringLiteral("Norvik NX500-1TB Enterprise"),
                                QStringLiteral("NVK-2041X77300458-AB"));
        page.grab();
        QCOMPARE(labelOf(&page, "SerialValLbl")->toolTip(), QString());
    }

    void valuesAreCopied()
    {
        const CloneDisk page;
        QLabel *model = labelOf(&page, "ModelNLbl");
        QLabel *time = labelOf(&page, "TimeLabel");
        model->setText(QStringLiteral("Model Number\t: A:1"));
        time->setText(QStringLiteral("12 minutes"));
        QCOMPARE(time->focusPolicy(), Qt::NoFocus);
        for (const auto &[label, selected, copied] :
             {std::tuple(model, 0, "A:1"), {time, 0, "12 minutes"}, {time, 2, "12"}}) {
            if (selected)
                label->setSelection(0, selected);
            emit label->customContextMenuRequested({});
            label->findChild<QMenu *>()->actions().first()->trigger();
            QCOMPARE(QGuiApplication::clipboard()->text(), QLatin1String(copied));
            delete label->findChild<QMenu *>();
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

    /// How the display's dots per inch become sizes and image sets.
    void scales()
    {
        for (const auto &[dpi, percent] :
             {std::pair(72, 75), {96, 100}, {97, 125}, {121, 150}, {143, 150}, {168, 175}})
            QCOMPARE(scale::percentForDpi(dpi), percent);
        QCOMPARE(scale::scaled(55, 125), 68); // cut off
        QCOMPARE(scale::scaled(-15, 150), -22);

        using images::Family;
        const auto check = [](float factor, Family family, const QString &folder) {
            g_App.m_fScale = factor;
            const QString file = QStringLiteral("a.png");
            QCOMPARE(images::path(file, family), folder.isEmpty() ? QString() : ":/images/" + folder + file);
            // What has to have a picture takes that of 96 DPI.
            if (folder.isEmpty())
                QCOMPARE(images::nearestPath(file), ":/images/" + file);
        };
        check(1.0F, Family::Folder, "Resources/96-DPI/");
        check(1.0F, Family::MoreTools, "Resources/Others/96-DPI/");
        check(1.2500001F, Family::Plain, "Resources/120-DPI/");
        check(1.74F, Family::Plain, "Resources/144-DPI/");
        check(1.75F, Family::Plain, "Resources/168-DPI/");
        check(2.0F, Family::MoreTools, "Resources/Others/192-DPI/");
        check(1.3F, Family::Plain, QString());
        check(0.75F, Family::Folder, QString());
    }

    void windowsStayOnTheirScreen()
    {
        const QRect area(0, 30, 1400, 1000); // below a bar at the top
        const QPoint left(-1400, 0);         // another screen
        const std::pair<QRect, QPoint> rows[] = {{{100, 60, 905, 600}, {100, 60}},
                                                 {{-227, -180, 905, 600}, {0, 30}},
                                                 {{1200, 900, 905, 600}, {495, 430}},
                                                 {{-10, 200, 1500, 1100}, {0, 30}}};
        for (const auto &[window, place] : rows) {
            QCOMPARE(style::placeWithin(window, area), place);
            QCOMPARE(style::placeWithin(window.translated(left), area.translated(left)), place + left);
        }
    }

    /// Parts of the ring, in sixteenths of a degree and in degrees.
    void spans()
    {
        const auto spans = [](double first, double second) {
            DonutSeries series;
            series.AddSlice(3, QStringLiteral("of the disk before"), QString());
            series.Clear();
            series.AddSlice(first, QString(), QString());
            series.AddSlice(second, QString(), QString());
            return QList<int>{series.SpanSixteenths(first), series.SpanDegrees(second)};
        };
        QCOMPARE(spans(1, 6), (QList<int>{822, 308})); // cut off, so the ring closes short
        QCOMPARE(spans(0, 0), (QList<int>{0, 0}));
        QCOMPARE(spans(9e18, -8.999999999e18), (QList<int>{5760, -360}));
        QCOMPARE(spans(qQNaN(), 1), (QList<int>{0, 0}));
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
};

QTEST_MAIN(PagesTest)
#include "tst_Pages.moc"
