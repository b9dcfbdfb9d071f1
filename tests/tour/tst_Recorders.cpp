// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/LayoutCheck.h"
#include "tour/ScreenRecorder.h"

#include <QBarCategoryAxis>
#include <QCategoryAxis>
#include <QChartView>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QLineSeries>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>
#include <QTreeWidget>
#include <QValueAxis>

#include <memory>

/// A view with the properties of the partitions' ring.
class DonutChartView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QVariantList sliceValues READ sliceValues)

public:
    using QWidget::QWidget;
    QVariantList sliceValues() const { return {63000000000.0, 1000.0}; }
};

/// A view with the properties of the block map.
class QGridView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(qint64 totalSectors MEMBER m_total)
    Q_PROPERTY(qint64 position MEMBER m_position)
    Q_PROPERTY(QVariantList badSectors MEMBER m_bad)

public:
    using QWidget::QWidget;
    qint64 m_total = 8000000000;
    qint64 m_position = 4096;
    QVariantList m_bad{4095};
};

/// The contents of a window as data, and the faults found in it.
class tst_Recorders : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ordersWidgetsAndKeepsTexts();
    void leavesOutWhatIsHidden();
    void tellsPictures();
    void tellsComboData();
    void tellsTrees();
    void tellsCharts();
    void tellsPaintedViews();
    void findsClippedText_data();
    void findsClippedText();
    void forgivesWhatCanBeScrolledTo();
    void findsOverlaps();

private:
    QLabel *label(const QString &name, const QString &text, const QRect &rect);
    QJsonArray widgets() const;

    std::unique_ptr<QWidget> m_window;
};

void tst_Recorders::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(400, 300);
}

void tst_Recorders::cleanup()
{
    m_window.reset();
}

QLabel *tst_Recorders::label(const QString &name, const QString &text, const QRect &rect)
{
    auto *made = new QLabel(text, m_window.get());
    made->setObjectName(name);
    made->setGeometry(rect);
    return made;
}

QJsonArray tst_Recorders::widgets() const
{
    m_window->show();
    return screenrecorder::describe(m_window.get())[QStringLiteral("widgets")].toArray();
}

void tst_Recorders::ordersWidgetsAndKeepsTexts()
{
    label(QStringLiteral("low"), QStringLiteral("c"), {0, 100, 50, 20});
    label(QStringLiteral("right"), QStringLiteral("b"), {200, 10, 50, 20});
    auto *frame = new QFrame(m_window.get());
    frame->setGeometry(20, 5, 100, 40);
    auto *inner = new QLabel(QStringLiteral("  a "), frame);
    inner->setGeometry(3, 5, 50, 20);
    inner->setStyleSheet(QStringLiteral("QLabel {color : #000000;}"));
    inner->setToolTip(QStringLiteral("tip"));
    inner->setEnabled(false);

    const QJsonArray found = widgets();
    QCOMPARE(found.size(), 3);
    const QJsonObject expected{{QStringLiteral("name"), QString()},
                               {QStringLiteral("class"), QStringLiteral("QLabel")},
                               {QStringLiteral("text"), QStringLiteral("  a ")},
                               {QStringLiteral("styleSheet"), QStringLiteral("QLabel {color : #000000;}")},
                               {QStringLiteral("toolTip"), QStringLiteral("tip")},
                               {QStringLiteral("enabled"), false},
                               {QStringLiteral("x"), 23},
                               {QStringLiteral("y"), 10},
                               {QStringLiteral("w"), 50},
                               {QStringLiteral("h"), 20},
                               {QStringLiteral("image"), QString()}};
    QCOMPARE(found.at(0).toObject(), expected);
    QCOMPARE(found.at(1).toObject()[QStringLiteral("name")].toString(), QStringLiteral("right"));
    QCOMPARE(found.at(2).toObject()[QStringLiteral("name")].toString(), QStringLiteral("low"));
}

void tst_Recorders::leavesOutWhatIsHidden()
{
    label(QStringLiteral("hidden"), QStringLiteral("text"), {0, 0, 50, 20})->hide();
    label(QString(), QString(), {0, 30, 50, 20}); // a spacer
    label(QStringLiteral("empty"), QString(), {0, 60, 50, 20});
    QWidget other(m_window.get(), Qt::Window);
    QLabel elsewhere(QStringLiteral("another window"), &other);
    other.show();

    const QJsonArray found = widgets();
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.at(0).toObject()[QStringLiteral("name")].toString(), QStringLiteral("empty"));
}

