// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/simulated/SimulatedPlatform.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QtTest>

/// A folder with the description of a PC, made by a test, and one for its state.
class DescribedFolder
{
public:
    QString path() const { return m_folder.path(); }
    QString state() const { return m_state.path() + QLatin1String("/state"); }

    void add(const QString &name, const QByteArray &contents) const
    {
        const QString file = path() + QLatin1Char('/') + name;
        QDir().mkpath(QFileInfo(file).absolutePath());
        if (!writeFile(file, contents))
            qFatal("a test file cannot be written");
    }

    /// The PC of `json`; ends the test program if the description is wrong.
    std::unique_ptr<SimulatedPlatform> open(const QByteArray &json, simulated::Clock clock = {}) const
    {
        add(QStringLiteral("pc.json"), json);
        QString error;
        auto pc = SimulatedPlatform::open(path(), state(), &error, std::move(clock));
        if (!pc)
            qFatal("%s", qPrintable(error));
        return pc;
    }

    /// Makes files that plug things in and out, and waits until the PC has acted on them.
    void touch(const QStringList &names) const
    {
        const QDir changes(state() + QLatin1String("/volumes-changed"));
        for (const QString &name : names)
            QVERIFY(writeFile(changes.filePath(name), QByteArray()));
        for (const QString &name : names)
            QTRY_VERIFY(!changes.exists(name));
    }

    /// That of a program which shows its windows nowhere.
    QProcessEnvironment environment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("HALVANE_PC"), path());
        env.insert(QStringLiteral("HALVANE_PC_STATE"), state());
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        return env;
    }

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_state;
};

/// The output file of a command on the PC. Commands that run at once need names of their own for it.
inline QByteArray outputOf(Platform &pc, const QString &command, const char *name = "out.txt")
{
    const QString file = pc.GetTempPathW() + QLatin1String(name);
    QFile::remove(file);
    pc.CreateProcessAndWait(
        (QLatin1String("CMD.EXE /c ") + command + QLatin1String(" >> ") + file).toStdWString(), true);
    return contentOf(file);
}
