// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/Temperature.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QtTest>

using samples::AtaList;
using samples::NvmeList;

class tst_Temperature : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FakePlatform::install(); }
    void cleanup() { samples::forget(); }

    void realReports_data();
    void realReports();
    void ata_data();
    void ata();
    void nvme_data();
    void nvme();
    void kindChoosesTheList();
    void display_data();
    void display();
    void texts_data();
    void texts();
    void pictures();
};

void tst_Temperature::realReports_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("celsius");
    const QVector<samples::Sample> all = samples::all();
    QVERIFY(!all.isEmpty());
    for (const samples::Sample &sample : all)
        QTest::newRow(sample.file.toUtf8().constData()) << sample.file << sample.celsius;
}

void tst_Temperature::realReports()
{
    QFETCH(QString, file);
    const QString path = samples::stage(samples::bytesOf(file));
    takeReportIn(path);
    QTEST(GetDiskTemperature(), "celsius");
}

void tst_Temperature::ata_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<int>("celsius");
    QTest::newRow("none") << "" << 0;
    QTest::newRow("no such row") << "Temperature_Case=30 Temperature_Internal=31" << 0;
    QTest::newRow("194") << "Spin_Up_Time=9 Temperature_Celsius=36" << 36;
    QTest::newRow("190") << "Airflow_Temperature_Cel=41" << 41;
    QTest::newRow("the first one decides") << "Airflow_Temperature_Cel=41 Temperature_Celsius=36" << 41;
    QTest::newRow("the first one decides, unreadable")
        << "Temperature_Celsius=- Airflow_Temperature_Cel=41" << 0;
    QTest::newRow("within a name") << "x_Temperature_Celsius_y=7" << 7;
    QTest::newRow("beyond 32 bits") << "Temperature_Celsius=4294967332" << 0;
    QTest::newRow("below zero") << "Temperature_Celsius=-5" << -5;
}

void tst_Temperature::ata()
{
    QFETCH(QString, rows);
    AtaList list;
    list.addAll(rows);
    QTEST(ataTemperature(list), "celsius");
}

void tst_Temperature::nvme_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("celsius");
    QTest::newRow("plain") << "Temperature"
                           << "36 Celsius" << 36;
    QTest::newRow("blanks") << "Temperature"
                            << "  36   Celsius " << 36;
    QTest::newRow("sensor") << "Temperature Sensor 1"
                            << "40 Celsius" << 40;
    QTest::newRow("not known") << "Temperature"
                               << "-" << 0;
    QTest::newRow("below zero") << "Temperature"
                                << "-3 Celsius" << -3;
    QTest::newRow("Fahrenheit is not read") << "Temperature"
                                            << "97 Fahrenheit" << 0;
    QTest::newRow("case") << "temperature"
                          << "36 Celsius" << 0;
}

void tst_Temperature::nvme()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    NvmeList list;
    list.add("Critical Warning", "0x00");
    list.add(name, value);
    QTEST(nvmeTemperature(list), "celsius");
    QCOMPARE(nvmeTemperature({}), 0);
}

void tst_Temperature::kindChoosesTheList()
{
    SmartAttributeRecord ata;
    ata.AttributeName.assign("Temperature_Celsius");
    ata.RawValue.assign("36");
    NvmeAttributeRecord nvme;
    nvme.Name.assign("Temperature");
    nvme.Value.assign("51 Celsius");
    g_smartTable.rows.append(ata);
    g_nvmeTable.rows.append(nvme);
    QCOMPARE(GetDiskTemperature(), 36);
    g_App.m_bNVMe = true;
    QCOMPARE(GetDiskTemperature(), 51);
}

void tst_Temperature::display_data()
{
    QTest::addColumn<int>("celsius");
    QTest::addColumn<int>("fahrenheit");
    QTest::newRow("not known") << 0 << 0;
    QTest::newRow("1") << 1 << 33;
    QTest::newRow("37") << 37 << 98;
    QTest::newRow("100") << 100 << 212;
    QTest::newRow("below zero truncates towards zero") << -3 << 27;
}

void tst_Temperature::display()
{
    QFETCH(int, celsius);
    QTEST(displayTemperature(celsius, true), "fahrenheit");
    QCOMPARE(displayTemperature(celsius, false), celsius);
}

void tst_Temperature::texts_data()
{
    QTest::addColumn<int>("celsius");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("load");
    QTest::addColumn<QString>("poll");
    QTest::addColumn<QString>("waiting");
    const QString degree(QChar(0xb0));
    QTest::newRow("C") << 37 << "C"
                       << "37" + degree + "C"
                       << "37" + degree + "C"
                       << "0" + degree + "C";
    QTest::newRow("F") << 37 << "F"
                       << "98" + degree + "F"
                       << "98" + degree + "F"
                       << "0" + degree + "F";
    QTest::newRow("F at nothing") << 0 << "F"
                                  << "0" + degree + "F"
                                  << "0" + degree + "F"
                                  << "0" + degree + "F";
    QTest::newRow("unset") << 37 << ""
                           << "37" + degree + "C"
                           << ""
                           << "0" + degree;
    QTest::newRow("other") << 37 << "f"
                           << "37" + degree + "C"
                           << ""
                           << "0" + degree;
}

void tst_Temperature::texts()
{
    QFETCH(int, celsius);
    QFETCH(QString, unit);
    QTEST(loadTemperatureText(celsius, unit), "load");
    QTEST(pollTemperatureText(celsius, unit), "poll");
    QTEST(waitingTemperatureText(unit), "waiting");
}

void tst_Temperature::pictures()
{
    using P = TilePicture;
    const struct {
        int celsius;
        P load;
        P poll;
    } rows[] = {{0, P::Good, P::Same},
                {49, P::Good, P::Same},
                {50, P::Average, P::Good},
                {65, P::Average, P::Good},
                {66, P::Bad, P::Good}};
    for (const auto &row : rows) {
        QVERIFY2(loadTemperaturePicture(row.celsius) == row.load, qPrintable(QString::number(row.celsius)));
        QVERIFY2(pollTemperaturePicture(row.celsius) == row.poll, qPrintable(QString::number(row.celsius)));
    }
}

QTEST_GUILESS_MAIN(tst_Temperature)
#include "tst_Temperature.moc"
