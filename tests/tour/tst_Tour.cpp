// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// The tour as a program, on a made-up PC: its exit status and the files that it leaves.
class tst_Tour : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void walksEveryScreenOfEveryDisk();
    void scansAndTestsDisks();
    void clonesADisk();
    void savesReportAndScreenshot();
    void recordsGraphs();
    void recordsWhatADiskShows_data();
    void recordsWhatADiskShows();
    void hurries_data();
    void hurries();
    void scalesWithTheDisplay();
    void namesAStepThatHangs();
    void recordsTheRefusalOfASecondInstance();
    void refusesWrongArguments();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void describePc(int dpi, bool pauses,
                    const QJsonObject &wishes = {{QStringLiteral("settings"), true}}) const;
    std::unique_ptr<QProcess> startTour(const QString &out, int limit = 30) const;
    int tour(const QString &out, int limit = 30) const;
    QJsonObject screens(const QString &out) const;
    QJsonObject oneTour() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace
{

constexpr int FirstDisk = 0;
constexpr int SecondDisk = 3; ///< the numbers of a PC may have gaps
constexpr int TourTime = 110000;

QJsonObject disk(int number, const QString &interface, double sectors, const QString &report)
{
    return {{QStringLiteral("number"), number},
            {QStringLiteral("media"), QStringLiteral("fixed")},
            {QStringLiteral("model"), QStringLiteral("Disk Device")},
            {QStringLiteral("interface"), interface},
            {QStringLiteral("status"), QStringLiteral("OK")},
            {QStringLiteral("bytesPerSector"), 512},
            {QStringLiteral("sectors"), sectors},
            {QStringLiteral("image"), QStringLiteral("disk%1.img").arg(number)},
            {QStringLiteral("report"), report}};
}

QStringList stepNames(const QJsonObject &data)
{
    QStringList names;
    const QJsonArray steps = data[QStringLiteral("steps")].toArray();
    for (const QJsonValue &step : steps) {
        const int number = step.toObject()[QStringLiteral("disk")].toInt();
        names.append(
            QStringLiteral("%1 %2").arg(step.toObject()[QStringLiteral("step")].toString()).arg(number));
    }
    return names;
}

QJsonObject stepOf(const QJsonObject &data, const QString &name)
{
    return data[QStringLiteral("steps")].toArray().at(stepNames(data).indexOf(name)).toObject();
}

/// A widget of a step; empty if it was not seen.
QJsonObject widgetOf(const QJsonObject &step, const QString &name)
{
    const QJsonArray widgets = step[QStringLiteral("widgets")].toArray();
    for (const QJsonValue &widget : widgets) {
        if (widget.toObject()[QStringLiteral("name")] == name)
            return widget.toObject();
    }
    return {};
}

} // namespace

