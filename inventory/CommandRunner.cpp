// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"

#include "platform/Log.h"
#include "platform/OwnFiles.h"
#include "platform/PlainText.h"
#include "platform/Platform.h"

#include <QFile>
#include <QTextCodec>
#include <QTextStream>

#include <algorithm>
#include <utility>

namespace
{

/// The line as the process creation gets it; empty if it is too long.
std::wstring lineOf(const char *strFunct, const char *strstrParams)
{
    const QByteArray line = Platform::current().CommandInterpreter() + " /c " + strFunct + ' ' + strstrParams;
    if (line.size() >= runner::WideBuffer) {
        qCDebug(logs::inventory) << "too long to be run, bytes:" << line.size();
        return {};
    }
    qCDebug(logs::inventory) << "runs, bytes:" << line.size() << strFunct;
    // Each byte becomes one character of the same value: a UTF-8 sequence is not decoded.
    return QString::fromLatin1(line).toStdWString();
}

thread_local runner::Limits *limitsInForce = nullptr;

} // namespace

void RunSilent(const char *strFunct, const char *strstrParams)
{
    const std::wstring line = lineOf(strFunct, strstrParams);
    if (!line.empty() && limitsInForce)
        limitsInForce->run(line);
    else if (!line.empty())
        Platform::current().CreateProcessAndWait(line, true);
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

Limits::Limits(qint32 milliseconds, std::function<bool()> mayGoOn)
    : m_milliseconds(milliseconds), m_mayGoOn(std::move(mayGoOn))
{
    limitsInForce = this;
}

Limits::~Limits()
{
    limitsInForce = nullptr;
}

void Limits::run(const std::wstring &line)
{
    m_reached =
        m_reached || !Platform::current().CreateProcessAndWaitFor(line, m_milliseconds, m_mayGoOn, true);
}

QString freshTempFile(const QString &name)
{
    const QString path = tempFile(name);
    QFile::remove(nativePath(path));
    return path;
}

bool runWithin(const QString &command, qint32 milliseconds, const std::function<bool()> &mayGoOn)
{
    const std::wstring line = lineOf(command.toUtf8().constData(), "");
    return !line.empty() && Platform::current().CreateProcessAndWaitFor(line, milliseconds, mayGoOn, true);
}

QString runFresh(const QString &name, const std::function<QString(const QString &path)> &compose)
{
    const QString path = freshTempFile(name);
    const QString command = compose(path);
    if (!command.isEmpty())
        RunSilent(command);
    return path;
}

bool readOutput(const QString &path, const OutputReader &read, After after)
{
    const QString native = nativePath(path);
    QFile file;
    if (!ownfiles::openRegular(&file, native, QIODevice::ReadOnly)) {
        qCDebug(logs::inventory) << "the tool left nothing:" << native;
        return false;
    }
    // QFile::read() reserves memory for as much as it is asked for.
    const QByteArray bytes = file.read(std::min(file.size(), ownfiles::MostBytes));
    QString text = plaintext::lines(decoded(bytes).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    file.close();
    QTextStream stream(&text, QIODevice::ReadOnly);
    read(stream);
    if (after == After::Remove)
        QFile::remove(native);
    return true;
}

bool runAndRead(const QString &command, const QString &tempFileName, const OutputReader &read, After after)
{
    const auto intoFile = [&command](const QString &path) { return command + QLatin1String(" >> ") + path; };
    return readOutput(runFresh(tempFileName, intoFile), read, after);
}

} // namespace runner
