// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeCatalogue.h"

#include <QTest>
#include <QTranslator>

namespace
{

/// Translates only texts of the catalogue, and makes blanks at the end visible.
class Brackets : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (qstrcmp(context, "AttributeCatalogue") != 0)
            return QString();
        return QLatin1Char('[') + QLatin1String(text) + QLatin1Char(']');
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class AttributeCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QCoreApplication::installTranslator(&m_brackets); }
    void cleanup() { QCoreApplication::removeTranslator(&m_brackets); }

    void ata_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<quint32>("id");
        QTest::addColumn<QString>("tree");
        QTest::addColumn<QString>("report");
        const auto row = [](const char *key, quint32 id, const char *tree, const char *report) {
            QTest::addRow("%s, %u", key, id)
                << QString::fromLatin1(key) << id << QString::fromLatin1(tree) << QString::fromLatin1(report);
        };
        for (const char *name :
             {"Raw Read Error Rate",     "Spin Up Time",           "Start Stop Count",
              "Seek Error Rate",         "Power On Hours",         "Spin Retry Count",
              "Calibration Retry Count", "Power Cycle Count",      "Power-Off Retract Count",
              "Load Cycle Count",        "Temperature Celsius",    "Reallocated Event Count",
              "Offline Uncorrectable",   "UDMA CRC Error Count",   "Multi Zone Error Rate",
              "Throughput Performance",  "Read Channel Margin",    "Seek Time Performance",
              "Soft Read Error Rate",    "Runtime Bad Block",      "Reported Uncorrect",
              "Command Timeout",         "High Fly Writes",        "Airflow Temperature Cel",
              "G-Sense Error Rate",      "Hardware ECC Recovered", "Write Error Rate",
              "Head Flying Hours",       "Total LBAs Written",     "Total LBAs Read",
              "Free Fall Sensor"}) {
            const QByteArray shown = '[' + QByteArray(name) + ']';
            row(name, 1, shown.constData(), shown.constData());
        }
        const char *reallocated = "[Reallocated Sector Count]";
        row("Reallocated Sector Ct", 5, reallocated, reallocated);
        row("Reallocated Sector Count", 5, reallocated, "Reallocated Sector Count");
        const char *pending = "[Current Pending Sector Count]";
        row("Current Pending Sector", 197, pending, pending);
        row("Current Pending Sector Count", 197, pending, pending);
        row("End-to-End Error", 184, "[End-to-End Error ]", "[End-to-End Error ]");
        row("Power On Hours and Msec", 9, "[Power On Hours]", "[Power On Hours]");

        row("Unknown Attribute", 170, "[Available Reserved Space]", "[Available Reserved Space]");
        row("Unknown Attribute", 171, "[SSD Program Fail Count]", "[SSD Program Fail Count]");
        row("Unknown Attribute", 172, "[SSD Erase Fail Count]", "[SSD Erase Fail Count]");
        row("Unknown Attribute", 173, "[SSD Wear Leveling Count]", "[SSD Wear Leveling Count]");
        row("Unknown Attribute", 174, "[Unexpected power loss count]", "[Unexpected power loss count]");
        row("Unknown Attribute", 175, "Unknown Attribute", "Unknown Attribute");

        row("Temperature Case", 194, "Temperature Case", "Temperature Case");
        row("Free Fall Event Count", 254, "Free Fall Event Count", "Free Fall Event Count");
        row("", 0, "", "");
        row("POWER ON HOURS", 9, "POWER ON HOURS", "[Power On Hours]");
        // If a text has two names of the list, the first one of the list counts.
        row("Spin Up Time Raw Read Error Rate", 1, "[Raw Read Error Rate]", "[Raw Read Error Rate]");
        row("Write Error Rate Multi Zone Error Rate", 1, "[Multi Zone Error Rate]",
            "[Multi Zone Error Rate]");
        row("Seek Error Rate Unknown Attribute", 170, "[Seek Error Rate]", "[Seek Error Rate]");
        row("Command Timeout Unknown Attribute", 170, "[Available Reserved Space]",
            "[Available Reserved Space]");
        row("Command Timeout Unknown Attribute", 175, "[Command Timeout]",
            "Command Timeout Unknown Attribute");
    }

    void ata()
    {
        QFETCH(QString, key);
        QFETCH(quint32, id);
        QTEST(ataName(key, id, NameIn::Tree), "tree");
        QTEST(ataName(key, id, NameIn::Report), "report");
    }

    void nvme_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("tree");
        QTest::addColumn<QString>("report");
        const auto row = [](const char *name, const char *tree, const char *report) {
            QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(tree)
                                << QString::fromLatin1(report);
        };
        for (const char *name :
             {"Critical Warning", "Temperature", "Available Spare", "Available Spare Threshold",
              "Percentage Used", "Data Units Read", "Data Units Written", "Host Read Commands",
              "Host Write Commands", "Controller Busy Time", "Power Cyles", "Power On Hours",
              "Unsafe Shutdowns", "Media and Data Integrity Errors", "Error Information Log Entries"}) {
            const QByteArray shown = '[' + QByteArray(name) + ']';
            row(name, shown.constData(), shown.constData());
        }
        row("Power Cycles", "Power Cycles", "Power Cycles");
        row("Temperature Sensor 2", "[Temperature]", "[Temperature]");
        row("Warning  Comp. Temperature Time", "[Temperature]", "[Temperature]");
        row("Thermal Temp. 1 Total Time", "Thermal Temp. 1 Total Time", "Thermal Temp. 1 Total Time");
        row("percentage used", "percentage used", "[Percentage Used]");
        row("Threshold of Available Spare", "Threshold of Available Spare", "[Available Spare Threshold]");
        row("Temperature Critical Warning", "[Critical Warning]", "[Critical Warning]");
    }

    void nvme()
    {
        QFETCH(QString, name);
        QTEST(nvmeName(name, NameIn::Tree), "tree");
        QTEST(nvmeName(name, NameIn::Report), "report");
    }

private:
    Brackets m_brackets;
};

QTEST_GUILESS_MAIN(AttributeCatalogueTest)
#include "tst_AttributeCatalogue.moc"
