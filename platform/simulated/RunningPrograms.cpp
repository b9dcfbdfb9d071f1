// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/RunningPrograms.h"

#include "platform/FileLock.h"
#include "platform/NativePlatform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace simulated
{

namespace
{

constexpr qint32 PatienceMs = 2000;
const QString Ending = QStringLiteral(".exe");
const QString NumberEnding = QStringLiteral(".pid");

} // namespace

RunningPrograms::RunningPrograms(const QString &folder) : m_folder(folder) {}

RunningPrograms::~RunningPrograms() = default;

QString RunningPrograms::lockOf(const QString &imageName) const
{
    return m_folder + QLatin1Char('/') + imageName + QStringLiteral(".lock");
}

void RunningPrograms::addThis()
{
    QString name = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    if (!name.endsWith(Ending, Qt::CaseInsensitive))
        name += Ending;
    // Somebody may just be looking whether it is free.
    m_own = std::make_unique<FileLock>(lockOf(name), PatienceMs);
    QFile number(m_folder + QLatin1Char('/') + name + NumberEnding);
    if (m_own->isHeld() && number.open(QIODevice::WriteOnly | QIODevice::Truncate))
        number.write(QByteArray::number(QCoreApplication::applicationPid()));
}

QStringList RunningPrograms::names() const
{
    QStringList running;
    for (const QString &file : QDir(m_folder).entryList({QLatin1Char('*') + NumberEnding}, QDir::Files)) {
        const QString name = file.left(file.size() - NumberEnding.size());
        if (!FileLock(lockOf(name), 0).isHeld())
            running << name;
    }
    return running;
}

void RunningPrograms::end(const QString &imageName) const
{
    for (const QString &name : names()) {
        QFile number(m_folder + QLatin1Char('/') + name + NumberEnding);
        if (name.compare(imageName, Qt::CaseInsensitive) != 0 || !number.open(QIODevice::ReadOnly))
            continue;
        const qint64 id = number.read(20).toLongLong();
        if (id <= 0 || id == QCoreApplication::applicationPid())
            continue;
        endNativeProcess(id);
        const FileLock gone(lockOf(name), PatienceMs);
    }
}

void RunningPrograms::endAll() const
{
    for (const QString &name : names())
        end(name);
}

QString RunningPrograms::fileOf(const QString &imageName)
{
    const QDir folder(QCoreApplication::applicationDirPath());
    for (const QString &name : {imageName, imageName.left(imageName.size() - Ending.size())}) {
        const QFileInfo program(folder, name);
        if (program.isFile() && program.isExecutable())
            return program.absoluteFilePath();
    }
    return QString();
}

} // namespace simulated
