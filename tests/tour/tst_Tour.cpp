// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/DescribedFolder.h"
#include "tests/support/Files.h"
#include "tour/LayoutCheck.h"

#include <QComboBox>
#include <QHeaderView>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QProcess>
#include <QScrollArea>
#include <QSpinBox>
#include <QTest>
#include <QTreeWidget>

/// The tour as a program: its exit status and the files that it leaves. The tour of the demo PC shows the
/// chapters. And the faults that it finds in the layout of a window.
class tst_Tour : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pc = std::make_unique<DescribedFolder>();
        m_window = std::make_unique<QWidget>();
        m_window->resize(400, 300);
    }

    void walksEveryScreenOfEveryDisk()
    {
        QCOMPARE(tour(R"("dpi": 144, "pauses": false)", "\"disk2.txt\""), 0);
        QStringList names;
        QStringList titles;
        for (const QJsonValue &step : screens()["steps"].toArray()) {
            names << step["step"].toString() + step["disk"].toVariant().toString();
            QVERIFY2(!QImage(out(step["picture"].toString())).isNull(), qPrintable(names.last()));
            for (const QJsonValue &chart : step["charts"].toArray())
                titles << chart["title"].toString();
            if (step["step"] == "hurry")
                QVERIFY(!step["combo"].toString().isEmpty());
        }
        QStringList wanted{QStringLiteral("splash-1")};
        for (const char *number : {"0", "3"}) {
            // The first row's graph, and those of two more.
            for (const char *step : {"disk-status", "smart-status", "smart-status", "smart-status",
                                     "disk-partition", "scan-chooser", "clone-select"})
                wanted << QLatin1String(step) + QLatin1String(number);
        }
        wanted << QStringLiteral("busy3") << QStringLiteral("menu3") << QStringLiteral("more-tools3")
               << QStringLiteral("drive-list3");
        QCOMPARE(names.mid(0, wanted.size()), wanted);
        tellsWhatShows(
            screens()["steps"].toArray().at(wanted.indexOf(QStringLiteral("smart-status3"))).toObject());
        QCOMPARE(names.filter(QStringLiteral("hurry")).size(), 4);
        QVERIFY(names.last().startsWith(QLatin1String("dialog:CloseWgt")));
        QVERIFY(titles.contains(QStringLiteral("Graph : Critical Warning")));
        QCOMPARE(screens()["scale"].toDouble(), 1.5);
        QCOMPARE(QImage(out("02-disk-status-disk0.png")).width(), 1357);
        QVERIFY(contentOf(out("report-disk0.pdf")).startsWith("%PDF-"));
        QVERIFY(!QImage(out("screenshot-disk3.jpg")).isNull());
    }

    void failsWhereAStepDoes()
    {
        // From the tenth run on the tool prints the report of the first disk for the second one.
        const QByteArray reports = '[' + QByteArray("\"disk2.txt\", ").repeated(9) + "\"disk0.txt\"]";
        QCOMPARE(tour(R"("pauses": false)", reports), 1);
        init();
        // With the pauses the main window comes after more than four seconds.
        QCOMPARE(tour(R"("pauses": true)", "\"disk2.txt\"", 2), 1);
        QVERIFY(screens()["failed"].toArray().contains("main-window"));
    }

    void refusesWrongArguments()
    {
        const QString folder = m_pc->path();
        for (const QStringList &arguments : {QStringList(), {"--fast", folder}, {"--pc", folder, out({})}})
            QCOMPARE(QProcess::execute(QStringLiteral(HALVANE_TOUR), arguments), 64);
        QVERIFY(!QFile::exists(out({})));
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

    void findsClippedFields()
    {
        auto *combo = new QComboBox(m_window.get());
        combo->addItem(QStringLiteral("Extended self-test"));
        auto *box = new QSpinBox(m_window.get());
        box->setMaximum(100000000);
        box->setValue(100000000);
        auto *tree = new QTreeWidget(m_window.get());
        tree->setHeaderLabels({QStringLiteral("Threshold value   "), QStringLiteral("Threshold value")});
        tree->hideColumn(1);
        tree->header()->setStretchLastSection(false);
        const auto clipped = [&](int comboWidth, int boxWidth, int column) {
            combo->setGeometry(0, 0, comboWidth, 30);
            box->setGeometry(0, 40, boxWidth, 30);
            tree->setGeometry(0, 80, 300, 60);
            tree->header()->resizeSection(0, column);
            m_window->show();
            return layoutcheck::clipped(m_window.get(), QString()).size();
        };
        QCOMPARE(clipped(300, 200, 250), 0);
        QCOMPARE(clipped(60, 200, 250), 1);
        QCOMPARE(clipped(300, 50, 250), 1);
        QCOMPARE(clipped(300, 200, 60), 1);
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

    /// The widgets from top to bottom, without the hidden ones.
    static void tellsWhatShows(const QJsonObject &step)
    {
        QStringList told;
        int top = 0;
        for (const QJsonValue &widget : step["widgets"].toArray()) {
            QVERIFY(widget["y"].toInt() >= top);
            top = widget["y"].toInt();
            if (QStringList{"DriveCombobox", "CloneDiskButton", "ScanButton"}.contains(
                    widget["name"].toString()))
                told << widget["text"].toString() << widget["image"].toString()
                     << widget["enabled"].toVariant().toString();
        }
        const QString disk = "Oskarn OKM080A2-05 | OK-83H2F6610 | 160.00 MB";
        QCOMPARE(told, (QStringList{disk, "", "true", "   Clone Disk",
                                    ":/images/Resources/144-DPI/img_CloneDiskNormal.png", "true"}));
        const QJsonValue combo = step["combos"][0];
        QCOMPARE(combo["items"][combo["current"].toInt()].toObject(),
                 (QJsonObject{{"text", disk}, {"data", 131}}));
        QCOMPARE(step["trees"][0]["hidden"].toArray(), (QJsonArray{7, 8, 9, 10, 11}));
        const QJsonArray row = step["trees"][0]["rows"][3].toArray();
        QCOMPARE(row[0].toObject(), (QJsonObject{{"text", "5"}, {"color", "#000000"}}));
        QCOMPARE(row[6].toObject(), (QJsonObject{{"text", "18"}, {"color", "#c00000"}}));
        const QJsonValue chart = step["charts"][0];
        QCOMPARE(chart["series"][1]["points"].toArray(),
                 (QJsonArray{QJsonArray{40, 1284}, QJsonArray{40, 1285}}));
        QCOMPARE(chart["axes"].toArray().size(), 3);
    }

    /// The exit status on a PC of two disks, numbered 0 and 3, whose tool takes a while.
    int tour(const QByteArray &more, const QByteArray &secondReports, int limit = 30) const
    {
        for (const char *report : {"disk0.txt", "disk2.txt"})
            m_pc->add(QLatin1String(report),
                      contentOf(QLatin1String(HALVANE_SOURCE_DIR "/demo/reports/") + QLatin1String(report)));
        const QByteArray disk =
            R"("media": "fixed", "model": "Disk Device", "bytesPerSector": 512, "status": "OK", )";
        m_pc->add(
            QStringLiteral("pc.json"),
            R"({"name": "Two disks", "toolMilliseconds": 60, "tour": {"hurry": {"choices": 20, "seed": 3}},)" +
                more + R"(, "disks": [{"number": 0, "interface": "SCSI", "sectors": 39091248, )" + disk +
                R"("report": "disk0.txt"}, {"number": 3, "interface": "IDE", "sectors": 327680, )" + disk +
                R"("report": )" + secondReports + "}]}");

        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HALVANE_TOUR_LIMIT"), QString::number(limit));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QStringLiteral(HALVANE_TOUR), {QStringLiteral("--pc"), m_pc->path(), out({})});
        const bool ended = process.waitForFinished(110000) && process.exitStatus() == QProcess::NormalExit;
        return ended ? process.exitCode() : -1;
    }
    QString out(const QString &file) const { return m_pc->path() + QStringLiteral("/out/") + file; }
    QJsonObject screens() const { return QJsonDocument::fromJson(contentOf(out("screens.json"))).object(); }

    std::unique_ptr<DescribedFolder> m_pc;
    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(tst_Tour)
#include "tst_Tour.moc"
