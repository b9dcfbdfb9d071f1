// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QTextStream;

/// The newest self-test of a disk, for the report. Translated. A log that names no test leaves them. Main
/// thread only.
inline QString g_strLastTestType;
inline QString g_strLastTestResult;

/// Reads the text of a self-test log up to its newest test. A test on the very last line leaves the result
/// as it was.
void takePreviousTest(QTextStream &log);

/// Has the report tool tell the log of the disk of that device string, and takes it. Blocks.
void ReadPreviousTest(const QString &device);
