#include "clone/CloneFlow.h"

#include <QCoreApplication>

#include <algorithm>

namespace cloneflow
{

namespace
{

constexpr qint64 Second = 1000;
constexpr qint64 Minute = 60 * Second;
constexpr qint64 Hour = 60 * Minute;

struct Unit {
    qint64 length; ///< ms
    const char *name;
};

/// The first one that the time holds is told. Seconds are never reached, as a minute is the least.
const Unit units[] = {
    {Hour, QT_TRANSLATE_NOOP("CloneDisk", " hours")},
    {Minute, QT_TRANSLATE_NOOP("CloneDisk", " minutes")},
    {Second, QT_TRANSLATE_NOOP("CloneDisk", " seconds")},
};

QString translated(const char *text)
{
    return QCoreApplication::translate("CloneDisk", text);
}

Message message(const char *title, const char *text, const QString &second)
{
    return {translated(title), translated(text), second};
}

Message message(const char *title, const char *text, const char *second)
{
    return message(title, text, translated(second));
}

} // namespace

std::optional<Message> refusal(const Side &source, const Side &destination)
{
    const char *reason = nullptr;
    if (source.disk == destination.disk)
        reason = QT_TRANSLATE_NOOP("CloneDisk", "Source and destination disks are same.");
    else if (destination.sectors < source.sectors)
        reason = QT_TRANSLATE_NOOP("CloneDisk", "Destination disk size is smaller than source disk.");
    if (!reason)
        return std::nullopt;
    return message(QT_TRANSLATE_NOOP("CloneDisk", "Clone Disk"), reason,
                   QT_TRANSLATE_NOOP("CloneDisk", "Select different destination disk."));
}

Message failed()
{
    return message(QT_TRANSLATE_NOOP("CloneDisk", "Cloning Failed"),
                   QT_TRANSLATE_NOOP("CloneDisk", "Unable to write on destination disk."),
                   QT_TRANSLATE_NOOP("CloneDisk", "Select other destination disk."));
}

Message aborted(const QString &second)
{
    return message(QT_TRANSLATE_NOOP("CloneDisk", "Abort Clone"),
                   QT_TRANSLATE_NOOP("CloneDisk", "Cloning Aborted."), second);
}

Message finished(bool complete)
{
    if (complete)
        return message(QT_TRANSLATE_NOOP("CloneDisk", "Clone Disk"),
                       QT_TRANSLATE_NOOP("CloneDisk", "Disk Cloning complete."),
                       QT_TRANSLATE_NOOP("CloneDisk", "Disk cloning process completed successfully."));
    return message(QT_TRANSLATE_NOOP("CloneDisk", "Clone Disk"),
                   QT_TRANSLATE_NOOP("CloneDisk", "Cloning aborted."),
                   QT_TRANSLATE_NOOP("CloneDisk", "Cloning process aborted by the user."));
}

QString remainingText(qint64 remaining)
{
    const qint64 shown = std::max(remaining, Minute);
    for (const Unit &unit : units) {
        if (shown >= unit.length)
            return QString::number(shown / unit.length) + translated(unit.name);
    }
    return QString();
}

int percentDone(qint64 position, quint64 total)
{
    return total == 0 ? 0 : static_cast<int>(static_cast<quint64>(position) * 100 / total);
}

} // namespace cloneflow