void tst_Recorders::tellsPictures()
{
    label(QString(), QString(), {0, 0, 50, 20})
        ->setProperty("imagePath", QStringLiteral(":/images/img_Health.png"));
    auto *button = new QPushButton(m_window.get());
    button->setGeometry(0, 50, 50, 20);
    button->setStyleSheet(QStringLiteral("QPushButton{border-image: url(:/images/img_Menu.png)}"
                                         "QPushButton:hover{border-image: url(:/images/img_MenuHov.png)}"));
    const QJsonArray found = widgets();
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.at(0).toObject()[QStringLiteral("image")].toString(),
             QStringLiteral(":/images/img_Health.png"));
    QCOMPARE(found.at(1).toObject()[QStringLiteral("image")].toString(),
             QStringLiteral(":/images/img_Menu.png"));
}

void tst_Recorders::tellsComboData()
{
    auto *combo = new QComboBox(m_window.get());
    combo->setObjectName(QStringLiteral("DestinationComboBox"));
    combo->addItem(QStringLiteral("Select Destination"));
    combo->addItem(QStringLiteral("Disk Drive 3"), 131);
    combo->setCurrentIndex(1);
    m_window->show();
    const QJsonArray combos = screenrecorder::describe(m_window.get())[QStringLiteral("combos")].toArray();
    const QJsonArray items{
        QJsonObject{{QStringLiteral("text"), QStringLiteral("Select Destination")},
                    {QStringLiteral("data"), QJsonValue::Null}},
        QJsonObject{{QStringLiteral("text"), QStringLiteral("Disk Drive 3")}, {QStringLiteral("data"), 131}}};
    const QJsonObject expected{{QStringLiteral("name"), QStringLiteral("DestinationComboBox")},
                               {QStringLiteral("current"), 1},
                               {QStringLiteral("items"), items}};
    QCOMPARE(combos, QJsonArray{expected});
}

void tst_Recorders::tellsTrees()
{
    auto *tree = new QTreeWidget(m_window.get());
    tree->setHeaderLabels(
        {QStringLiteral("     ID"), QStringLiteral("Raw Value"), QStringLiteral("Updated")});
    tree->setColumnWidth(0, 155);
    tree->setColumnHidden(2, true);
    auto *item =
        new QTreeWidgetItem(tree, {QStringLiteral("5"), QStringLiteral("12"), QStringLiteral("key")});
    item->setForeground(0, QColor(0, 0, 0));
    item->setForeground(1, QColor(255, 0, 0));
    m_window->show();
    const QJsonObject found =
        screenrecorder::describe(m_window.get())[QStringLiteral("trees")].toArray().at(0).toObject();
    QCOMPARE(found[QStringLiteral("headers")].toArray(),
             (QJsonArray{QStringLiteral("     ID"), QStringLiteral("Raw Value"), QStringLiteral("Updated")}));
    QCOMPARE(found[QStringLiteral("hidden")].toArray(), QJsonArray{2});
    QCOMPARE(found[QStringLiteral("widths")].toArray().at(0).toInt(), 155);
    const QJsonArray row = found[QStringLiteral("rows")].toArray().at(0).toArray();
    QCOMPARE(row.size(), 3);
    QCOMPARE(row.at(1).toObject(), (QJsonObject{{QStringLiteral("text"), QStringLiteral("12")},
                                                {QStringLiteral("color"), QStringLiteral("#ff0000")}}));
}

