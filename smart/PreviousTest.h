// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QTextStream;

/// The newest self-test of a disk. Translated; null where the log does not tell.
struct PreviousTest {
    QString type;
    QString result; ///< null also of a test on the very last line
};

/// Reads the text of a self-test log up to its newest test.
PreviousTest newestTest(QTextStream &log);

/// Has the report tool tell the log of the disk of that device string, and reads it. Blocks.
PreviousTest ReadPreviousTest(const QString &device);
