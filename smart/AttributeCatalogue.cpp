// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeCatalogue.h"

#include <QCoreApplication>

#include <array>
#include <optional>

namespace
{

struct AtaName {
    const char *text;           ///< shown, before translation; null: the key itself
    const char *word = nullptr; ///< what the key has to contain; null: the text
    quint32 id = 0;             ///< what the row's number has to be; 0: any
    std::optional<NameIn> only = std::nullopt;
};

struct NvmeName {
    const char *text;
    const char *without = nullptr;    ///< what the name must not contain
    const char *reportWord = nullptr; ///< what it has to contain for the report; null: the text
};

constexpr const char *Unknown = "Unknown Attribute";

/// The first row that a name fits decides, so the order counts.
constexpr std::array<AtaName, 42> AtaNames = {{
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Raw Read Error Rate")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Spin Up Time")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Start Stop Count")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Reallocated Sector Count"), "Reallocated Sector Ct"},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Reallocated Sector Count"), nullptr, 0, NameIn::Tree},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Seek Error Rate")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Power On Hours")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Spin Retry Count")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Calibration Retry Count")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Power Cycle Count")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Power-Off Retract Count")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Load Cycle Count")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Temperature Celsius")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Reallocated Event Count")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Current Pending Sector Count"), "Current Pending Sector"},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Offline Uncorrectable")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "UDMA CRC Error Count")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Multi Zone Error Rate")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Available Reserved Space"), Unknown, 170},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "SSD Program Fail Count"), Unknown, 171},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "SSD Erase Fail Count"), Unknown, 172},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "SSD Wear Leveling Count"), Unknown, 173},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Unexpected power loss count"), Unknown, 174},
    {nullptr, Unknown, 0, NameIn::Report},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Throughput Performance")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Read Channel Margin")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Seek Time Performance")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Soft Read Error Rate")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Runtime Bad Block")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "End-to-End Error "), "End-to-End Error"},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Reported Uncorrect")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Command Timeout")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "High Fly Writes")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Airflow Temperature Cel")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "G-Sense Error Rate")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Hardware ECC Recovered")},
    // Never reached, as the row without the blank comes first. The translations have it.
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Multi Zone Error Rate "), "Multi Zone Error Rate", 0,
     NameIn::Tree},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Write Error Rate")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Head Flying Hours")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Total LBAs Written")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Total LBAs Read")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Free Fall Sensor")},
}};

/// Here too. "Power Cyles" is spelled so in the translations; a drive's "Power Cycles" keeps its own name.
constexpr std::array<NvmeName, 15> NvmeNames = {{
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Critical Warning")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Temperature")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Available Spare"), "Threshold"},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Available Spare Threshold"), nullptr, "Available Spare"},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Percentage Used")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Data Units Read")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Data Units Written")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Host Read Commands")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Host Write Commands")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Controller Busy Time")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Power Cyles")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Power On Hours")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Unsafe Shutdowns")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Media and Data Integrity Errors")},
    {QT_TRANSLATE_NOOP("AttributeCatalogue", "Error Information Log Entries")},
}};

Qt::CaseSensitivity caseIn(NameIn place)
{
    return place == NameIn::Tree ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

QString translated(const char *text)
{
    return QCoreApplication::translate("AttributeCatalogue", text);
}

} // namespace

QString ataName(const QString &key, quint32 id, NameIn place)
{
    for (const AtaName &row : AtaNames) {
        if (row.only.value_or(place) != place || (row.id != 0 && row.id != id))
            continue;
        if (key.contains(QLatin1String(row.word ? row.word : row.text), caseIn(place)))
            return row.text ? translated(row.text) : key;
    }
    return key;
}

QString nvmeName(const QString &name, NameIn place)
{
    for (const NvmeName &row : NvmeNames) {
        const char *word = place == NameIn::Report && row.reportWord ? row.reportWord : row.text;
        if (name.contains(QLatin1String(word), caseIn(place)) &&
            !(row.without && name.contains(QLatin1String(row.without), caseIn(place))))
            return translated(row.text);
    }
    return name;
}
