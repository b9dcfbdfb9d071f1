#pragma once

#include <QString>

class QTextStream;

/// The newest self-test of a disk, for the report. Translated. Never reset: a disk whose log names no test
/// leaves the texts of the disk before it. Main thread only.
inline QString g_strLastTestType;
inline QString g_strLastTestResult;

/// Reads the text of a self-test log up to its newest test. A test on the very last line leaves the result
/// as it was.
void takePreviousTest(QTextStream &log);

/// Has the report tool tell the log of the disk whose report was read last, and takes it. Blocks.
void ReadPreviousTest();
