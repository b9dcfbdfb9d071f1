#include "inventory/CommandRunner.h"

#include "platform/Platform.h"

#include <QFile>
#include <QTextStream>

void RunSilent(const char *strFunct, const char *strstrParams)
{
    Platform &platform = Platform::current();
    const QByteArray line = runner::composeLine(platform.CommandInterpreter(), strFunct, strstrParams);
    const std::wstring wide = runner::widen(line);
    if (line.size() >= runner::NarrowBuffer || wide.size() >= static_cast<std::size_t>(runner::WideBuffer))
        return;
    platform.CreateProcessAndWait(wide, true);
}

void RunSilent(const QString &command)
{
    RunSilent(command.toUtf8().constData(), "");
}

QString tempFile(const QString &name)
{
    return Platform::current().GetTempPathW() + name;
}

QString nativePath(const QString &path)
{
    return Platform::current().NativePath(path);
}

namespace runner
{

QByteArray composeLine(const QByteArray &interpreter, const QByteArray &funct, const QByteArray &params)
{
    return (interpreter.isEmpty() ? QByteArray("CMD.EXE") : interpreter) + " /c " + funct + ' ' + params;
}

std::wstring widen(const QByteArray &bytes)
{
    std::wstring wide;
    wide.reserve(static_cast<std::size_t>(bytes.size()));
    for (const char byte : bytes)
        wide.push_back(static_cast<wchar_t>(static_cast<unsigned char>(byte)));
    return wide;
}

QString freshTempFile(const QString &name)
{
    const QString path = tempFile(name);
    const QString native = nativePath(path);
    if (QFile::exists(native))
        QFile::remove(native);
    return path;
}

void runInto(const QString &command, const QString &path)
{
    RunSilent(command + QLatin1String(" >> ") + path);
}

bool readOutput(const QString &path, const OutputReader &read, After after)
{
    QFile file(nativePath(path));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    // No codec is set: the byte-order mark alone tells the two kinds of tool apart.
    QTextStream stream(&file);
    read(stream);
    file.close();
    if (after == After::Remove && file.exists())
        file.remove();
    return true;
}

bool runAndRead(const QString &command, const QString &tempFileName, const OutputReader &read, After after)
{
    const QString path = freshTempFile(tempFileName);
    runInto(command, path);
    return readOutput(path, read, after);
}

} // namespace runner
