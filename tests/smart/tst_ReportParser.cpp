// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/ReportParser.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTranslator>
#include <QtTest>

namespace
{

const QByteArray AtaHeader =
    "ID# ATTRIBUTE_NAME          FLAG     VALUE WORST THRESH TYPE      UPDATED  WHEN_FAILED RAW_VALUE\n";
const QByteArray AtaRow = "  1 Raw_Read 0x000f   118   099   006    Pre-fail  Always       -       7\n";
const QByteArray AtaSection = "=== START OF READ SMART DATA SECTION ===\n";
const QByteArray NvmeHeader = "SMART/Health Information (NVMe Log 0x02)\n";

/// "name=raw" of all rows of the list that the last report filled.
QStringList rowTexts()
{
    QStringList rows;
    if (g_App.m_bNVMe) {
        for (const NvmeAttributeRecord &row : g_nvmeTable.rows)
            rows << row.Name.text() + '=' + row.Value.text();
        return rows;
    }
    for (const SmartAttributeRecord &row : g_smartTable.rows)
        rows << row.AttributeName.text() + '=' + row.RawValue.text();
    return rows;
}

void readReport(const QByteArray &bytes)
{
    const QString path = samples::stage(bytes);
    takeReportIn(path);
}

/// Translates one text of the main window and no other.
class OneWord : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const bool mine = qstrcmp(context, "MainWindow") == 0 && qstrcmp(text, "ID#") == 0;
        return mine ? QStringLiteral("Nr.") : QString();
    }
};

} // namespace

class tst_ReportParser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FakePlatform::install(); }
    void init() { samples::forget(); }
    void cleanup() { samples::forget(); }

    void realReports_data();
    void realReports();
    void verdict_data();
    void verdict();
    void tornReports_data();
    void tornReports();
    void kind_data();
    void kind();
    void identity_data();
    void identity();
    void probedIdentityEndsAtFirmware();
    void missingFileChangesNothing();
    void emptyFileEmptiesTheKind();
    void missingLinesKeepTheirTexts();
    void otherKindKeepsItsList();
    void rereadReplaces();
    void headersAreTheToolsInEveryLanguage();
    void utf16();
    void noise_data();
    void noise();
};

void tst_ReportParser::realReports_data()
{
    QTest::addColumn<int>("index");
    const QVector<samples::Sample> all = samples::all();
    QVERIFY(all.size() > 50);
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(all.at(i).file.toUtf8().constData()) << i;
}

void tst_ReportParser::realReports()
{
    QFETCH(int, index);
    const samples::Sample sample = samples::all().at(index);
    g_App.m_bNVMe = sample.kind == "ata"; // wrong at first; the report has to correct it
    const QByteArray bytes = samples::bytesOf(sample.file);
    QVERIFY(!bytes.isEmpty());
    const QString path = samples::stage(bytes);
    takeReportIn(path);
    QCOMPARE(g_App.m_bNVMe, sample.kind == "nvme");
    QVERIFY(!QFile::exists(nativePath(path)));

    QCOMPARE(g_bSmartAvailable, sample.passed);
    QCOMPARE(g_strModelName, sample.model);
    QCOMPARE(g_strSerialNumber, sample.serial);
    QCOMPARE(g_strFirmware, sample.firmware);
    QCOMPARE(g_strAtaVersion, sample.ataVersion);
    QCOMPARE(samples::length(g_smartTable.rows), g_App.m_bNVMe ? 0 : sample.rows);
    QCOMPARE(samples::length(g_nvmeTable.rows), g_App.m_bNVMe ? sample.rows : 0);
    QString lastRow;
    if (const SmartAttributeRecord *row = g_pSmartAttributeTail) {
        lastRow = QString("%1|%2|%3|%4|%5")
                      .arg(row->Id)
                      .arg(row->AttributeName.text())
                      .arg(row->Value)
                      .arg(row->Threshold)
                      .arg(row->RawValue.text());
        QCOMPARE(g_smartTable.drive.DeviceModel.text(), sample.model);
        QCOMPARE(g_smartTable.drive.SerialNumber.text(), sample.serial);
    }
    if (const NvmeAttributeRecord *row = g_pNvmeAttributeTail) {
        lastRow = row->Name.text() + '|' + row->Value.text();
        QCOMPARE(g_nvmeTable.drive.ModelNumber.text(), sample.model);
        QCOMPARE(g_nvmeTable.drive.Firmware.text(), sample.firmware);
    }
    QCOMPARE(lastRow, sample.lastRow);
}

