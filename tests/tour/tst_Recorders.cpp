// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/LayoutCheck.h"
#include "tour/ScreenRecorder.h"

#include <QChartView>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineSeries>
#include <QScrollArea>
#include <QTest>
#include <QTreeWidget>

/// The contents of a window as data, and the faults found in it.
class tst_Recorders : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tellsWhatShows();
    void findsClippedText_data();
    void findsClippedText();
    void forgivesWhatCanBeScrolledTo();
    void findsOverlaps();

private:
    QLabel *label(const QString &name, const QString &text, const QRect &rect)
    {
        auto *made = new QLabel(text, m_window.get());
        made->setObjectName(name);
        made->setGeometry(rect);
        return made;
    }

    std::unique_ptr<QWidget> m_window;
};

void tst_Recorders::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(400, 300);
}

/// The widgets from top to bottom, without the hidden ones.
void tst_Recorders::tellsWhatShows()
{
    label(QStringLiteral("hidden"), QStringLiteral("text"), {0, 0, 50, 20})->hide();
    label(QStringLiteral("GraphLabel"), QStringLiteral("  Graph"), {0, 100, 50, 20})->setEnabled(false);
    label(QString(), QString(), {3, 5, 50, 20})
        ->setStyleSheet(QStringLiteral("QLabel {border-image: url(:/images/img_Menu.png)}"));
    auto *combo = new QComboBox(m_window.get());
    combo->setObjectName(QStringLiteral("DriveCombobox"));
    combo->setGeometry(0, 130, 100, 20);
    combo->addItem(QStringLiteral("Disk Drive 3"), 131);
    auto *tree = new QTreeWidget(m_window.get());
    tree->setColumnCount(2);
    tree->setColumnHidden(1, true);
    auto *item = new QTreeWidgetItem(tree, {QStringLiteral("5"), QStringLiteral("12")});
    item->setForeground(0, QColor(255, 0, 0));
    item->setForeground(1, QColor(0, 0, 0));
    auto *view = new QtCharts::QChartView(m_window.get());
    auto *series = new QtCharts::QLineSeries;
    series->append(10, 37.5);
    view->chart()->addSeries(series);
    view->chart()->createDefaultAxes();
    m_window->show();

    const QJsonObject found = screenrecorder::describe(m_window.get());
    QJsonArray places;
    const QJsonArray widgets = found[QStringLiteral("widgets")].toArray();
    for (const QJsonValue &widget : widgets)
        places << QJsonArray{widget[QStringLiteral("name")], widget[QStringLiteral("text")],
                             widget[QStringLiteral("y")], widget[QStringLiteral("enabled")],
                             widget[QStringLiteral("image")]};
    const auto json = [](const char *text) { return QJsonDocument::fromJson(text).array(); };
    QCOMPARE(places, json(R"([["", "", 5, true, ":/images/img_Menu.png"],
                              ["GraphLabel", "  Graph", 100, false, ""],
                              ["DriveCombobox", "Disk Drive 3", 130, true, ""]])"));
    QCOMPARE(
        found[QStringLiteral("combos")].toArray(),
        json(
            R"([{"name": "DriveCombobox", "current": 0, "items": [{"text": "Disk Drive 3", "data": 131}]}])"));
    const QJsonValue rows = found[QStringLiteral("trees")][0];
    QCOMPARE(rows[QStringLiteral("hidden")].toArray(), QJsonArray{1});
    QCOMPARE(rows[QStringLiteral("rows")].toArray(),
             json(R"([[{"text": "5", "color": "#ff0000"}, {"text": "12", "color": "#000000"}]])"));
    const QJsonValue chart = found[QStringLiteral("charts")][0];
    QCOMPARE(chart[QStringLiteral("title")].toString(), QStringLiteral("  Graph"));
    QCOMPARE(chart[QStringLiteral("series")].toArray(), json(R"([{"points": [[10, 37.5]]}])"));
    QCOMPARE(chart[QStringLiteral("axes")].toArray().size(), 2);
}

void tst_Recorders::findsClippedText_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<bool>("wraps");
    QTest::addColumn<int>("clipped");
    QTest::newRow("roomy") << QRect(0, 0, 300, 30) << false << 0;
    QTest::newRow("narrow") << QRect(0, 0, 60, 30) << false << 1;
    QTest::newRow("low") << QRect(0, 0, 300, 6) << false << 1;
    QTest::newRow("wrapped") << QRect(0, 0, 100, 200) << true << 0;
    QTest::newRow("wrapped, too low") << QRect(0, 0, 100, 25) << true << 1;
    QTest::newRow("out of the window") << QRect(350, 0, 300, 30) << false << 1;
    QTest::newRow("only its blank end is out of the window") << QRect(5, 0, 500, 30) << false << 0;
}

void tst_Recorders::findsClippedText()
{
    QFETCH(QRect, rect);
    QFETCH(bool, wraps);
    label(QStringLiteral("text"), QStringLiteral("Existing data will be lost.   "), rect)->setWordWrap(wraps);
    m_window->show();
    QTEST(layoutcheck::clipped(m_window.get(), QString()).size(), "clipped");
}

void tst_Recorders::forgivesWhatCanBeScrolledTo()
{
    auto *area = new QScrollArea(m_window.get());
    area->setGeometry(0, 0, 200, 50);
    auto *host = new QWidget;
    host->resize(180, 500);
    auto *below = new QLabel(QStringLiteral("Partition"), host);
    below->setGeometry(0, 300, 150, 20);
    area->setWidget(host);
    m_window->show();
    QVERIFY(below->isVisible());
    QCOMPARE(layoutcheck::clipped(m_window.get(), QString()), QJsonArray());
}

void tst_Recorders::findsOverlaps()
{
    label(QStringLiteral("one"), QStringLiteral("a"), {0, 0, 100, 20});
    label(QStringLiteral("touching"), QStringLiteral("b"), {99, 0, 100, 20});
    label(QStringLiteral("empty"), QString(), {0, 0, 100, 20});
    m_window->show();
    QCOMPARE(layoutcheck::overlaps(m_window.get(), QString()), QJsonArray());
    label(QStringLiteral("over"), QStringLiteral("c"), {0, 10, 50, 20})->show();
    const QJsonArray found = layoutcheck::overlaps(m_window.get(), QString());
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.at(0)[QStringLiteral("names")].toArray(),
             (QJsonArray{QStringLiteral("one"), QStringLiteral("over")}));
}

QTEST_MAIN(tst_Recorders)
#include "tst_Recorders.moc"
