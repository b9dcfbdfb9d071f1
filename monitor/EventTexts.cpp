// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/EventTexts.h"

#include "platform/PlainText.h"
#include "smart/Temperature.h"
#include "state/TimeText.h"

#include <QCoreApplication>
#include <QStringList>

namespace eventtexts
{

namespace
{

constexpr const char *BackUp = QT_TRANSLATE_NOOP("Monitor", "Back up this disk now.");

/// The words of a kind, in the order of EventKind. %1 is the value, %2 what was before, %3 the detail.
struct Words {
    Severity severity;
    const char *what;
    const char *advice;          ///< empty: nothing is to be done
    const char *first = nullptr; ///< in place of `what` where nothing was before
};

constexpr Words AllWords[] = {
    {Severity::Warning, QT_TRANSLATE_NOOP("Monitor", "temperature %1, limit %2"),
     QT_TRANSLATE_NOOP("Monitor", "See to its cooling.")},
    {Severity::Critical, QT_TRANSLATE_NOOP("Monitor", "temperature %1, shutdown limit %2"),
     QT_TRANSLATE_NOOP("Monitor", "It is advisable to shut down the system now.")},
    {Severity::Critical, QT_TRANSLATE_NOOP("Monitor", "the drive reports that it is failing: %3"), BackUp,
     QT_TRANSLATE_NOOP("Monitor", "the drive reports that it is failing")},
    {Severity::Critical, QT_TRANSLATE_NOOP("Monitor", "critical warning: %3"), BackUp},
    {Severity::Critical, QT_TRANSLATE_NOOP("Monitor", "failing attributes: %3"), BackUp},
    {Severity::Warning, QT_TRANSLATE_NOOP("Monitor", "reallocated sectors: %1 (before: %2)"), BackUp,
     QT_TRANSLATE_NOOP("Monitor", "reallocated sectors: %1")},
    {Severity::Warning, QT_TRANSLATE_NOOP("Monitor", "pending sectors: %1 (before: %2)"), BackUp,
     QT_TRANSLATE_NOOP("Monitor", "pending sectors: %1")},
    {Severity::Warning, QT_TRANSLATE_NOOP("Monitor", "uncorrectable errors: %1 (before: %2)"), BackUp,
     QT_TRANSLATE_NOOP("Monitor", "uncorrectable errors: %1")},
    {Severity::Warning, QT_TRANSLATE_NOOP("Monitor", "media errors: %1 (before: %2)"), BackUp,
     QT_TRANSLATE_NOOP("Monitor", "media errors: %1")},
    {Severity::Critical, QT_TRANSLATE_NOOP("Monitor", "spare %1 %, threshold %2 %"), BackUp},
    {Severity::Warning, QT_TRANSLATE_NOOP("Monitor", "wear %1 %"),
     QT_TRANSLATE_NOOP("Monitor", "Plan to replace this disk, and keep a backup.")},
    {Severity::Critical, QT_TRANSLATE_NOOP("Monitor", "the self-test failed: %3"), BackUp},
    {Severity::Warning, QT_TRANSLATE_NOOP("Monitor", "the disk does not answer"),
     QT_TRANSLATE_NOOP("Monitor", "Check its cable. Back it up as soon as it answers.")},
    {Severity::Critical, QT_TRANSLATE_NOOP("Monitor", "the disk is missing"),
     QT_TRANSLATE_NOOP("Monitor", "Check its cable. If it comes back, back it up.")},
    {Severity::Information, QT_TRANSLATE_NOOP("Monitor", "the disk is back"), BackUp},
    {Severity::Information, "%3", ""},
    {Severity::Warning, QT_TRANSLATE_NOOP("Monitor", "the log cannot be written: %3"),
     QT_TRANSLATE_NOOP("Monitor", "Choose another file for it in Settings.")},
    {Severity::Warning, "the system does not tell its disks, the list stays as it was", ""},
    {Severity::Warning, "the metrics cannot be written: %3", ""},
};

/// By the bit of an NVMe drive's critical warning.
constexpr const char *WarningWords[] = {
    QT_TRANSLATE_NOOP("Monitor", "the spare is used up"),
    QT_TRANSLATE_NOOP("Monitor", "too hot or too cold"),
    QT_TRANSLATE_NOOP("Monitor", "less reliable after errors of the medium"),
    QT_TRANSLATE_NOOP("Monitor", "read-only"),
    QT_TRANSLATE_NOOP("Monitor", "the backup of its memory has failed"),
    QT_TRANSLATE_NOOP("Monitor", "the persistent memory is read-only"),
};

const Words &wordsOf(EventKind kind)
{
    return AllWords[static_cast<std::size_t>(kind)];
}

QString english(const char *text)
{
    return QLatin1String(text);
}

QString translated(const char *text)
{
    return QCoreApplication::translate("Monitor", text);
}

using Tongue = QString (*)(const char *text);

/// The words of the bits and the attributes.
QString detailOf(const WatchEvent &event, Tongue tongue)
{
    QStringList details;
    if (event.kind == EventKind::CriticalWarning || event.kind == EventKind::DriveFailing) {
        int bit = 0;
        for (const char *words : WarningWords) {
            if ((event.value & (1 << bit++)) != 0)
                details << tongue(words);
        }
        if (details.isEmpty() && event.value != 0)
            details << QStringLiteral("0x") + QString::number(event.value, 16);
    }
    if (!event.detail.isEmpty())
        details << event.detail;
    return details.join(QStringLiteral(", "));
}

QString whatHappened(const WatchEvent &event, bool fahrenheit, Tongue tongue)
{
    const Words &words = wordsOf(event.kind);
    const bool isHeat =
        event.kind == EventKind::TemperatureWarning || event.kind == EventKind::TemperatureShutDown;
    const auto number = [isHeat, fahrenheit](qint64 value) {
        return isHeat ? temperature(static_cast<int>(value), fahrenheit) : QString::number(value);
    };
    const QString detail = detailOf(event, tongue);
    const bool isFirst = words.first && event.before == 0 && detail.isEmpty();
    // In this order: a detail may hold a "%1" of its own.
    return tongue(isFirst ? words.first : words.what)
        .replace(QLatin1String("%1"), number(event.value))
        .replace(QLatin1String("%2"), number(event.before))
        .replace(QLatin1String("%3"), detail);
}

/// A field of a line: two blanks part it from the next, so it holds none.
QString field(const QString &text)
{
    const QString plain = plaintext::line(text).simplified();
    return plain.isEmpty() ? QStringLiteral("-") : plain;
}

} // namespace

Severity severityOf(EventKind kind)
{
    return wordsOf(kind).severity;
}

QString temperature(int celsius, bool fahrenheit)
{
    return QString::number(displayTemperature(celsius, fahrenheit)) + QLatin1Char(' ') + QChar(0xB0) +
           QLatin1Char(fahrenheit ? 'F' : 'C');
}

QString message(const WatchEvent &event, bool fahrenheit)
{
    QString text = whatHappened(event, fahrenheit, translated);
    if (!text.isEmpty())
        text[0] = text.at(0).toUpper();
    return text;
}

QString advice(const WatchEvent &event)
{
    const bool isHeat = event.kind == EventKind::CriticalWarning && event.value == HeatWarning;
    const char *text = wordsOf(isHeat ? EventKind::TemperatureWarning : event.kind).advice;
    return *text ? translated(text) : QString();
}

QString logLine(const WatchEvent &event, bool fahrenheit)
{
    static const char *const names[] = {"INFO", "WARNING", "CRITICAL"};
    QStringList fields{timeText(QDateTime::fromMSecsSinceEpoch(event.when)),
                       QLatin1String(names[static_cast<std::size_t>(severityOf(event.kind))])};
    if (event.disk >= 0)
        fields << QStringLiteral("Disk %1").arg(event.disk) << field(event.model) << field(event.serial);
    fields << field(whatHappened(event, fahrenheit, english));
    return fields.join(QStringLiteral("  "));
}

} // namespace eventtexts
