// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/DriveVerdict.h"

#include <QTextStream>

namespace
{

const QString AssessmentLine = QStringLiteral("SMART overall-health self-assessment test result:");
const QString ScsiLine = QStringLiteral("SMART Health Status:");

/// The text behind the marker; a null one where the line is another.
QString behind(const QString &line, const QString &marker)
{
    const int at = line.indexOf(marker);
    return at < 0 ? QString() : line.mid(at + marker.size()).trimmed();
}

DriveVerdict assessment(const QString &word)
{
    if (word.startsWith(QLatin1String("PASSED")))
        return DriveVerdict::Passed;
    return word.startsWith(QLatin1String("FAILED")) ? DriveVerdict::Failed : DriveVerdict::NotTold;
}

/// "OK", or what the drive has to report in many words.
DriveVerdict scsiVerdict(const QString &words)
{
    if (words.isEmpty())
        return DriveVerdict::NotTold;
    const bool sound = words == QLatin1String("OK") || words.contains(QLatin1String("TEMPERATURE"));
    return sound ? DriveVerdict::Passed : DriveVerdict::Failed;
}

} // namespace

DriveVerdict readVerdictLine(QTextStream &stream)
{
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        const QString word = behind(line, AssessmentLine);
        if (!word.isNull())
            return assessment(word);
        const QString words = behind(line, ScsiLine);
        if (!words.isNull())
            return scsiVerdict(words);
    }
    return DriveVerdict::NotTold;
}

DriveVerdict ataVerdict(DriveVerdict line, const SmartAttributeList &rows)
{
    for (const SmartAttributeRecord &row : rows) {
        if (row.Type.text() == QLatin1String("Pre-fail") &&
            row.WhenFailed.text() == QLatin1String("FAILING_NOW"))
            return DriveVerdict::Failed;
    }
    return line;
}

std::optional<uint> criticalWarning(const NvmeAttributeList &rows)
{
    for (const NvmeAttributeRecord &row : rows) {
        bool readable = false;
        const uint bits = row.Value.text().toUInt(&readable, 0);
        if (readable && row.Name.text().contains(QLatin1String("Critical Warning")))
            return bits;
    }
    return std::nullopt;
}

DriveVerdict nvmeVerdict(DriveVerdict line, const NvmeAttributeList &rows)
{
    const std::optional<uint> bits = criticalWarning(rows);
    if (!bits)
        return line;
    if ((*bits & ~HeatWarning) != 0)
        return DriveVerdict::Failed;
    return *bits == HeatWarning || line == DriveVerdict::NotTold ? DriveVerdict::Passed : line;
}