void tst_ReportParser::verdict_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("changes"); // "old text>new text|…"
    QTest::addColumn<int>("verdict");
    const auto row = [](const char *name, const char *file, const char *changes, DriveVerdict verdict) {
        QTest::newRow(name) << file << changes << int(verdict);
    };
    using V = DriveVerdict;
    const char *ata = "ata-seagate-st31500341as-failed.txt";
    const char *nvme = "nvme-wdc-sn850-1tb.txt";
    const char *sas = "sas-hgst-hus726040al5210.txt";
    row("ATA fails", ata, "FAILING_NOW>-", V::Failed);
    row("ATA, by its attribute alone", ata, "FAILED!>PASSED", V::Failed);
    row("ATA, of the past", ata, "FAILED!>PASSED|FAILING_NOW>In_the_past", V::Passed);
    row("ATA, of old age", "ata-marginal-attribute-H-only.txt", "", V::Passed);
    row("ATA does not know", ata, "FAILED!>UNKNOWN!|FAILING_NOW>-", V::NotTold);
    row("NVMe fails", nvme, "PASSED>FAILED!", V::Failed);
    row("NVMe is hot alone", nvme, "PASSED>FAILED!|0x00>0x02", V::Passed);
    row("NVMe, by its warning alone", nvme, "0x00>0x06", V::Failed);
    row("NVMe without the line", "nvme-win-toshiba-thnsn5512.txt", "", V::Passed);
    row("SCSI passes", sas, "", V::Passed);
    row("SCSI fails", sas, "Status: OK>Status: FAILURE PREDICTION THRESHOLD EXCEEDED [asc=5d]", V::Failed);
    row("SCSI is hot", sas, "Status: OK>Status: WARNING - SPECIFIED TEMPERATURE EXCEEDED", V::Passed);
    row("no SMART", "err-lacks-smart-capability.txt", "", V::NotTold);
}

void tst_ReportParser::verdict()
{
    QFETCH(QString, file);
    QFETCH(QString, changes);
    QByteArray report = samples::bytesOf(file);
    for (const QString &change : changes.split('|', Qt::SkipEmptyParts))
        report.replace(change.section('>', 0, 0).toUtf8(), change.section('>', 1).toUtf8());
    readReport(report);
    QTEST(int(g_driveVerdict), "verdict");
}

void tst_ReportParser::tornReports_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file : {"ata-seagate-st3000dm001.txt", "ata-win-intel-ssdsc2kw120h6.txt",
                             "nvme-win-netac-2tb-crlf.txt", "nvme-wdc-sn850-1tb.txt"})
        QTest::newRow(file) << file;
}

// A report that is cut anywhere has the rows before the cut. The last of them may be cut, too.
void tst_ReportParser::tornReports()
{
    QFETCH(QString, file);
    const QByteArray bytes = samples::bytesOf(file);
    readReport(bytes);
    const QStringList whole = rowTexts();
    QVERIFY(whole.size() > 15);
    int before = 0;
    for (int size = 0; size < bytes.size(); size += 13) {
        readReport(bytes.left(size));
        const QStringList rows = rowTexts();
        QVERIFY2(rows.size() >= before && rows.size() <= whole.size(), qPrintable(QString::number(size)));
        for (int i = 0; i + 1 < rows.size(); ++i)
            QCOMPARE(rows.at(i), whole.at(i));
        before = rows.size();
    }
    QCOMPARE(before, whole.size());
}

void tst_ReportParser::kind_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");
    QTest::newRow("none leaves NVMe") << QByteArray("hello\n") << true << true;
    QTest::newRow("none leaves ATA") << QByteArray("hello\n") << false << false;
    QTest::newRow("ATA") << AtaSection << true << false;
    QTest::newRow("NVMe") << NvmeHeader << false << true;
    QTest::newRow("later NVMe") << AtaSection + NvmeHeader << false << true;
    QTest::newRow("later ATA") << NvmeHeader + AtaSection << true << false;
    QTest::newRow("other section") << QByteArray("=== START OF SMART DATA SECTION ===\n") << true << true;
    QTest::newRow("case") << AtaSection.toLower() << true << true;
    QTest::newRow("no final newline") << QByteArray("x\nSMART/Health Information (NVMe Log") << false << true;
}

void tst_ReportParser::kind()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, before);
    g_App.m_bNVMe = before;
    takeReportIn(samples::stage(text));
    QTEST(g_App.m_bNVMe, "after");
}

