// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SelfTestText.h"

#include "smart/TextCuts.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QRegularExpression>
#include <QStringList>
#include <QTextStream>

#include <algorithm>

namespace selftest
{

namespace
{

/// Reads on to a line that holds `phrase`; empty at the end of the text.
std::optional<QString> readOnTo(QTextStream &text, const char *phrase)
{
    while (!text.atEnd()) {
        const QString line = text.readLine();
        if (line.contains(QLatin1String(phrase)))
            return line;
    }
    return std::nullopt;
}

/// The number behind the last colon of a line.
int numberOf(const QString &line, std::initializer_list<const char *> around)
{
    return cuts::without(cuts::lastPart(line, QStringLiteral(":")), around).toInt();
}

/// The first row whose words the line holds; null if there is none.
template<typename Row, std::size_t N>
const Row *firstHeld(const QString &line, const Row (&rows)[N])
{
    const auto held = [&line](const Row &row) { return line.contains(QLatin1String(row.words)); };
    const Row *found = std::find_if(rows, rows + N, held);
    return found == rows + N ? nullptr : found;
}

struct StatusPhrase {
    const char *first;
    const char *then; ///< in a later line
    Told told;
};

constexpr char Having[] = "The previous self-test completed having";

constexpr StatusPhrase StatusPhrases[] = {
    {"Self-test routine in progress...", "of test remaining", Told::InProgress},
    {"The previous self-test routine completed", "without error or no self-test has ever", Told::Completed},
    {Having, "the read element of the test failed.", Told::ReadFailure},
    {"The self-test routine was aborted by", "the host", Told::Aborted},
    {"The self-test routine was interrupted", "by the host with a hard or soft reset", Told::Interrupted},
    {"A fatal error or unknown test error", "occurred while the device was executing", Told::FatalError},
    {Having, "a test element that failed and the test", Told::UnknownElement},
    {Having, "the electrical element of the test", Told::Electrical},
    {Having, "the servo (and/or seek) element of the", Told::Servo},
    {Having, "device is suspected of having handling", Told::Handling},
};

/// The results of an NVMe drive's log. What another command of the host ended was interrupted by it.
struct NvmeResult {
    const char *words;
    Told told;
};

constexpr NvmeResult NvmeResults[] = {
    {"Completed without error", Told::Completed},
    {"Aborted: Self-test command", Told::Aborted},
    {"Aborted: Controller Reset", Told::Interrupted},
    {"Aborted: Namespace removed", Told::Interrupted},
    {"Aborted: Format NVM command", Told::Interrupted},
    {"Aborted: sanitize operation", Told::Interrupted},
    {"Fatal or unknown test error", Told::FatalError},
    {"Aborted: unknown reason", Told::FatalError},
    {"Completed: unknown failed segment", Told::UnknownElement},
    {"Completed: failed segments", Told::UnknownElement},
};

struct LogPhrase {
    const char *words;
    const char *shown;
};

constexpr LogPhrase LogTypes[] = {
    {"Extended offline", QT_TRANSLATE_NOOP("MainWindow", "Extended Self-test")},
    {"Short offline", QT_TRANSLATE_NOOP("MainWindow", "Short Self-test")},
};

constexpr LogPhrase LogResults[] = {
    {"Aborted by host", QT_TRANSLATE_NOOP("MainWindow", "Aborted by User")},
    {"Completed without error", QT_TRANSLATE_NOOP("MainWindow", "Successfully Completed")},
    {"Completed: read failure", QT_TRANSLATE_NOOP("MainWindow", "Failed by Read Element")},
    {"Interrupted (host reset)", QT_TRANSLATE_NOOP("MainWindow", "Test Interrupted by the Host")},
    {"Fatal or unknown error", QT_TRANSLATE_NOOP("MainWindow", "Test ended by Fatal or Unknown Error")},
    {"Completed: unknown failure", QT_TRANSLATE_NOOP("MainWindow", "Test failed by Unknown Element")},
    {"Completed: electrical failure", QT_TRANSLATE_NOOP("MainWindow", "Test failed by Electrical Element")},
    {"Completed: servo/seek failure", QT_TRANSLATE_NOOP("MainWindow", "Test failed by Servo Element")},
    {"Completed: handling damage", QT_TRANSLATE_NOOP("MainWindow", "Test failed, Handling Damage suspected")},
    {"", QT_TRANSLATE_NOOP("MainWindow", "Not Available")}, // any other line
};

/// In the order of Told.
constexpr const char *ShownWords[] = {
    QT_TRANSLATE_NOOP("MainWindow", "Successfully Completed"),
    QT_TRANSLATE_NOOP("MainWindow", "Test Aborted by User"),
    QT_TRANSLATE_NOOP("MainWindow", "Test Interrupted by the Host"),
    QT_TRANSLATE_NOOP("MainWindow", "Test ended by Fatal or Unknown Error"),
    QT_TRANSLATE_NOOP("MainWindow", "Test failed by Unknown Element"),
    QT_TRANSLATE_NOOP("MainWindow", "Test failed by Electrical Element"),
    QT_TRANSLATE_NOOP("MainWindow", "Test failed by Servo Element"),
    QT_TRANSLATE_NOOP("MainWindow", "Test failed by Read Element"),
    QT_TRANSLATE_NOOP("MainWindow", "Test failed, Handling Damage suspected"),
    QT_TRANSLATE_NOOP("MainWindow", "Test ended with Unknown Status"),
    QT_TRANSLATE_NOOP("MainWindow", "No Status from the Drive"),
    QT_TRANSLATE_NOOP("MainWindow", "Running, no problems found"),
};

QVector<StatusEvent> readPhrases(const QStringList &lines)
{
    QVector<StatusEvent> events;
    const StatusPhrase *begun = nullptr;
    for (const QString &line : lines) {
        for (const StatusPhrase &phrase : StatusPhrases) {
            if (!begun && line.contains(QLatin1String(phrase.first))) {
                begun = &phrase;
                break;
            }
            if (!begun || qstrcmp(begun->first, phrase.first) != 0 ||
                !line.contains(QLatin1String(phrase.then)))
                continue;
            events.append({phrase.told, phrase.told == Told::InProgress
                                            ? numberOf(line, {"of test remaining.", "%"})
                                            : 0});
            begun = nullptr;
            break;
        }
    }
    return events;
}

/// The code of an ATA drive: the status in its upper half, the tenths that are left in the lower one.
std::optional<StatusEvent> readCode(const QStringList &lines)
{
    static const QRegularExpression pattern(
        QStringLiteral("Self-test execution status:\\s*\\(\\s*([0-9]+)\\)"));
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = pattern.match(line);
        if (!match.hasMatch())
            continue;
        const int code = match.captured(1).toInt();
        const int status = code >> 4;
        if (status == 15)
            return StatusEvent{Told::InProgress, (code & 15) * 10};
        return StatusEvent{status <= static_cast<int>(Told::Handling) ? static_cast<Told>(status)
                                                                      : Told::UnknownStatus};
    }
    return std::nullopt;
}

std::optional<StatusEvent> readNvme(const QStringList &lines)
{
    static const QRegularExpression running(
        QStringLiteral("self-test in progress \\(([0-9]+)% completed\\)"));
    static const QRegularExpression newest(QStringLiteral("^ *0  +[A-Z]"));
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = running.match(line);
        if (match.hasMatch())
            return StatusEvent{Told::InProgress, 100 - match.captured(1).toInt()};
        if (!newest.match(line).hasMatch())
            continue;
        const NvmeResult *result = firstHeld(line, NvmeResults);
        return StatusEvent{result ? result->told : Told::UnknownStatus};
    }
    return std::nullopt;
}

