// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <string>

class QTextStream;

/// The one way to run a command-line tool: hidden, through the command interpreter, without a time limit.
/// What a tool has to say it leaves in a temp file. Returns when the command has ended or could not be
/// started; the two look the same. Runs on the calling thread and blocks it; any thread may call it.
///
/// `strFunct` is the whole command with its redirection, `strstrParams` what follows it behind one blank.
/// A line that does not fit the buffers of 4096 bytes and 512 characters is not run at all: cut short, its
/// redirection would name another file.
void RunSilent(const char *strFunct, const char *strstrParams);

/// The same for a command without further parameters, handed over as UTF-8.
void RunSilent(const QString &command);

/// The path of a temp file as it stands in command lines: the temp folder and the name, plainly joined.
QString tempFile(const QString &name);

/// A composed path as this machine opens it.
QString nativePath(const QString &path);

namespace runner
{

constexpr int NarrowBuffer = 4096; ///< bytes of a composed line, terminator included
constexpr int WideBuffer = 512;    ///< characters of a widened line, terminator included

/// "<interpreter> /c <funct> <params>".
QByteArray composeLine(const QByteArray &interpreter, const QByteArray &funct, const QByteArray &params);

/// Each byte becomes one character of the same value: a UTF-8 sequence is not decoded.
std::wstring widen(const QByteArray &bytes);

/// What becomes of a temp file once it has been read.
enum class After { Remove, Keep };

/// Takes the text of a tool: of UTF-16 by its byte-order mark, else of the locale, in which a lone byte 0xA0
/// is the no-break blank. What a drive may have brought along to command (plaintext::lines()) is disarmed.
using OutputReader = std::function<void(QTextStream &stream)>;

/// tempFile() with a left-over of that name removed, as commands append to their file.
QString freshTempFile(const QString &name);

/// Runs `command` with its standard output appended to `path`, a path of tempFile().
void runInto(const QString &command, const QString &path);

/// Opens the file at `path` (of tempFile()), hands its first 16 MiB to `read`, and removes it behind that.
/// False, with `read` not called, where there is no regular file to be opened: then the command never ran.
bool readOutput(const QString &path, const OutputReader &read, After after = After::Remove);

/// The three steps at once, for a command that is read right behind its run.
bool runAndRead(const QString &command, const QString &tempFileName, const OutputReader &read,
                After after = After::Remove);

} // namespace runner