/// A graph as SMART Status makes it: its title on a label, one series on a shown and on a hidden axis, and
/// the days as names of either kind of axis.
void tst_Recorders::tellsCharts()
{
    using namespace QtCharts;
    label(QStringLiteral("GraphLabel"), QStringLiteral("Graph : Temperature"), {0, 0, 200, 20});
    auto *view = new QChartView(m_window.get());
    QChart *chart = view->chart();
    auto *series = new QLineSeries;
    series->append(0, 36);
    series->append(10, 37.5);
    chart->addSeries(series);
    auto *left = new QValueAxis;
    left->setRange(0, 38);
    left->setTickCount(6);
    chart->addAxis(left, Qt::AlignLeft);
    auto *hidden = new QValueAxis;
    chart->addAxis(hidden, Qt::AlignBottom);
    auto *day = new QCategoryAxis;
    day->append(QStringLiteral("15-Nov"), 80);
    chart->addAxis(day, Qt::AlignBottom);
    auto *days = new QBarCategoryAxis;
    days->append(QStringList{QStringLiteral("15-Nov"), QStringLiteral("16-Nov")});
    chart->addAxis(days, Qt::AlignBottom);
    for (QAbstractAxis *axis : {left, hidden})
        series->attachAxis(axis);
    left->setRange(0, 38);
    hidden->setVisible(false);
    m_window->show();

    const QJsonObject found =
        screenrecorder::describe(m_window.get())[QStringLiteral("charts")].toArray().at(0).toObject();
    QCOMPARE(found[QStringLiteral("title")].toString(), QStringLiteral("Graph : Temperature"));
    QCOMPARE(found[QStringLiteral("series")].toArray(),
             QJsonArray{(QJsonObject{
                 {QStringLiteral("points"), QJsonArray{QJsonArray{0, 36}, QJsonArray{10, 37.5}}}})});
    const QJsonArray axes = found[QStringLiteral("axes")].toArray();
    QCOMPARE(axes.size(), 4);
    QCOMPARE(axes.at(0).toObject(), (QJsonObject{{QStringLiteral("kind"), QStringLiteral("value")},
                                                 {QStringLiteral("side"), QStringLiteral("left")},
                                                 {QStringLiteral("visible"), true},
                                                 {QStringLiteral("min"), 0},
                                                 {QStringLiteral("max"), 38},
                                                 {QStringLiteral("ticks"), 6}}));
    QCOMPARE(axes.at(1).toObject()[QStringLiteral("visible")].toBool(true), false);
    const QJsonArray labels[] = {{QStringLiteral("15-Nov")},
                                 {QStringLiteral("15-Nov"), QStringLiteral("16-Nov")}};
    for (int i = 0; i < 2; ++i) {
        const QJsonObject category = axes.at(i + 2).toObject();
        QCOMPARE(category[QStringLiteral("kind")].toString(), QStringLiteral("category"));
        QCOMPARE(category[QStringLiteral("side")].toString(), QStringLiteral("bottom"));
        QCOMPARE(category[QStringLiteral("visible")].toBool(), true);
        QCOMPARE(category[QStringLiteral("labels")].toArray(), labels[i]);
    }
}

void tst_Recorders::tellsPaintedViews()
{
    m_window->show();
    QJsonObject found = screenrecorder::describe(m_window.get());
    QVERIFY(!found.contains(QStringLiteral("donut")) && !found.contains(QStringLiteral("map")));

    (new DonutChartView(m_window.get()))->show();
    (new QGridView(m_window.get()))->show();
    found = screenrecorder::describe(m_window.get());
    QCOMPARE(found[QStringLiteral("donut")].toArray(), (QJsonArray{63000000000.0, 1000.0}));
    QCOMPARE(found[QStringLiteral("map")].toObject(),
             (QJsonObject{{QStringLiteral("total"), 8000000000.0},
                          {QStringLiteral("position"), 4096},
                          {QStringLiteral("badSectors"), QJsonArray{4095}}}));
}

void tst_Recorders::findsClippedText_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<bool>("wraps");
    QTest::addColumn<bool>("clipped");
    QTest::newRow("roomy") << QRect(0, 0, 300, 30) << false << false;
    QTest::newRow("narrow") << QRect(0, 0, 60, 30) << false << true;
    QTest::newRow("low") << QRect(0, 0, 300, 6) << false << true;
    QTest::newRow("wrapped") << QRect(0, 0, 100, 200) << true << false;
    QTest::newRow("wrapped, too low") << QRect(0, 0, 100, 25) << true << true;
    QTest::newRow("out of the window") << QRect(350, 0, 300, 30) << false << true;
    QTest::newRow("only its blank end is out of the window") << QRect(5, 0, 500, 30) << false << false;
}

void tst_Recorders::findsClippedText()
{
    QFETCH(QRect, rect);
    QFETCH(bool, wraps);
    QFETCH(bool, clipped);
    label(QStringLiteral("text"), QStringLiteral("Existing data will be lost.   "), rect)->setWordWrap(wraps);
    m_window->show();
    const QJsonArray found = layoutcheck::clipped(m_window.get(), QStringLiteral("step"));
    QCOMPARE(found.size(), clipped ? 1 : 0);
    if (clipped) {
        QCOMPARE(found.at(0).toObject()[QStringLiteral("name")].toString(), QStringLiteral("text"));
        QCOMPARE(found.at(0).toObject()[QStringLiteral("step")].toString(), QStringLiteral("step"));
    }
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
    QCOMPARE(found.at(0).toObject()[QStringLiteral("names")].toArray(),
             (QJsonArray{QStringLiteral("one"), QStringLiteral("over")}));
    QCOMPARE(found.at(0).toObject()[QStringLiteral("rectangle")].toArray(), (QJsonArray{0, 10, 50, 10}));
}

QTEST_MAIN(tst_Recorders)
#include "tst_Recorders.moc"
