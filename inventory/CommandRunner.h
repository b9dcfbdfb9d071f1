// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <string>

class QTextStream;

/// The one way to run a command-line tool: hidden, through the command interpreter, without a time limit
/// where there are no runner::Limits.
/// What a tool has to say it leaves in a temp file. Returns when the command has ended or could not be
/// started; the two look the same. Runs on the calling thread and blocks it; any thread may call it.
///
/// `strFunct` is the whole command with its redirection, `strstrParams` what follows it behind one blank.
/// A line of 512 characters or more is not run at all: cut short, its redirection would name another file.
void RunSilent(const char *strFunct, const char *strstrParams);

/// The same for a command without further parameters, handed over as UTF-8.
void RunSilent(const QString &command);

/// The path of a temp file as it stands in command lines: the temp folder and the name, plainly joined.
QString tempFile(const QString &name);

/// A composed path as this machine opens it.
QString nativePath(const QString &path);

namespace runner
{

constexpr int WideBuffer = 512; ///< characters of a line, terminator included

/// What becomes of a temp file once it has been read.
enum class After { Remove, Keep };

/// Takes the text of a tool: of UTF-16 by its byte-order mark, else of the locale, in which a lone byte 0xA0
/// is the no-break blank. What a drive may have brought along to command (plaintext::lines()) is disarmed.
using OutputReader = std::function<void(QTextStream &stream)>;

/// tempFile() with a left-over of that name removed, as commands append to their file.
QString freshTempFile(const QString &name);

/// While it lives, each RunSilent() of this thread has limits, see Platform::CreateProcessAndWaitFor(); once
/// a command was ended, no further one is started. One at a time for each thread.
class Limits
{
public:
    Limits(qint32 milliseconds, std::function<bool()> mayGoOn);
    ~Limits();
    Limits(const Limits &) = delete;
    Limits &operator=(const Limits &) = delete;

    /// Whether a command was ended, or did not start.
    bool wereReached() const { return m_reached; }
    void run(const std::wstring &line);

private:
    const qint32 m_milliseconds;
    const std::function<bool()> m_mayGoOn;
    bool m_reached = false;
};

/// RunSilent() with limits, see Platform::CreateProcessAndWaitFor(): false if the command did not start or
/// was ended.
bool runWithin(const QString &command, qint32 milliseconds, const std::function<bool()> &mayGoOn);

/// Makes a fresh temp file, asks `compose` for the command that uses its path, runs it, and returns the path.
/// An empty command is not run.
QString runFresh(const QString &name, const std::function<QString(const QString &path)> &compose);

/// Opens the file at `path` (of tempFile()), hands its first 16 MiB to `read`, and removes it behind that.
/// False, with `read` not called, where there is no regular file to be opened: then the command never ran.
bool readOutput(const QString &path, const OutputReader &read, After after = After::Remove);

/// Runs `command` with its standard output in a fresh temp file, and reads that.
bool runAndRead(const QString &command, const QString &tempFileName, const OutputReader &read,
                After after = After::Remove);

} // namespace runner
