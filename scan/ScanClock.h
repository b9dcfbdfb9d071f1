#pragma once

#include <QString>
#include <QTime>

#include <optional>

/// The times of a surface scan: how long it runs, and how long it will run as the first chunk has it. Goes by
/// the clock of the day, so a reading starts again at 24 hours. Main thread only.
class ScanClock
{
public:
    /// A scan begins; nothing is estimated yet.
    void start(QTime now);

    /// The first chunk took from the start to now: the whole scan will take that for as many sectors of
    /// `endSector`. Never corrected afterwards.
    void takeFirstChunk(qint64 sectors, qint64 endSector, QTime now);

    /// From here on there is no estimate.
    void forgetEstimate();

    /// "3 hours" or "12 minutes", the last minute is "0 minutes"; nothing before the first chunk.
    std::optional<QString> remainingText(QTime now) const;

    /// "3 hours", "12 minutes" or "48 seconds" since the start.
    QString elapsedText(QTime now);

    /// Milliseconds that the whole scan will take; 0 without an estimate.
    qint64 estimate() const { return m_estimate; }

private:
    int elapsed(QTime now) const;

    QTime m_started;
    qint64 m_accumulated = 0;  ///< ms
    qint64 m_firstSectors = 0; ///< above 0: there is an estimate
    qint64 m_estimate = 0;     ///< ms
};
