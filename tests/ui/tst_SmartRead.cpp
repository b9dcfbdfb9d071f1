// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeHistory.h"
#include "smart/SmartGlobals.h"
#include "smart/Temperature.h"
#include "tests/ui/WindowFixture.h"
#include "ui/widgets/SmartChartView.h"
#include "ui/widgets/Style.h"

#include <QPointer>
#include <QTreeWidget>
#include <QtCharts/QAbstractAxis>
#include <QtCharts/QLineSeries>

using namespace QtCharts;

/// The two screens that read a disk: for different reports, with and without the companion, and the graph.
class tst_SmartRead : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        m_sections = sectionsOf(QStringLiteral("SmartRead.txt"));
        // The tool looks at the clock before it reads a disk.
        openPc(QStringLiteral("four"), [this] {
            if (QThread::currentThread() != qApp->thread())
                const QMutexLocker waits(&m_tool);
            return QDateTime::currentMSecsSinceEpoch();
        });
    }
    void cleanup() { tearDown(); }

    void choicesDuringARead()
    {
        QMutexLocker atWork(&m_tool);
        g_nDiskLifeDays = 7;
        const int reads = commands(" -a ");
        choose(Nvme);
        // No figure of the previous disk shows.
        QCOMPARE(text("ModelNumValLbl") + text("SerialValLbl") + text("DiskLifeValue"), QString());
        QCOMPARE(g_nDiskLifeDays, 0U);
        QVERIFY(!GetDiskTemperature());
        QTRY_COMPARE(commands(" -a "), reads + 1); // the tool runs now
        choose(Failed);
        choose(Nameless);
        // No poll of the temperature meanwhile.
        press("DiskPartitionButton");
        m_pWindow->GetSmartTemprature();
        QCOMPARE(commands(" -a "), reads + 1);
        press("SmartStatusButton");
        atWork.unlock();
        waitForRest();
        QCOMPARE(commands(" -a "), reads + 2);
        QCOMPARE(text("SmartResultLabel"), QStringLiteral("Passed"));
        QCOMPARE(tree()->topLevelItemCount(), 3);
        QCOMPARE(GetDiskTemperature(), 36);
    }

    /// What the table of SmartRead.txt looks like.
    void table()
    {
        goTo("SmartStatusButton");
        select(Nvme);
        QCOMPARE(tree()->columnWidth(1), 300);
        QCOMPARE(tree()->topLevelItem(2)->toolTip(2), QStringLiteral("&lt;img src='/etc/motd'&gt;"));
        select(Failed);
        QCOMPARE(tree()->columnWidth(1), 150);
        QVERIFY(tree()->topLevelItem(0)->isSelected());
        const QTreeWidgetItem *row = tree()->topLevelItem(1);
        QCOMPARE(row->text(7), QStringLiteral("Reallocated Sector Ct"));
        for (int column = 0; column < 8; ++column) {
            QCOMPARE(row->toolTip(column), row->text(column));
            const bool red = column == 6;
            QCOMPARE(row->foreground(column), QBrush(red ? style::colour::Failed : style::colour::Text));
            QCOMPARE(row->font(column).weight() > QFont::Normal, red);
        }
    }

    void clickDrawsAnotherGraph()
    {
        goTo("SmartStatusButton");
        QCOMPARE(points(), QVector<QPointF>({{40, 7}, {40, 7}, {40, 6}}));
        QVector<QPointer<QObject>> before{chart()};
        for (QAbstractAxis *axis : chart()->axes())
            before << axis;
        for (QAbstractSeries *series : chart()->series())
            before << series;
        QCOMPARE(before.size(), 7);
        click(1);
        QCOMPARE(text("GraphLabel"), QStringLiteral("Graph : Reallocated Sector Count"));
        QCOMPARE(g_strGraphTitle, text("GraphLabel"));
        QCOMPARE(points(), QVector<QPointF>({{40, 3}, {40, 3}, {40, 2}}));
        for (const QPointer<QObject> &object : before)
            QVERIFY(object.isNull());
        // Later runs of the read change nothing.
        const QChart *shownChart = chart();
        m_pWindow->OnInitializeSmart();
        QVERIFY(chart() == shownChart && tree()->topLevelItem(1)->isSelected());

        // Nor does another language, except for the texts.
        const HistoryPaths paths = historyPaths(QStringLiteral("SN0"));
        QVERIFY(QFile::remove(paths.dates) && QFile::remove(paths.values));
        changeLanguage(child<QWidget>("m_pSmartWgt"));
        QCOMPARE(text("GraphLabel"), QStringLiteral("Graph"));
        g_bSmartAvailable = false; // as after a disk without SMART
        tree()->topLevelItem(1)->setText(1, QStringLiteral("other language"));
        changeLanguage(child<QWidget>("m_pSmartWgt"));
        QVERIFY(!QFile::exists(paths.dates) && !QFile::exists(paths.values));
        QCOMPARE(chart(), shownChart);
        QCOMPARE(tree()->topLevelItemCount(), 3);
        QCOMPARE(tree()->topLevelItem(1)->text(1), QStringLiteral("Reallocated Sector Count"));
        QCOMPARE(text("SmartResultLabel") + '|' + text("GraphLabel"), QStringLiteral("Failed|"));
    }

private:
    /// The places of the disks in the combo box.
    static constexpr int Failed = 0;
    static constexpr int Nvme = 1;
    static constexpr int Nameless = 3; ///< its identity is in the report of the load alone

    QMutex m_tool; ///< while a test holds it, the tool is at work
    QTreeWidget *tree() const { return child<QTreeWidget>("m_pAttributeTree"); }
    static QChart *chart() { return g_pSmartChartView->chart(); }
    static QVector<QPointF> points()
    {
        const auto *line = qobject_cast<QLineSeries *>(chart()->series().value(0));
        return line ? line->pointsVector() : QVector<QPointF>();
    }

    /// Clicks the name of the row with the mouse.
    void click(int row) const
    {
        const QRect place = tree()->visualRect(tree()->model()->index(row, 1));
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    }
};

QTEST_MAIN(tst_SmartRead)
#include "tst_SmartRead.moc"
