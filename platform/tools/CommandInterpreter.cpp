// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/tools/CommandInterpreter.h"

#include "platform/OwnFiles.h"

#include <QFile>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>

namespace tools
{

namespace
{

const QString RunSwitch = QStringLiteral(" /c ");
const QString AppendSign = QStringLiteral(">>");

QString baseNameOf(const QString &program)
{
    QString name = program;
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    name = name.mid(name.lastIndexOf(QLatin1Char('/')) + 1).toLower();
    if (name.endsWith(QLatin1String(".exe")))
        name.chop(4);
    return name;
}

/// A stage of a pipe: its words, and the file for its output, if it does not go to the next stage.
struct Stage {
    QStringList words;
    bool redirected = false;
    QString target;
};

/// What stands behind the switch; null without one.
QString commandOf(const std::wstring &line)
{
    const QString text = QString::fromStdWString(line);
    const int runSwitch = text.indexOf(RunSwitch, 0, Qt::CaseInsensitive);
    return runSwitch < 0 ? QString() : text.mid(runSwitch + RunSwitch.size());
}

Stage parseStage(QString text)
{
    static const QRegularExpression blank(QStringLiteral("[ \\t]"));
    Stage stage;
    const int sign = text.indexOf(AppendSign);
    if (sign >= 0) {
        stage.redirected = true;
        QString behind = text.mid(sign + AppendSign.size());
        while (!behind.isEmpty() && behind.at(0).isSpace())
            behind.remove(0, 1);
        const int end = behind.indexOf(blank);
        stage.target = behind.left(end);
        // Words behind the target are arguments of the tool, too.
        text = text.left(sign) + QLatin1Char(' ') + (end < 0 ? QString() : behind.mid(end));
    }
    stage.words = text.split(blank, Qt::SkipEmptyParts);
    return stage;
}

} // namespace

void CommandInterpreter::addTool(const QString &baseName, Tool tool, int milliseconds)
{
    m_tools.insert(baseName.toLower(), {std::move(tool), milliseconds});
}

/// The target stays open from the tool's start to its end. Where it is removed meanwhile, the rest goes to
/// the file without a name, as with a real process.
void CommandInterpreter::write(const QByteArray &output, int milliseconds, QFile *target)
{
    constexpr int Pieces = 8;
    const int pieces = milliseconds > 0 ? Pieces : 1;
    for (int piece = 0; piece < pieces; ++piece) {
        QThread::msleep(
            static_cast<unsigned long>((piece + 1) * milliseconds / pieces - piece * milliseconds / pieces));
        const int from = static_cast<int>(qint64(output.size()) * piece / pieces);
        const int to = static_cast<int>(qint64(output.size()) * (piece + 1) / pieces);
        if (target->isOpen()) {
            target->write(output.constData() + from, to - from);
            target->flush();
        }
    }
}

bool CommandInterpreter::run(const std::wstring &line,
                             const std::function<QString(const QString &)> &nativePath) const
{
    const QString command = commandOf(line);
    if (command.isNull())
        return false;

    QByteArray piped;
    const QStringList stages = command.split(QLatin1Char('|'));
    for (const QString &stageText : stages) {
        const Stage stage = parseStage(stageText);
        QFile target;
        // The target is opened before the tool starts: a tool whose output has nowhere to go does not run.
        const bool hasTarget = stage.redirected && !stage.target.isEmpty() &&
                               ownfiles::openRegular(&target, nativePath(stage.target),
                                                     QIODevice::WriteOnly | QIODevice::Append);
        QByteArray output;
        if (!stage.words.isEmpty() && (hasTarget || !stage.redirected)) {
            const auto entry = m_tools.constFind(baseNameOf(stage.words.first()));
            if (entry != m_tools.constEnd()) {
                output = entry->tool(stage.words.mid(1), piped);
                write(output, entry->milliseconds, &target);
            }
        }
        piped = stage.redirected ? QByteArray() : output;
    }
    return true;
}

QString CommandInterpreter::programOf(const std::wstring &line)
{
    return parseStage(commandOf(line).section(QLatin1Char('|'), 0, 0)).words.value(0);
}

std::wstring CommandInterpreter::withFolder(const std::wstring &line, const QString &folder)
{
    const std::wstring name = programOf(line).toStdWString();
    const std::wstring start = L" /c " + name;
    const std::size_t at = name.empty() ? std::wstring::npos : line.find(start);
    if (at == std::wstring::npos)
        return line;
    const std::wstring path = folder.toStdWString() + L'\\' + name;
    const std::wstring interpreter = line.substr(0, at);
    const std::wstring rest = line.substr(at + start.size());
    if (!breaksCommands(folder))
        return interpreter + L" /c " + path + rest;
    // With this switch the interpreter takes the outer quotes off, whatever stands between them.
    return interpreter + L" /s /c \"\"" + path + L'"' + rest + L'"';
}

bool CommandInterpreter::breaksCommands(const QString &path)
{
    const QLatin1String special(" \t&|<>()^%\"!,;=");
    return std::any_of(path.cbegin(), path.cend(), [&special](QChar letter) {
        return letter.unicode() > 126 || std::find(special.begin(), special.end(), letter) != special.end();
    });
}

} // namespace tools
