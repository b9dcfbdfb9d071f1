// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/CloneMessages.h"

#include <QCoreApplication>

#include <algorithm>

namespace clonemessages
{

namespace
{

constexpr qint64 Minute = 60000; ///< ms
constexpr qint64 Hour = 60 * Minute;

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

struct FaultText {
    CloneFault fault;
    const char *text;
};

const FaultText faultTexts[] = {
    {CloneFault::NoDisks, QT_TRANSLATE_NOOP("CloneDisk", "The disks are not there any more.")},
    {CloneFault::NoMemory, QT_TRANSLATE_NOOP("CloneDisk", "There is not enough memory.")},
    {CloneFault::SourceNotOpen, QT_TRANSLATE_NOOP("CloneDisk", "The source disk cannot be opened.")},
    {CloneFault::DestinationNotOpen,
     QT_TRANSLATE_NOOP("CloneDisk", "The destination disk cannot be opened.")},
    {CloneFault::SourceIsAnother,
     QT_TRANSLATE_NOOP("CloneDisk", "The source disk is not the one that was chosen.")},
    {CloneFault::DestinationIsAnother,
     QT_TRANSLATE_NOOP("CloneDisk", "The destination disk is not the one that was chosen.")},
    {CloneFault::SourceEmpty, QT_TRANSLATE_NOOP("CloneDisk", "The source disk has no sectors.")},
    {CloneFault::DestinationSmaller,
     QT_TRANSLATE_NOOP("CloneDisk", "Destination disk size is smaller than source disk.")},
    {CloneFault::DestinationOfSystem,
     QT_TRANSLATE_NOOP("CloneDisk", "The system runs from the destination disk.")},
    {CloneFault::DestinationMounted,
     QT_TRANSLATE_NOOP("CloneDisk", "A volume of the destination disk is in use.")},
    {CloneFault::DestinationHeld, QT_TRANSLATE_NOOP("CloneDisk", "The destination disk is in use.")},
    {CloneFault::DestinationUnknown,
     QT_TRANSLATE_NOOP("CloneDisk", "It cannot be found out whether the destination disk is in use.")},
    {CloneFault::DestinationTakesNothing,
     QT_TRANSLATE_NOOP("CloneDisk", "The destination disk cannot be written. It may be in use.")},
    {CloneFault::SourceGone, QT_TRANSLATE_NOOP("CloneDisk", "The source disk does not answer any more.")},
    {CloneFault::DestinationGone,
     QT_TRANSLATE_NOOP("CloneDisk", "The destination disk does not answer any more.")},
};

QString faultText(const CloneOutcome &outcome)
{
    for (const FaultText &known : faultTexts) {
        if (known.fault == outcome.fault)
            return translated(known.text) +
                   (outcome.detail.isEmpty() ? QString() : QLatin1Char(' ') + outcome.detail);
    }
    return {};
}

QString lossText(const LostSectors &lost)
{
    const QString counts =
        translated(QT_TRANSLATE_NOOP("CloneDisk", "%1 sectors could not be read and were filled with zeros. "
                                                  "%2 sectors could not be written."))
            .arg(lost.unread.count())
            .arg(lost.unwritten.count());
    const char *const unconfirmed =
        QT_TRANSLATE_NOOP("CloneDisk", "The destination disk did not confirm that all data is stored.");
    return lost.unconfirmed ? counts + QLatin1Char(' ') + translated(unconfirmed) : counts;
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

Message finished(const CloneOutcome &outcome)
{
    const char *const usual = QT_TRANSLATE_NOOP("CloneDisk", "Clone Disk");
    switch (outcome.end) {
    case CloneOutcome::End::Complete:
        return message(usual, QT_TRANSLATE_NOOP("CloneDisk", "Disk Cloning complete."),
                       QT_TRANSLATE_NOOP("CloneDisk", "Disk cloning process completed successfully."));
    case CloneOutcome::End::WithErrors:
        return message(usual, QT_TRANSLATE_NOOP("CloneDisk", "Disk Cloning complete with errors."),
                       lossText(outcome.lost));
    case CloneOutcome::End::Stopped:
        return message(usual, QT_TRANSLATE_NOOP("CloneDisk", "Cloning aborted."),
                       QT_TRANSLATE_NOOP("CloneDisk", "Cloning process aborted by the user."));
    case CloneOutcome::End::Refused:
        return {translated(usual), faultText(outcome),
                translated(QT_TRANSLATE_NOOP("CloneDisk", "Nothing was written on any disk."))};
    case CloneOutcome::End::Failed:
        break;
    }
    return {translated(QT_TRANSLATE_NOOP("CloneDisk", "Cloning Failed")), faultText(outcome),
            translated(QT_TRANSLATE_NOOP("CloneDisk", "The destination disk holds no complete copy."))};
}

JobEnd jobEnd(const CloneOutcome &outcome)
{
    const Message message = finished(outcome);
    switch (outcome.end) {
    case CloneOutcome::End::Complete:
        return {JobState::Job::Clone, JobEnd::Result::Well, message.second};
    case CloneOutcome::End::WithErrors:
        return {JobState::Job::Clone, JobEnd::Result::WithFaults, message.second};
    case CloneOutcome::End::Stopped:
        return {JobState::Job::Clone, JobEnd::Result::Stopped, message.second};
    default:
        return {JobState::Job::Clone, JobEnd::Result::Failed, message.text};
    }
}

QString remainingText(qint64 remaining)
{
    if (remaining >= Hour)
        return QString::number(remaining / Hour) + translated(QT_TRANSLATE_NOOP("CloneDisk", " hours"));
    return QString::number(std::max<qint64>(1, remaining / Minute)) +
           translated(QT_TRANSLATE_NOOP("CloneDisk", " minutes"));
}

QString gaugeText(int percent)
{
    return translated(QT_TRANSLATE_NOOP("CloneDisk", "%1 % of the disk copied")).arg(percent);
}

int percentDone(qint64 position, quint64 total)
{
    return total == 0 ? 0 : static_cast<int>(static_cast<quint64>(position) * 100 / total);
}

} // namespace clonemessages