void tst_ReportParser::identity_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found"); // model|serial|firmware|version, "-" for a missing line
    QTest::newRow("nothing") << ""
                             << "-|-|-|-";
    QTest::newRow("model keeps the last piece") << "Device Model: A:B: C \n"
                                                << "C|-|-|-";
    QTest::newRow("empty parts do not count") << "Device Model: A:::\n"
                                              << "A|-|-|-";
    QTest::newRow("no value yields the caption") << "Serial Number:\n"
                                                 << "-|Serial Number|-|-";
    QTest::newRow("blank value") << "Serial Number:   \n"
                                 << "-||-|-";
    QTest::newRow("second one wins") << "Model Number: A\nDevice Model: B\n"
                                     << "B|-|-|-";
    QTest::newRow("section ends it") << "Serial Number: 1\n" + QString(AtaSection) + "Firmware Version: F\n"
                                     << "-|1|-|-";
    QTest::newRow("ATA version ends it") << "ATA Version is:   8\nSerial Number: 1\n"
                                         << "-|-|-|8";
    QTest::newRow("SATA line ends it too")
        << "SATA Version is:  SATA 3.1, 6.0 Gb/s (current: 6.0 Gb/s)\nSerial Number: 1\n"
        << "-|-|-|6.0 Gb/s)";
    QTest::newRow("within a line") << "xx Firmware Version: F"
                                   << "-|-|F|-";
    QTest::newRow("case") << "device model: A\n"
                          << "-|-|-|-";
    QTest::newRow("model rule comes first") << "Device Model: Serial Number: X\n"
                                            << "X|-|-|-";
}

void tst_ReportParser::identity()
{
    QFETCH(QString, text);
    QTextStream stream(&text);
    const report::Identity got = report::readIdentity(stream);
    const auto shown = [](const std::optional<QString> &value) { return value.value_or("-"); };
    QTEST(shown(got.model) + '|' + shown(got.serial) + '|' + shown(got.firmware) + '|' +
              shown(got.ataVersion),
          "found");
}

void tst_ReportParser::probedIdentityEndsAtFirmware()
{
    QString text = "ATA Version is: 8\nModel Number: M\nFirmware Version: F\nSerial Number: S\n";
    QTextStream stream(&text);
    const report::Identity got = report::readProbedIdentity(stream);
    QCOMPARE(got.model.value_or("-"), QString("M"));
    QCOMPARE(got.firmware.value_or("-"), QString("F"));
    QVERIFY(!got.serial);
    QString cut = AtaSection + "Serial Number: S\n";
    QTextStream section(&cut);
    QVERIFY(!report::readProbedIdentity(section).serial);
}

void tst_ReportParser::missingFileChangesNothing()
{
    readReport(samples::bytesOf("ata-seagate-st3250318as.txt"));
    const QStringList rows = rowTexts();
    const SmartAttributeRecord *head = g_pSmartAttributeHead;
    QVERIFY(head && g_bSmartAvailable);
    const QString path = tempFile("SMART.txt");
    QFile::remove(nativePath(path));
    takeReportIn(path);
    QCOMPARE(g_pSmartAttributeHead, head);
    QCOMPARE(rowTexts(), rows);
    QVERIFY(g_bSmartAvailable);
    QCOMPARE(g_strModelName, QString("ST3250318AS"));
}

void tst_ReportParser::emptyFileEmptiesTheKind()
{
    readReport(samples::bytesOf("ata-seagate-st3250318as.txt"));
    readReport(samples::bytesOf("nvme-wdc-sn850-1tb.txt"));
    QVERIFY(g_pSmartAttributeHead && g_pNvmeAttributeHead && g_bSmartAvailable);
    readReport(QByteArray());
    QVERIFY(g_App.m_bNVMe);
    QVERIFY(!g_bSmartAvailable);
    QVERIFY(!g_pNvmeAttributeHead && !g_pNvmeAttributeTail);
    QVERIFY(g_pSmartAttributeHead);
    QVERIFY(!QFile::exists(nativePath(tempFile("SMART.txt"))));
}