/// The power-on hours behind the words of a row, and behind the percent that remained.
std::optional<qint64> hoursIn(const QString &row)
{
    static const QRegularExpression hours(QStringLiteral("^ *(?:[0-9]+% +)?([0-9]+)(?: |$)"));
    bool isNumber = false;
    const qint64 number = hours.match(row).captured(1).toLongLong(&isNumber);
    return isNumber ? std::optional<qint64>(number) : std::nullopt;
}

} // namespace

Capabilities readCapabilities(QTextStream &text, std::optional<SelfTestKind> kind)
{
    Capabilities found;
    found.supported = readOnTo(text, "Self-test supported.").has_value();
    if (!kind)
        return found;
    readOnTo(text, *kind == SelfTestKind::Short ? "Short self-test routine" : "Extended self-test routine");
    if (const auto line = readOnTo(text, "recommended polling time:"))
        found.minutes = numberOf(*line, {"minutes.", "(", ")"});
    return found;
}

QVector<StatusEvent> readStatus(QTextStream &text)
{
    const QStringList lines = text.readAll().split(QLatin1Char('\n'));
    QVector<StatusEvent> events = readPhrases(lines);
    for (const auto &read : {readCode, readNvme}) {
        if (const auto event = events.isEmpty() ? read(lines) : std::nullopt)
            events.append(*event);
    }
    if (events.isEmpty())
        events.append({Told::NoStatus});
    return events;
}

