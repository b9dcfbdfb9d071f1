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
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(400, 300);
    }

    /// The widgets from top to bottom, without the hidden ones.
    void tellsWhatShows()
    {
        label("hidden", "text", {0, 0, 50, 20})->hide();
        label("GraphLabel", "  Graph", {0, 100, 50, 20})->setEnabled(false);
        label("", "", {3, 5, 50, 20})
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

        QJsonObject found = screenrecorder::describe(m_window.get());
        QJsonArray places;
        for (const QJsonValue &widget : found["widgets"].toArray())
            places << QJsonArray{widget["name"], widget["text"], widget["y"], widget["enabled"],
                                 widget["image"]};
        QJsonObject chart = found["charts"].toArray()[0].toObject();
        chart["axes"] = chart["axes"].toArray().size();
        QJsonObject rows = found["trees"].toArray()[0].toObject();
        const QJsonObject told{{"widgets", places},
                               {"combos", found["combos"]},
                               {"hidden", rows["hidden"]},
                               {"rows", rows["rows"]},
                               {"chart", chart}};
        QCOMPARE(told, QJsonDocument::fromJson(R"({
            "widgets": [["", "", 5, true, ":/images/img_Menu.png"], ["GraphLabel", "  Graph", 100, false, ""],
                        ["DriveCombobox", "Disk Drive 3", 130, true, ""]],
            "combos": [{"name": "DriveCombobox", "current": 0, "items": [{"text": "Disk Drive 3", "data": 131}]}],
            "hidden": [1],
            "rows": [[{"text": "5", "color": "#ff0000"}, {"text": "12", "color": "#000000"}]],
            "chart": {"title": "  Graph", "series": [{"points": [[10, 37.5]]}], "axes": 2}})")
                           .object());
    }

    void findsClippedText()
    {
        const auto clipped = [this](const QRect &rect, bool wraps = false) {
            init();
            label("text", "Existing data will be lost.   ", rect)->setWordWrap(wraps);
            m_window->show();
            return layoutcheck::clipped(m_window.get(), QString()).size();
        };
        QCOMPARE(clipped({0, 0, 300, 30}), 0);
        QCOMPARE(clipped({0, 0, 60, 30}), 1); // too narrow
        QCOMPARE(clipped({0, 0, 300, 6}), 1); // too low
        QCOMPARE(clipped({0, 0, 100, 200}, true), 0);
        QCOMPARE(clipped({0, 0, 100, 25}, true), 1);
        QCOMPARE(clipped({350, 0, 300, 30}), 1); // out of the window
        QCOMPARE(clipped({5, 0, 500, 30}), 0);   // only its blank end is out of it
    }

    void forgivesWhatCanBeScrolledTo()
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

    void findsOverlaps()
    {
        label("one", "a", {0, 0, 100, 20});
        label("touching", "b", {99, 0, 100, 20});
        label("empty", "", {0, 0, 100, 20});
        m_window->show();
        QCOMPARE(layoutcheck::overlaps(m_window.get(), QString()), QJsonArray());
        label("over", "c", {0, 10, 50, 20})->show();
        const QJsonArray found = layoutcheck::overlaps(m_window.get(), QString());
        QCOMPARE(found.size(), 1);
        QCOMPARE(found[0]["names"].toArray(), (QJsonArray{"one", "over"}));
    }

private:
    QLabel *label(const char *name, const char *text, const QRect &rect)
    {
        auto *made = new QLabel(QLatin1String(text), m_window.get());
        made->setObjectName(QLatin1String(name));
        made->setGeometry(rect);
        return made;
    }

    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(tst_Recorders)
#include "tst_Recorders.moc"
