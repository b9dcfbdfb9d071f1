// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BlockMap.h"
#include "scan/ScanGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/Scale.h"
#include "tests/support/Contrast.h"
#include "tests/ui/Named.h"
#include "ui/screens/CloneDisk.h"
#include "ui/screens/DiskPartition.h"
#include "ui/screens/DiskStatus.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/QGridView.h"
#include "ui/widgets/Style.h"

#include <QClipboard>
#include <QComboBox>
#include <QMenu>
#include <QTextLayout>
#include <QtTest>

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

    /// That a new source also takes the choice back: tst_CloneFlow, refuses().
    void aNewSourceTakesTheDestinationAway()
    {
        CloneDisk page;
        auto *source = page.findChild<QComboBox *>("SourceComboBox");
        auto *destination = page.findChild<QComboBox *>("DestinationComboBox");
        for (const DiskNode &node : g_App.m_diskList)
            source->addItem(QString::number(node.nId), node.nId);
        QCOMPARE(destination->itemData(0, Qt::SizeHintRole).toSize(), QSize(0, 0));
        const auto target = [&page](int row) {
            page.OnActivatedDestinationComboBox(row);
            const QLabel *model = labelOf(&page, "TargetModelLbl");
            return model->isVisibleTo(&page) ? model->text() : QString();
        };
        QCOMPARE(target(1), QStringLiteral("Model Number\t: B"));
        QCOMPARE(g_App.m_pCloneDisk, findPhysicalDisk(129));

        QSignalSpy moved(&page, &CloneDisk::ComboboxIndexChange);
        source->setCurrentIndex(1);
        QCOMPARE(labelOf(&page, "ModelNLbl")->text(), QStringLiteral("Model Number\t: B"));
        QVERIFY(!labelOf(&page, "TargetModelLbl")->isVisibleTo(&page));
        QCOMPARE(destination->findData(129), -1);
        // Emptied combos change nothing.
        source->clear();
        QCOMPARE(QList<QVariantList>(moved), QList<QVariantList>{{1}});
        QCOMPARE(g_App.m_pCurrentDisk, findPhysicalDisk(129));
        // A destination that is gone is not kept.
        g_App.m_diskList.clear();
        QCOMPARE(target(1), QString());
        QVERIFY(!g_App.m_pCloneDisk);
    }

    void thePartitionHeaderFollowsTheSelection()
    {
        DiskPartition page;
        const auto texts = [&page](int disk) {
            g_nCurrentDiskIndex = disk;
            page.FillPartitionHeader();
            QStringList found;
            for (const char *value : {"CapcityValLbl", "SerialNunValueLbl", "InterfaceValLbl"})
                found << labelOf(&page, value)->text();
            return found.join('|');
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
        const auto verify = [](const QColor &sign, const QColor &ground, double least) {
            QVERIFY2(contrast(sign, ground) >= least, qPrintable(sign.name() + " on " + ground.name()));
        };
        namespace colour = style::colour;
        for (const char *ground : {colour::White, colour::Pale, colour::Head, colour::Chosen}) {
            for (const char *text :
                 {colour::Text, colour::Grey, colour::Accent, colour::Passed, colour::Failed})
                verify(text, ground, 4.5);
        }
        for (const char *ground : {colour::Main, colour::MainHover, colour::MainPressed})
            verify(colour::OnMain, ground, 4.5);
        DiskPartition page;
        page.ShowSizes({1, 2});
        QVERIFY(!g_listSliceColours.isEmpty());
        for (const QColor &slice : qAsConst(g_listSliceColours))
            verify(slice, Qt::white, 3);
        for (const quint32 cell : {blockmap::ProcessedColour, blockmap::WorkingColour, blockmap::BadColour})
            verify(QColor::fromRgba(cell), Qt::white, 3);
        for (const char *sign : {colour::Sign, colour::GaugeSign, colour::EmptySign, colour::GoodSign,
                                 colour::WarmSign, colour::BadSign}) {
            verify(sign, colour::White, 3);
            verify(sign, colour::Pale, 3);
        }
        const QPalette palette = style::lightPalette();
        using Role = QPalette::ColorRole;
        const std::pair<Role, Role> pairs[] = {
            {Role::WindowText, Role::Window},         {Role::Text, Role::Base},
            {Role::Text, Role::AlternateBase},        {Role::ButtonText, Role::Button},
            {Role::HighlightedText, Role::Highlight}, {Role::ToolTipText, Role::ToolTipBase},
            {Role::PlaceholderText, Role::Base},      {Role::Link, Role::Base}};
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const auto &[text, behind] : pairs)
                verify(palette.color(group, text), palette.color(group, behind), 4.5);
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
        QCOMPARE(time->focusPolicy(), Qt::ClickFocus);
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
        auto *source = page.findChild<QComboBox *>("SourceComboBox");
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

    void hindiStandsOnTheLineOfLatin()
    {
        style::substituteFonts(false);
        if (QFontInfo(style::font(10)).family() != QLatin1String("Open Sans"))
            QSKIP("needs the fonts of packages.txt");
        for (const QFont &font : {style::font(10), style::semiBold(10), style::font(13)}) {
            QPointF lines[2]; // above and below the line
            for (const bool hindi : {false, true}) {
                QTextLayout layout(hindi ? QStringLiteral("डिस्क") : QStringLiteral("Disk"), font);
                layout.beginLayout();
                const QTextLine line = layout.createLine();
                layout.endLayout();
                lines[hindi] = QPointF(line.ascent(), line.descent());
            }
            QCOMPARE(lines[0], lines[1]);
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
        const auto path = [](float factor, Family family) {
            g_App.m_fScale = factor;
            return images::path("a.png", family).remove(":/images/Resources/");
        };
        QCOMPARE(path(1.0F, Family::Folder), QStringLiteral("96-DPI/a.png"));
        QCOMPARE(path(1.2500001F, Family::Plain), QStringLiteral("120-DPI/a.png"));
        QCOMPARE(path(1.74F, Family::Plain), QStringLiteral("144-DPI/a.png"));
        QCOMPARE(path(1.75F, Family::Plain), QStringLiteral("168-DPI/a.png"));
        QCOMPARE(path(2.0F, Family::MoreTools), QStringLiteral("Others/192-DPI/a.png"));
        QCOMPARE(path(1.3F, Family::Plain) + path(0.75F, Family::Folder), QString());
        // What has to have a picture takes that of 96 DPI.
        QCOMPARE(images::nearestPath("a.png"), QStringLiteral(":/images/a.png"));
    }

    /// Two cells are bad, and the second one is crossed out.
    void theMapOfAScan()
    {
        QGridView map;
        map.resize(501, 321);
        g_nMapTotalSectors = map.m_i64Position = 163840;
        for (const qint64 sector : {100, 819, 16384, 163839})
            g_BadSectors.append(sector, 1);
        const QImage image = map.grab().toImage();
        const std::pair<QPoint, quint32> dots[] = {
            {{10, 10}, blockmap::ProcessedColour},    {{24, 4}, blockmap::BadColour},
            {{470, 310}, blockmap::ProcessedColour},  {{484, 304}, blockmap::BadColour},
            {{490, 310}, blockmap::BackgroundColour}, {{40, 10}, blockmap::GridColour},
            {{500, 320}, blockmap::GridColour}};
        for (const auto &[place, colour] : dots)
            QCOMPARE(image.pixel(place), colour);
        // A disk that was pulled out has millions.
        g_BadSectors.append(163840, 1474560);
        QCOMPARE(map.badSectors().size(), QGridView::MostBadSectors);
        g_BadSectors.clear();
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
        const DonutLegend legend; // to the left, unless it is told otherwise
        QVERIFY(legend.nStyleA == 1 && legend.nStyleB == 1 && legend.nStyleC == 1);
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
};

QTEST_MAIN(PagesTest)
#include "tst_Pages.moc"
