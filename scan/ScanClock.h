// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

/// The times of a surface scan: how long it has run, and how long it will run, estimated from the first
/// chunk. Main thread only. `elapsed` is milliseconds since the scan began.
class ScanClock
{
public:
    /// Estimates the whole scan of `endSector` sectors from its first chunk, of which `sectors` took
    /// `elapsed`. Never corrected afterwards.
    void takeFirstChunk(qint64 sectors, qint64 endSector, qint64 elapsed);

    /// From here on there is no estimate.
    void forgetEstimate() { m_estimate.reset(); }

    /// "3 hours" or "12 minutes", the last minute is "0 minutes"; nothing before the first chunk.
    std::optional<QString> remainingText(qint64 elapsed) const;

    /// "3 hours", "12 minutes" or "48 seconds".
    static QString elapsedText(qint64 elapsed);

private:
    std::optional<qint64> m_estimate; ///< ms
};