void tst_Tour::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_Tour::describePc(int dpi, bool pauses, const QJsonObject &wishes) const
{
    const QString smart = QStringLiteral(HALVANE_TEST_DATA) + QStringLiteral("/smart/");
    QVERIFY(
        QFile::copy(smart + QStringLiteral("ata-toshiba-mq01abd050.txt"), path(QStringLiteral("ata.txt"))));
    QVERIFY(
        QFile::copy(smart + QStringLiteral("nvme-swissbit-sfpc020.txt"), path(QStringLiteral("nvme.txt"))));
    // A scan of the first disk takes two seconds, and so does its short self-test.
    QJsonObject first = disk(FirstDisk, QStringLiteral("IDE"), 327680, QStringLiteral("ata.txt"));
    first[QStringLiteral("bytesPerSecond")] = 80000000;
    first[QStringLiteral("badSectors")] = QJsonArray{40000, 40001, 120000};
    first[QStringLiteral("capabilities")] = QStringLiteral("ata.txt");
    const QJsonObject pc{
        {QStringLiteral("name"), QStringLiteral("Two disks")},
        {QStringLiteral("dpi"), dpi},
        {QStringLiteral("pauses"), pauses},
        {QStringLiteral("disks"),
         QJsonArray{first, disk(SecondDisk, QStringLiteral("SCSI"), 39091248, QStringLiteral("nvme.txt"))}},
        {QStringLiteral("tour"), wishes}};
    QFile file(path(QStringLiteral("pc.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(QJsonDocument(pc).toJson()) > 0);
}

std::unique_ptr<QProcess> tst_Tour::startTour(const QString &out, int limit) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("HALVANE_PC_STATE"), path(QStringLiteral("state")));
    environment.insert(QStringLiteral("HALVANE_TOUR_LIMIT"), QString::number(limit));
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->start(QStringLiteral(HALVANE_TOUR), {QStringLiteral("--pc"), m_folder->path(), path(out)});
    return process;
}

int tst_Tour::tour(const QString &out, int limit) const
{
    const std::unique_ptr<QProcess> process = startTour(out, limit);
    if (!process->waitForFinished(TourTime) || process->exitStatus() != QProcess::NormalExit)
        return -1;
    return process->exitCode();
}

QJsonObject tst_Tour::screens(const QString &out) const
{
    QFile file(path(out) + QStringLiteral("/screens.json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

/// The data of one tour for all tests that only look at it; the first of them takes it.
QJsonObject tst_Tour::oneTour() const
{
    static QJsonObject data;
    if (data.isEmpty()) {
        describePc(96, false);
        if (tour(QStringLiteral("out")) == 0)
            data = screens(QStringLiteral("out"));
    }
    return data;
}

void tst_Tour::walksEveryScreenOfEveryDisk()
{
    describePc(96, false);
    QCOMPARE(tour(QStringLiteral("out")), 0);
    const QJsonObject data = screens(QStringLiteral("out"));

    QCOMPARE(data[QStringLiteral("pc")].toString(), QStringLiteral("Two disks"));
    QCOMPARE(data[QStringLiteral("language")].toString(), QStringLiteral("English"));
    QCOMPARE(data[QStringLiteral("scale")].toDouble(), 1.0);
    QCOMPARE(data[QStringLiteral("failed")].toArray(), QJsonArray());
    QStringList expected{QStringLiteral("splash -1")};
    for (const int number : {FirstDisk, SecondDisk}) {
        // The first row's graph, and those of two more.
        for (const char *step : {"disk-status", "smart-status", "smart-status", "smart-status",
                                 "disk-partition", "scan-chooser", "clone-select"})
            expected.append(QStringLiteral("%1 %2").arg(QLatin1String(step)).arg(number));
    }
    for (const char *step : {"menu", "more-tools", "settings", "dialog:CloseWgt"})
        expected.append(QStringLiteral("%1 %2").arg(QLatin1String(step)).arg(SecondDisk));
    QCOMPARE(stepNames(data), expected);

    const QJsonArray steps = data[QStringLiteral("steps")].toArray();
    for (const QJsonValue &step : steps) {
        const QString picture = step.toObject()[QStringLiteral("picture")].toString();
        QVERIFY2(!QImage(path(QStringLiteral("out/") + picture)).isNull(), qPrintable(picture));
    }
    QCOMPARE(steps.at(1).toObject()[QStringLiteral("picture")].toString(),
             QStringLiteral("02-disk-status-disk0.png"));
    QCOMPARE(QImage(path(QStringLiteral("out/02-disk-status-disk0.png"))).size(), QSize(905, 600));
}

void tst_Tour::scansAndTestsDisks()
{
    const QString shortTest = QStringLiteral("short");
    describePc(96, false,
               {{QStringLiteral("scan"), QJsonArray{FirstDisk}},
                {QStringLiteral("selfTest"),
                 QJsonArray{QJsonArray{FirstDisk, shortTest}, QJsonArray{SecondDisk, shortTest}}}});
    QCOMPARE(tour(QStringLiteral("out")), 0);
    const QJsonObject data = screens(QStringLiteral("out"));
    const QStringList names = stepNames(data);
    const QStringList expected{
        QStringLiteral("scan-running 0"),           QStringLiteral("dialog:InfoDialogClass 0"),
        QStringLiteral("scan-finished 0"),          QStringLiteral("dialog:ConfarmetionClass 0"),
        QStringLiteral("dialog:InfoDialogClass 0"), QStringLiteral("scan-stopped 0"),
        QStringLiteral("dialog:ScanSwitchClass 0"), QStringLiteral("self-test-running 0"),
        QStringLiteral("self-test-finished 0"),     QStringLiteral("dialog:ConfarmetionClass 0"),
        QStringLiteral("self-test-aborted 0"),      QStringLiteral("dialog:SelfTestNotSupported 3"),
        QStringLiteral("dialog:CloseWgt 3")};
    QCOMPARE(names.mid(names.indexOf(QStringLiteral("more-tools 3")) + 1), expected);

    const auto map = [&data](const char *step) {
        return stepOf(data, QLatin1String(step))[QStringLiteral("map")].toObject();
    };
    const QJsonObject running = map("scan-running 0");
    QCOMPARE(running[QStringLiteral("total")].toInt(), 327680);
    QVERIFY(running[QStringLiteral("position")].toInt() >= 327680 / 2);
    QVERIFY(running[QStringLiteral("position")].toInt() < 327680);
    QCOMPARE(running[QStringLiteral("badSectors")].toArray(), (QJsonArray{40000, 40001, 120000}));
    const QJsonObject finished = stepOf(data, QStringLiteral("scan-finished 0"));
    QCOMPARE(widgetOf(finished, QStringLiteral("BadBlkValLbl"))[QStringLiteral("text")].toString(),
             QStringLiteral("3"));
    QVERIFY(map("scan-stopped 0")[QStringLiteral("position")].toInt() < 327680);
}

void tst_Tour::clonesADisk()
{
    describePc(96, false, {{QStringLiteral("clone"), QJsonArray{QJsonArray{FirstDisk, SecondDisk}}}});
    QCOMPARE(tour(QStringLiteral("out")), 0);
    const QJsonObject data = screens(QStringLiteral("out"));
    QStringList names = stepNames(data);
    names = names.mid(names.indexOf(QStringLiteral("more-tools 3")) + 1);
    QVERIFY(names.removeAll(QStringLiteral("clone-running 0")) > 1);
    QCOMPARE(names,
             (QStringList{QStringLiteral("dialog:DestinitionWarning 0"),
                          QStringLiteral("dialog:CloneWarning 3"), // same disk
                          QStringLiteral("dialog:InfoDialogClass 3"),
                          QStringLiteral("dialog:CloneWarning 3"), // too small
                          QStringLiteral("dialog:InfoDialogClass 3"), QStringLiteral("clone-select 0"),
                          QStringLiteral("clone-finished 0"), QStringLiteral("dialog:InfoDialogClass 0"),
                          QStringLiteral("clone-select 0"), QStringLiteral("dialog:ConfarmetionClass 0"),
                          QStringLiteral("clone-stopped 0"), QStringLiteral("dialog:InfoDialogClass 0"),
                          QStringLiteral("dialog:CloseWgt 0")}));
    const QJsonObject finished = stepOf(data, QStringLiteral("clone-finished 0"));
    QCOMPARE(finished[QStringLiteral("gauge")].toInt(), 100);
    QCOMPARE(widgetOf(finished, QStringLiteral("m_pRoundProgressBar"))[QStringLiteral("text")].toString(),
             QStringLiteral("100%\nComplete"));
    const int stopped = stepOf(data, QStringLiteral("clone-stopped 0"))[QStringLiteral("gauge")].toInt();
    QVERIFY(stopped > 0 && stopped < 100);
}

void tst_Tour::savesReportAndScreenshot()
{
    describePc(96, false);
    QVERIFY(QFile::remove(path(QStringLiteral("nvme.txt"))));
    QFile empty(path(QStringLiteral("nvme.txt"))); // a drive without SMART
    QVERIFY(empty.open(QIODevice::WriteOnly));
    const QString old = path(QStringLiteral("out/report-disk3.pdf"));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("out")) && QFile::copy(empty.fileName(), old));

    QCOMPARE(tour(QStringLiteral("out")), 0);
    QFile report(path(QStringLiteral("out/report-disk0.pdf")));
    QVERIFY(report.open(QIODevice::ReadOnly));
    QVERIFY(report.readAll().startsWith("%PDF-"));
    const QImage screenshot(path(QStringLiteral("out/screenshot-disk0.jpg")));
    QVERIFY(!screenshot.isNull());
    const QStringList names = stepNames(screens(QStringLiteral("out")));
    QVERIFY2(names.filter(QStringLiteral("QFileDialog")).isEmpty(),
             qPrintable(names.join(QLatin1Char('\n'))));

    QCOMPARE(names.count(QStringLiteral("smart-status 3")), 1);
    QVERIFY(!QFile::exists(old));
    QVERIFY(!QFile::exists(path(QStringLiteral("out/screenshot-disk3.jpg"))));
}

void tst_Tour::recordsGraphs()
{
    QStringList titles;
    const QJsonArray steps = oneTour()[QStringLiteral("steps")].toArray();
    for (const QJsonValue &step : steps) {
        const QJsonArray charts = step.toObject()[QStringLiteral("charts")].toArray();
        for (const QJsonValue &chart : charts) {
            titles.append(chart.toObject()[QStringLiteral("title")].toString());
            const QJsonArray series = chart.toObject()[QStringLiteral("series")].toArray();
            QVERIFY(!series.at(0).toObject()[QStringLiteral("points")].toArray().isEmpty());
        }
    }
    QCOMPARE(titles,
             (QStringList{QStringLiteral("Graph : Raw Read Error Rate"),
                          QStringLiteral("Graph : Temperature Celsius"),
                          QStringLiteral("Graph : Reallocated Sector Count"),
                          QStringLiteral("Graph : Critical Warning"), QStringLiteral("Graph : Temperature"),
                          QStringLiteral("Graph : Data Units Written")}));
}

void tst_Tour::recordsWhatADiskShows_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("ATA model") << "disk-status 0"
                               << "ModelNumValLbl"
                               << "TOSHIBA MQ01ABD050";
    QTest::newRow("ATA temperature") << "disk-status 0"
                                     << "tempValueLbl" << QStringLiteral("32\u00b0C");
    QTest::newRow("NVMe serial") << "disk-status 3"
                                 << "SerialValLbl"
                                 << "M4544535495561979168";
    QTest::newRow("NVMe life") << "disk-status 3"
                               << "DiskLifeValue"
                               << "Not available";
    QTest::newRow("leading blanks stay") << "scan-chooser 3"
                                         << "ScanDiskButton"
                                         << "   Scan Disk";
    QTest::newRow("result") << "smart-status 0"
                            << "SmartResultLabel"
                            << "Passed";
    QTest::newRow("button of the page") << "clone-select 3"
                                        << "CloneButton"
                                        << "Clone";
    QTest::newRow("question") << "dialog:CloseWgt 3"
                              << "HeaderLabel"
                              << "Exit";
}

void tst_Tour::recordsWhatADiskShows()
{
    const QJsonObject data = oneTour();
    QFETCH(QString, step);
    QFETCH(QString, name);
    QFETCH(QString, text);
    QVERIFY(stepNames(data).contains(step));
    QCOMPARE(widgetOf(stepOf(data, step), name)[QStringLiteral("text")].toString(), text);
}

void tst_Tour::hurries_data()
{
    QTest::addColumn<QByteArray>("laterReport");
    QTest::addColumn<int>("status");
    QTest::newRow("each shows its disk") << QByteArray() << 0;
    // From the tenth run on the tool prints the report of the first disk.
    QTest::newRow("the second disk shows the first one") << QByteArray("ata.txt") << 1;
}

void tst_Tour::hurries()
{
    QFETCH(QByteArray, laterReport);
    describePc(96, false, {{"hurry", QJsonObject{{"choices", 20}, {"seed", 3}}}});
    QFile file(path(QStringLiteral("pc.json")));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray json = file.readAll();
    json.replace("\"name\": \"Two", "\"toolMilliseconds\": 60, \"name\": \"Two");
    if (!laterReport.isEmpty()) {
        QByteArray reports;
        for (int run = 0; run < 9; ++run)
            reports += "\"nvme.txt\", ";
        json.replace("\"nvme.txt\"", '[' + reports + '"' + laterReport + "\"]");
    }
    file.resize(0);
    QVERIFY(file.write(json) == json.size());
    file.close();
    QTEST(tour(QStringLiteral("out")), "status");
    const QStringList hurried = stepNames(screens(QStringLiteral("out"))).filter(QStringLiteral("hurry "));
    QCOMPARE(hurried.size(), 4);
    const QJsonObject step = stepOf(screens(QStringLiteral("out")), hurried.first());
    QVERIFY(!step[QStringLiteral("combo")].toString().isEmpty());
    QVERIFY(!step[QStringLiteral("screen")].toString().isEmpty());
}

void tst_Tour::scalesWithTheDisplay()
{
    describePc(144, false);
    QCOMPARE(tour(QStringLiteral("out")), 0);
    const QJsonObject data = screens(QStringLiteral("out"));
    QCOMPARE(data[QStringLiteral("scale")].toDouble(), 1.5);
    const QJsonObject logo =
        widgetOf(stepOf(data, QStringLiteral("disk-status 0")), QStringLiteral("PixmapLabel"));
    QVERIFY(logo[QStringLiteral("image")].toString().contains(QStringLiteral("144-DPI")));
    QCOMPARE(QImage(path(QStringLiteral("out/02-disk-status-disk0.png"))).width(), 1357);
}

void tst_Tour::namesAStepThatHangs()
{
    // With the pauses the main window comes after more than four seconds.
    describePc(96, true);
    QVERIFY(tour(QStringLiteral("out"), 2) > 0);
    const QJsonObject data = screens(QStringLiteral("out"));
    QVERIFY(data[QStringLiteral("failed")].toArray().contains(QStringLiteral("main-window")));
}

void tst_Tour::recordsTheRefusalOfASecondInstance()
{
    describePc(96, true);
    const std::unique_ptr<QProcess> first = startTour(QStringLiteral("first"));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path(QStringLiteral("first/screens.json"))), 30000);

    QVERIFY(tour(QStringLiteral("second")) > 0);
    const QJsonObject second = screens(QStringLiteral("second"));
    QCOMPARE(stepNames(second), QStringList{QStringLiteral("dialog:QMessageBox -1")});
    const QJsonObject text =
        widgetOf(stepOf(second, QStringLiteral("dialog:QMessageBox -1")), QStringLiteral("qt_msgbox_label"));
    QCOMPARE(text[QStringLiteral("text")].toString(),
             QStringLiteral("Velmora Halvane already running. Cannot start more than one instance of the "
                            "application."));

    QVERIFY(first->waitForFinished(TourTime));
    QCOMPARE(first->exitCode(), 0);
}

void tst_Tour::refusesWrongArguments()
{
    const auto status = [](const QStringList &arguments) {
        return QProcess::execute(QStringLiteral(HALVANE_TOUR), arguments);
    };
    QCOMPARE(status({}), 64);
    QCOMPARE(status({QStringLiteral("--fast"), path(QStringLiteral("out"))}), 64);
    QCOMPARE(status({QStringLiteral("--pc"), path(QStringLiteral("none")), path(QStringLiteral("out"))}), 64);
    QVERIFY(!QFile::exists(path(QStringLiteral("out"))));
}

QTEST_GUILESS_MAIN(tst_Tour)
#include "tst_Tour.moc"