PreviousTest newestTest(QTextStream &log)
{
    PreviousTest test;
    while (!log.atEnd()) {
        const QString line = log.readLine();
        const LogPhrase *type = firstHeld(line, LogTypes);
        if (!type)
            continue;
        test.type = QCoreApplication::translate("MainWindow", type->shown);
        if (!log.atEnd())
            test.result = QCoreApplication::translate("MainWindow", firstHeld(line, LogResults)->shown);
        break;
    }
    return test;
}

LoggedTest newestLogged(QTextStream &report)
{
    // A row's number, the kind of test and how it ended; two blanks part them, except where the words are
    // long.
    static const QRegularExpression row(
        QStringLiteral("^(?:# *[0-9]+|  ?[0-9]+)  +((?:Short|Extended|Conveyance|Selective|Vendor|Background|"
                       "Foreground|Offline|Reserved)[^:]*?)  +((?:Completed|Aborted|Interrupted|Fatal|"
                       "Unknown|Failed|Self).*)$"));
    constexpr int LongestRow = 200;
    constexpr int MarkedRows = 19; // a test that runs pushes the oldest ones out
    int rows = 0;
    LoggedTest newest;
    QCryptographicHash log(QCryptographicHash::Sha1);
    while (!report.atEnd()) {
        const QRegularExpressionMatch match = row.match(report.readLine().left(LongestRow));
        const QString told = match.captured(2);
        // A test that runs has a row, too, with a number that changes.
        if (!match.hasMatch() || told.contains(QLatin1String("in progress"), Qt::CaseInsensitive))
            continue;
        if (newest.words.isEmpty()) {
            newest.words = told.section(QLatin1String("  "), 0, 0).trimmed();
            newest.hours = hoursIn(told.mid(newest.words.size()));
        }
        if (rows++ < MarkedRows)
            log.addData((match.captured(1) + told).simplified().toUtf8());
    }
    newest.failed = cuts::holdsOneOf(
        newest.words, {"Completed:", "failure", "handling damage", "Fatal or unknown", "Failed in segment"});
    if (!newest.words.isEmpty())
        newest.mark = QString::fromLatin1(log.result().toHex());
    return newest;
}

const char *shownWords(Told told)
{
    return ShownWords[static_cast<std::size_t>(told)];
}

JobEnd jobEnd(Told told)
{
    const JobEnd::Result result = told == Told::Completed ? JobEnd::Result::Well
                                  : told == Told::Aborted ? JobEnd::Result::Stopped
                                                          : JobEnd::Result::Failed;
    return {JobState::Job::SelfTest, result, QCoreApplication::translate("MainWindow", shownWords(told))};
}

bool isResult(Told told)
{
    return told == Told::Completed || (told >= Told::FatalError && told <= Told::Handling);
}

int percentDone(int remaining)
{
    return static_cast<qint32>(100u - static_cast<quint32>(remaining));
}

bool isOver(int remaining)
{
    return static_cast<quint32>(percentDone(remaining)) >= 100u;
}

} // namespace selftest
