// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/Temperature.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QtTest>

class tst_Temperature : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FakePlatform::install(); }
    void cleanup() { samples::forget(); }

    void ata()
    {
        const auto row = [](const QString &rows, int celsius) {
            const int got = ataTemperature(samples::ataList(rows));
            QCOMPARE(rows + QString(" -> %1").arg(got), rows + QString(" -> %1").arg(celsius));
        };
        row("Temperature_Case=30 Temperature_Internal=31", 0);
        row("Spin_Up_Time=9 Temperature_Celsius=36", 36);
        row("Temperature_Celsius=- Airflow_Temperature_Cel=41", 0);
        row("Airflow_Temperature_Cel=41 Temperature_Celsius=36", 41);
        row("x_Temperature_Celsius_y=-5", -5);
        row("Temperature_Celsius=4294967332", 0);
    }

    void nvme()
    {
        const auto row = [](const QString &text, int celsius) {
            const int got =
                nvmeTemperature(samples::nvmeList({"Critical Warning=0x00", text, "Temperature=1"}));
            QCOMPARE(text + QString(" -> %1").arg(got), text + QString(" -> %1").arg(celsius));
        };
        row("Temperature=  36   Celsius ", 36);
        row("Temperature Sensor 1=-3 Celsius", -3);
        row("Temperature=-", 0);
        row("Temperature=97 Fahrenheit", 0);
        row("temperature=36 Celsius", 1); // of the next row
    }

    void kindChoosesTheList()
    {
        g_smartTable.rows = samples::ataList("Temperature_Celsius=36");
        g_nvmeTable.rows = samples::nvmeList({"Temperature=51 Celsius"});
        QCOMPARE(GetDiskTemperature(), 36);
        g_App.m_bNVMe = true;
        QCOMPARE(GetDiskTemperature(), 51);
    }

    /// After a load, of a poll, and while a disk is read.
    void texts()
    {
        const auto row = [](int celsius, const char *unit, const char *expected) {
            QCOMPARE(loadTemperatureText(celsius, unit) + '|' + pollTemperatureText(celsius, unit) + '|' +
                         waitingTemperatureText(unit),
                     QString(expected));
        };
        row(37, "C", "37\u00B0C|37\u00B0C|0\u00B0C");
        row(37, "F", "98\u00B0F|98\u00B0F|0\u00B0F");
        row(1, "F", "33\u00B0F|33\u00B0F|0\u00B0F");
        row(0, "F", "0\u00B0F|0\u00B0F|0\u00B0F");
        row(-3, "F", "27\u00B0F|27\u00B0F|0\u00B0F"); // truncated towards zero
        row(37, "f", "37\u00B0C||0\u00B0");
    }

    void pictures()
    {
        using P = TilePicture;
        QVERIFY(loadTemperaturePicture(49) == P::Good && pollTemperaturePicture(49) == P::Same);
        QVERIFY(loadTemperaturePicture(50) == P::Average && pollTemperaturePicture(50) == P::Good);
        QVERIFY(loadTemperaturePicture(65) == P::Average);
        QVERIFY(loadTemperaturePicture(66) == P::Bad && pollTemperaturePicture(66) == P::Good);
    }
};

QTEST_GUILESS_MAIN(tst_Temperature)
#include "tst_Temperature.moc"
