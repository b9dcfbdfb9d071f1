// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LogonEntry.h"

#include "platform/OwnFiles.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace logonentry
{

namespace
{

/// A value on one line.
QString plain(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    return text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

/// A word of the Exec line: quoted first, then written as a value, and its percent signs are no field codes.
QString quoted(const QString &word)
{
    QString inner;
    for (const QChar c : word) {
        if (c == QLatin1Char('"') || c == QLatin1Char('`') || c == QLatin1Char('$') || c == QLatin1Char('\\'))
            inner += QLatin1Char('\\');
        inner += c;
        if (c == QLatin1Char('%'))
            inner += c;
    }
    return plain(QLatin1Char('"') + inner + QLatin1Char('"'));
}

QString fileOf(const QString &folder, QString name)
{
    name.replace(QLatin1Char('/'), QLatin1Char('_'));
    return folder + QLatin1Char('/') + name + QLatin1String(".desktop");
}

} // namespace

LogonTask ofRoot(LogonTask task, quint32 user)
{
    task.program = QFileInfo(task.program).path() + QLatin1String("/start");
    task.arguments = QStringLiteral("--companion %1").arg(user);
    return task;
}

QByteArray compose(const LogonTask &task)
{
    QString exec = quoted(task.program);
    for (const QString &word : task.arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        exec += QLatin1Char(' ') + quoted(word);
    return QStringLiteral(
               "[Desktop "
               "Entry]\nType=Application\nName=%1\nTryExec=%2\nExec=%3\nTerminal=false\nNoDisplay=true\n")
        // Once the program is removed, the session passes over what is left of the entry.
        .arg(plain(task.name), plain(task.program), exec)
        .toUtf8();
}

bool create(const QString &folder, const LogonTask &task)
{
    const QString wrong = ownfiles::makeFolder(folder);
    if (!wrong.isEmpty()) {
        ownfiles::complain(QLatin1String("nothing is started at logon: ") + wrong);
        return false;
    }
    const QString path = fileOf(folder, task.name);
    const QString fresh = path + QLatin1String(".new");
    QFile::remove(fresh);
    QFile file;
    return ownfiles::makeFile(&file, fresh) && file.write(compose(task)) >= 0 && file.flush() &&
           file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther) &&
           std::rename(QFile::encodeName(fresh).constData(), QFile::encodeName(path).constData()) == 0;
}

void remove(const QString &folder, const QString &name)
{
    if (ownfiles::strangerOn(folder).isEmpty())
        QFile::remove(fileOf(folder, name));
}

} // namespace logonentry
