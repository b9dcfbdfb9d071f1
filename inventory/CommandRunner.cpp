// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"

#include "platform/OwnFiles.h"
#include "platform/PlainText.h"
#include "platform/Platform.h"

#include <QFile>
#include <QTextCodec>
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

namespace
{

/// A byte-order mark tells UTF-16, else the locale decides: so one reader serves both kinds of tool. One byte
/// is the same in any locale: 0xA0 behind an ASCII character is the no-break blank that groups digits on some
/// systems, and no part of a longer sequence.
QString decoded(const QByteArray &bytes)
{
    if (const QTextCodec *marked = QTextCodec::codecForUtfText(bytes, nullptr))
        return marked->toUnicode(bytes);
    const QTextCodec *locale = QTextCodec::codecForLocale();
    QString text;
    int start = 0;
    for (int at = bytes.indexOf('\xA0'); at >= 0; at = bytes.indexOf('\xA0', at + 1)) {
        if (at > start && static_cast<unsigned char>(bytes.at(at - 1)) >= 0x80)
            continue;
        text += locale->toUnicode(bytes.constData() + start, at - start) + QChar(QChar::Nbsp);
        start = at + 1;
    }
    return text + locale->toUnicode(bytes.constData() + start, bytes.size() - start);
}

} // namespace

namespace runner
{

QByteArray composeLine(const QByteArray &interpreter, const QByteArray &funct, const QByteArray &params)
{
    return interpreter + " /c " + funct + ' ' + params;
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
    const QString native = nativePath(path);
    QFile file;
    if (!ownfiles::openRegular(&file, native, QIODevice::ReadOnly))
        return false;
    QString text = plaintext::lines(
        decoded(file.read(ownfiles::MostBytes)).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    file.close();
    QTextStream stream(&text, QIODevice::ReadOnly);
    read(stream);
    if (after == After::Remove && QFile::exists(native))
        QFile::remove(native);
    return true;
}

bool runAndRead(const QString &command, const QString &tempFileName, const OutputReader &read, After after)
{
    const QString path = freshTempFile(tempFileName);
    runInto(command, path);
    return readOutput(path, read, after);
}

} // namespace runner
