// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeCatalogue.h"

#include <QTest>
#include <QTranslator>

namespace
{

/// Translates only texts of the catalogue.
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
    void names()
    {
        Brackets brackets;
        QCoreApplication::installTranslator(&brackets);
        const auto row = [](const char *key, int id, const char *tree, const char *report) {
            const auto name = [&](NameIn place) {
                return id < 0 ? nvmeName(key, place) : ataName(key, quint32(id), place);
            };
            QCOMPARE(name(NameIn::Tree), QString(tree));
            QCOMPARE(name(NameIn::Report), QString(report));
        };
        row("Raw Read Error Rate", 1, "[Raw Read Error Rate]", "[Raw Read Error Rate]");
        row("Reallocated Sector Ct", 5, "[Reallocated Sector Count]", "[Reallocated Sector Count]");
        row("Reallocated Sector Count", 5, "[Reallocated Sector Count]", "Reallocated Sector Count");
        row("POWER ON HOURS", 9, "POWER ON HOURS", "[Power On Hours]");
        row("Unknown Attribute", 170, "[Available Reserved Space]", "[Available Reserved Space]");
        row("Unknown Attribute", 171, "[SSD Program Fail Count]", "[SSD Program Fail Count]");
        row("Unknown Attribute", 174, "[Unexpected power loss count]", "[Unexpected power loss count]");
        row("Unknown Attribute", 175, "Unknown Attribute", "Unknown Attribute");
        row("Command Timeout Unknown Attribute", 175, "[Command Timeout]",
            "Command Timeout Unknown Attribute");
        // If a text has two names of the list, the first one of the list counts.
        row("Spin Up Time Raw Read Error Rate", 1, "[Raw Read Error Rate]", "[Raw Read Error Rate]");
        row("Write Error Rate Multi Zone Error Rate", 1, "[Multi Zone Error Rate]",
            "[Multi Zone Error Rate]");

        constexpr int nvme = -1;
        row("Power Cycles", nvme, "Power Cycles", "Power Cycles");
        row("Available Spare", nvme, "[Available Spare]", "[Available Spare]");
        row("Available Spare Threshold", nvme, "[Available Spare Threshold]", "[Available Spare Threshold]");
        row("Threshold of Available Spare", nvme, "Threshold of Available Spare",
            "[Available Spare Threshold]");
        row("percentage used", nvme, "percentage used", "[Percentage Used]");
        row("Temperature Critical Warning", nvme, "[Critical Warning]", "[Critical Warning]");
    }
};

QTEST_GUILESS_MAIN(AttributeCatalogueTest)
#include "tst_AttributeCatalogue.moc"
