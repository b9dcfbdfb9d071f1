// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/simulated/PcDescription.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace simulated
{

/// Milliseconds since 1970.
using Clock = std::function<qint64()>;

/// One run of a drive's own self-test.
struct SelfTestRun {
    QString kind; ///< "Short offline" or "Extended offline", as the log shows it
    SelfTestEnd end;
    qint64 started = 0;  ///< ms since 1970
    qint64 duration = 0; ///< ms
    qint64 hours = 0;    ///< the drive's power-on time
    QString lba;         ///< first failing sector, "-" if there is none
};

/// The self-tests that the drives of a described PC run by themselves, kept in a file, so that they go on
/// when the program ends. Not for several threads at once.
class SelfTests
{
public:
    SelfTests(const QString &file, Clock clock);

    void start(int disk, SelfTestRun run);
    /// The tenths of the running test that are left, 9 to 1; empty if none runs.
    std::optional<int> remaining(int disk);
    void abort(int disk);
    /// Puts the state of the drive's tests into a text of the tool: the status, where the text tells one, and
    /// the rows of the log, where it has that. Unchanged where the drive has run no test.
    QByteArray applyTo(int disk, const QByteArray &text);

private:
    struct State {
        std::optional<SelfTestRun> running;
        QVector<SelfTestRun> log; ///< newest first
    };

    State load(int disk) const;
    void save(int disk, const State &state) const;
    State settle(int disk);
    int tenthsLeft(const SelfTestRun &run) const;

    QString m_file;
    Clock m_clock;
};

} // namespace simulated
