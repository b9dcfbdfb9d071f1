#include "platform/tools/CommandInterpreter.h"

#include <QFile>
#include <QRegularExpression>

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

/// A stage of a pipe: its words, and where its output goes if not to the next stage.
struct Stage {
    QStringList words;
    bool redirected = false;
    QString target;
};

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
        // What stands behind the target still belongs to the tool.
        text = text.left(sign) + QLatin1Char(' ') + (end < 0 ? QString() : behind.mid(end));
    }
    stage.words = text.split(blank, Qt::SkipEmptyParts);
    return stage;
}

} // namespace

void CommandInterpreter::addTool(const QString &baseName, Tool tool)
{
    m_tools.insert(baseName.toLower(), std::move(tool));
}

bool CommandInterpreter::run(const std::wstring &line,
                             const std::function<QString(const QString &)> &nativePath) const
{
    const QString text = QString::fromStdWString(line);
    const int runSwitch = text.indexOf(RunSwitch, 0, Qt::CaseInsensitive);
    if (runSwitch < 0)
        return false;

    QByteArray piped;
    const QStringList stages = text.mid(runSwitch + RunSwitch.size()).split(QLatin1Char('|'));
    for (const QString &stageText : stages) {
        const Stage stage = parseStage(stageText);
        QFile target(nativePath(stage.target));
        // The target is opened before the tool starts: a tool whose output has nowhere to go does not run.
        const bool hasTarget = stage.redirected && !stage.target.isEmpty() &&
                               target.open(QIODevice::WriteOnly | QIODevice::Append);
        QByteArray output;
        if (!stage.words.isEmpty() && (hasTarget || !stage.redirected)) {
            const auto tool = m_tools.constFind(baseNameOf(stage.words.first()));
            if (tool != m_tools.constEnd())
                output = (*tool)(stage.words.mid(1), piped);
        }
        if (hasTarget)
            target.write(output);
        piped = stage.redirected ? QByteArray() : output;
    }
    return true;
}

} // namespace tools
