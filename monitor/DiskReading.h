// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/AttributeHistory.h"
#include "smart/DriveVerdict.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// What one run of the report tool tells of a disk, as plain values. What it does not tell is nothing, an
/// empty text or 0.
struct DiskReading {
    enum class Answer {
        Report,
        Asleep,       ///< the disk sleeps and was not woken
        NoAnswer,     ///< the tool was ended, or could not open the disk or talk to it
        NotSupported, ///< an answer without SMART data
    };

    /// A row of the report as the outside gets it.
    struct Attribute {
        int id = 0; ///< 0: an NVMe drive's row has none
        QString name;
        int value = 0; ///< as are the next two
        int worst = 0;
        int threshold = 0;
        QString raw;
        bool failed = false; ///< as on the screen
    };

    Answer answer = Answer::NoAnswer;
    QString model;
    QString serial;
    QString firmware;
    qint64 bytes = 0;
    bool nvme = false;
    bool rotating = false; ///< true where an ATA drive does not say that it is none
    DriveVerdict verdict = DriveVerdict::NotTold;
    std::optional<int> celsius;        ///< 1 to 120
    std::optional<int> warningCelsius; ///< at which an NVMe drive warns by itself
    std::optional<int> health;         ///< percent, as are the next ones
    std::optional<int> performance;
    std::optional<int> wear;
    std::optional<int> spare;
    std::optional<int> spareThreshold;
    std::optional<qint64> lifeDays;
    std::optional<qint64> powerOnHours;
    std::optional<qint64> reallocated;
    std::optional<qint64> pending;
    std::optional<qint64> uncorrectable;
    std::optional<qint64> mediaErrors;
    std::optional<uint> criticalWarning; ///< bits of an NVMe drive
    bool attention = false;              ///< some of these figures are no good ones
    QStringList failing;                 ///< keys of the attributes that fail now, but those of heat
    QString selfTest;                    ///< the tool's words for the newest self-test if it failed
    QString selfTestMark;                ///< differs between two self-tests; empty without one
    std::optional<qint64> selfTestHours; ///< power-on hours at the end of the newest one
    std::optional<double> written;       ///< bytes
    std::vector<Attribute> attributes;
    std::vector<HistoryValue> history; ///< what the history keeps of a day
};

/// The highest number that counts as a temperature, °C.
constexpr int HottestCelsius = 120;

/// The bytes that were written to a disk of these rows; nothing where no row tells.
std::optional<double> writtenOf(const std::vector<DiskReading::Attribute> &rows);

/// Reads what the tool wrote.
DiskReading readingOf(const QString &text);
