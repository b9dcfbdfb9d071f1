#include "smart/SelfTestText.h"

#include "smart/TextCuts.h"

#include <QTextStream>

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

struct StatusPhrase {
    const char *first;
    const char *then;
    Told told;
};

constexpr StatusPhrase StatusPhrases[] = {
    {"Self-test routine in progress...", "of test remaining", Told::InProgress},
    {"The previous self-test routine completed", "without error or no self-test has ever", Told::Completed},
    {"The previous self-test completed having", "the read element of the test failed.", Told::ReadFailure},
};

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
    QVector<StatusEvent> events;
    while (!text.atEnd()) {
        const QString line = text.readLine();
        for (const StatusPhrase &phrase : StatusPhrases) {
            if (!line.contains(QLatin1String(phrase.first)))
                continue;
            if (const auto rest = readOnTo(text, phrase.then))
                events.append({phrase.told, phrase.told == Told::InProgress
                                                ? numberOf(*rest, {"of test remaining.", "%"})
                                                : 0});
            break;
        }
    }
    return events;
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
