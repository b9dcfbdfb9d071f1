// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/ReportParser.h"
#include "smart/Temperature.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QTextStream>
#include <QtTest>

/// All that is made of each real report, against tests/data/smart/expected.tsv.
class tst_RealReports : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FakePlatform::install(); }
    void init() { samples::forget(); }
    void cleanup() { samples::forget(); }

    void reports_data()
    {
        QTest::addColumn<QStringList>("expected");
        for (const QString &line : QString::fromUtf8(samples::bytesOf("expected.tsv")).split('\n')) {
            if (!line.startsWith('#') && !line.isEmpty())
                QTest::newRow(qPrintable(line.section('\t', 0, 0))) << line.split('\t');
        }
    }

    void reports()
    {
        QFETCH(QStringList, expected);
        const QByteArray bytes = samples::bytesOf(expected[0]);
        const QString path = samples::stage(bytes);
        const std::optional<bool> kind = DetectReportKind(path);
        g_App.m_bNVMe = expected[1] == "ata"; // wrong at first; the report has to correct it
        takeReportIn(path);
        QVERIFY(!QFile::exists(nativePath(path)));
        const bool nvme = g_App.m_bNVMe;
        QCOMPARE(nvme, kind.value_or(false));

        const int rows = samples::length(g_smartTable.rows) + samples::length(g_nvmeTable.rows);
        QVERIFY(nvme ? !g_pSmartAttributeHead : !g_pNvmeAttributeHead);
        QStringList last;
        if (const SmartAttributeRecord *row = g_pSmartAttributeTail)
            last << QString::number(row->Id) << row->AttributeName.text() << QString::number(row->Value)
                 << QString::number(row->Threshold) << row->RawValue.text();
        if (const NvmeAttributeRecord *line = g_pNvmeAttributeTail)
            last << line->Name.text() << line->Value.text();

        const bool passed = std::exchange(g_bSmartAvailable, true);
        rateHealth();
        ratePerformance();
        if (!nvme)
            updateLifeFigures();
        QCOMPARE((QStringList{expected[0], kind ? nvme ? "nvme" : "ata" : "-", QString::number(rows),
                              passed ? "1" : "0", g_strModelName, g_strSerialNumber, g_strFirmware,
                              g_strAtaVersion, QString::number(GetDiskTemperature()),
                              g_bHealthKnown ? QString::number(g_nHealthPercent) : "-",
                              QString::number(g_nPerformancePercent), QString::number(g_nDiskLifeDays),
                              QString::number(g_nPowerOnDays), QString::number(g_nPowerOnRestHours),
                              QString::number(g_nStartStopCount), last.join('|')}),
                 expected);

        QTextStream again(bytes);
        const report::Identity probed = report::readProbedIdentity(again);
        QCOMPARE((QStringList{probed.model.value_or(""), probed.serial.value_or(""),
                              probed.firmware.value_or("")}),
                 expected.mid(4, 3));
    }
};

QTEST_GUILESS_MAIN(tst_RealReports)
#include "tst_RealReports.moc"