void tst_ReportParser::missingLinesKeepTheirTexts()
{
    g_strModelName = "m";
    g_strSerialNumber = "s";
    g_strFirmware = "f";
    g_strAtaVersion = "v";
    readReport("Serial Number: new\n" + AtaSection + AtaHeader + AtaRow);
    QCOMPARE(g_strModelName, QString("m"));
    QCOMPARE(g_strSerialNumber, QString("new"));
    QCOMPARE(g_strFirmware, QString("f"));
    QCOMPARE(g_strAtaVersion, QString("v"));
    // The texts are those of this report, not of the disk before.
    QCOMPARE(g_smartTable.drive.SerialNumber.text(), QString("new"));
    QVERIFY(g_smartTable.drive.DeviceModel.isEmpty());
    QVERIFY(g_smartTable.drive.AtaVersion.isEmpty());
}

void tst_ReportParser::otherKindKeepsItsList()
{
    readReport(samples::bytesOf("nvme-wdc-sn850-1tb.txt"));
    const NvmeAttributeRecord *head = g_pNvmeAttributeHead;
    readReport(samples::bytesOf("ata-seagate-st3250318as.txt"));
    QCOMPARE(g_pNvmeAttributeHead, head);
    QCOMPARE(samples::length(g_nvmeTable.rows), 17);
    QVERIFY(!g_App.m_bNVMe);
}

void tst_ReportParser::rereadReplaces()
{
    readReport(samples::bytesOf("ata-transcend-ts120gmts420s.txt"));
    readReport(samples::bytesOf("ata-apple-sm0256f.txt"));
    QCOMPARE(samples::length(g_smartTable.rows), 13);
    QCOMPARE(g_smartTable.drive.DeviceModel.text(), QString("APPLE SSD SM0256F"));
    QVERIFY(!g_pSmartAttributeTail->Next);
}

void tst_ReportParser::headersAreTheToolsInEveryLanguage()
{
    OneWord translator;
    QCoreApplication::installTranslator(&translator);
    readReport("Nr. Name\n2 b\n\nID# only\n1 a\n");
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(rowTexts(), QStringList("a="));
}

void tst_ReportParser::utf16()
{
    const QString text = QString(AtaSection + AtaHeader + AtaRow + AtaRow).replace("\n", "\r\n");
    QByteArray bytes("\xff\xfe");
    bytes.append(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
    g_App.m_bNVMe = true;
    readReport(bytes);
    QCOMPARE(rowTexts(), QStringList({"Raw_Read=7", "Raw_Read=7"}));
}

void tst_ReportParser::noise_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("rows"); // -1: any number up to the limit
    constexpr int Size = 10 * 1024 * 1024;
    QByteArray random(Size, Qt::Uninitialized);
    QRandomGenerator generator(7);
    generator.fillRange(reinterpret_cast<quint32 *>(random.data()), Size / 4);
    QTest::newRow("random bytes") << random << -1;
    QTest::newRow("random table") << AtaHeader + random << -1;
    QTest::newRow("random health log") << NvmeHeader + random << -1;
    QTest::newRow("one line") << QByteArray(Size, 'x') << 0;
    QTest::newRow("one row of blanks and words") << AtaHeader + QByteArray("a ").repeated(Size / 2) << 1;
    QTest::newRow("one row of colons") << NvmeHeader + QByteArray("a:").repeated(Size / 2) << 1;
    QTest::newRow("one long value") << "Device Model:" + QByteArray(Size, ':') + "y\n" + AtaHeader +
                                           AtaRow.repeated(200)
                                    << 200;
    QTest::newRow("NULs") << QByteArray(Size, '\0') + '\n' + AtaHeader + AtaRow << 1;
    QTest::newRow("newlines") << QByteArray(Size, '\n') + AtaHeader + AtaRow << 1;
    QTest::newRow("broken UTF-8") << QByteArray("\xf0\x9f\x98").repeated(Size / 3) + '\n' + AtaHeader + AtaRow
                                  << 1;
    QTest::newRow("rows without end")
        << AtaHeader + QByteArray("1 a\n").repeated(Size / 4) << report::MaxRows;
    QTest::newRow("marker again and again")
        << "data collection:" + QByteArray("data collection:(  ").repeated(Size / 19) + '\n' + AtaHeader +
               AtaRow
        << 1;
}

void tst_ReportParser::noise()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, rows);
    readReport(bytes);
    const int got = rowTexts().size();
    if (rows < 0)
        QVERIFY(got <= report::MaxRows);
    else
        QCOMPARE(got, rows);
    QVERIFY(!QFile::exists(nativePath(tempFile("SMART.txt"))));
}

QTEST_GUILESS_MAIN(tst_ReportParser)
#include "tst_ReportParser.moc"
