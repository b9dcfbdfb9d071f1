// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <string>

class QFile;

namespace tools
{

/// A tool behind the interpreter: takes the words behind its name and what is piped in, gives its standard
/// output. Runs on the thread of the caller; several runs may happen at once.
using Tool = std::function<QByteArray(const QStringList &arguments, const QByteArray &input)>;

/// Takes the place of Windows' command interpreter on other systems. Understands the lines that the program
/// composes: tools with arguments, " | " between them and one " >> " at the end.
class CommandInterpreter
{
public:
    /// `baseName` is the file name without folder and ".exe", in any letter case. The tool's output reaches a
    /// redirection target in pieces over so many milliseconds; 0: at once.
    void addTool(const QString &baseName, Tool tool, int milliseconds = 0);

    /// Runs "<interpreter> /c <command>". The redirection target is the text behind ">>" up to the next
    /// blank, as the real interpreter takes it, each element of `line` being one character; `nativePath`
    /// turns it into a path of this machine. A tool that is not known leaves the target empty, as an unknown
    /// command does there. False where the line has no " /c ".
    bool run(const std::wstring &line, const std::function<QString(const QString &)> &nativePath) const;

    /// The program that such a line starts first, as it is written there; empty where there is none.
    static QString programOf(const std::wstring &line);

    /// The line with `folder`, written with backslashes, in front of that program's name.
    static std::wstring withFolder(const std::wstring &line, const QString &folder);

    /// True for a path that does not pass through a line as it is: lines quote nothing, and reach the
    /// interpreter byte by byte.
    static bool breaksCommands(const QString &path);

private:
    struct Entry {
        Tool tool;
        int milliseconds = 0;
    };

    static void write(const QByteArray &output, int milliseconds, QFile *target);

    QHash<QString, Entry> m_tools;
};

} // namespace tools
