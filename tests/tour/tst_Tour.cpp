// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/DescribedFolder.h"
#include "tests/support/Files.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

/// The tour as a program: its exit status and the files that it leaves. The tour of the demo PC shows the
/// chapters.
class tst_Tour : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pc = std::make_unique<DescribedFolder>(); }

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
        wanted << QStringLiteral("menu3") << QStringLiteral("more-tools3");
        QCOMPARE(names.mid(0, wanted.size()), wanted);
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

private:
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
};

QTEST_GUILESS_MAIN(tst_Tour)
#include "tst_Tour.moc"
