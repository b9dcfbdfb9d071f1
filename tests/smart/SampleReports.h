// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/CommandRunner.h"
#include "smart/DiskFigures.h"
#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QFile>
#include <QStringList>
#include <QTextStream>
#include <QVector>

/// The real reports of tests/data/smart with the figures that they should give. These stand in expected.tsv,
/// which was not made by the code under test.
namespace samples
{

struct Sample {
    QString file;
    QString kind; ///< "ata", "nvme", or "-" if no section line tells
    int rows = 0;
    bool passed = false;
    QString model;
    QString serial;
    QString firmware;
    QString ataVersion;
    int celsius = 0;
    int health = 0; ///< from the rows; 100 if they have none
    bool rated = true;
    int performance = 0;
    LifeFigures life;
    QString lastRow; ///< "id|name|value|threshold|raw", of NVMe "name|value"
};

inline QByteArray bytesOf(const QString &file)
{
    QFile in(QStringLiteral(HALVANE_TEST_DATA "/smart/") + file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

inline QVector<Sample> all()
{
    QVector<Sample> found;
    const QStringList lines =
        QString::fromUtf8(bytesOf(QStringLiteral("expected.tsv"))).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QStringList f = line.split(QLatin1Char('\t'));
        if (f.size() != 16 || line.startsWith(QLatin1Char('#')))
            continue;
        const LifeFigures life{f[11].toUInt(), f[12].toInt(), f[13].toInt(), f[14].toInt()};
        found.append({f[0], f[1], f[2].toInt(), f[3] == QLatin1String("1"), f[4], f[5], f[6], f[7],
                      f[8].toInt(), f[9] == QLatin1String("-") ? 100 : f[9].toInt(),
                      f[9] != QLatin1String("-"), f[10].toInt(), life, f[15]});
    }
    return found;
}

/// Writes a report to the file that the tool would write.
inline QString stage(const QByteArray &bytes)
{
    const QString path = tempFile(QStringLiteral("SMART.txt"));
    QFile out(nativePath(path));
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size())
        qFatal("no temp file");
    return path;
}

/// Resets the globals, as if no report had been read yet.
inline void forget()
{
    g_smartTable = {};
    g_nvmeTable = {};
    g_App.m_bNVMe = false;
    g_bSmartAvailable = false;
    g_strModelName.clear();
    g_strSerialNumber.clear();
    g_strFirmware.clear();
    g_strAtaVersion.clear();
    g_driveVerdict = DriveVerdict::NotTold;
    g_nHealthPercent = 0;
    g_lifeFigures = {};
}

template<typename List>
int length(const List &list)
{
    int count = 0;
    for (auto row = list.begin(); row != list.end(); ++row)
        ++count;
    return count;
}

struct AtaList : SmartAttributeList {
    void add(const QString &name, const QString &raw)
    {
        SmartAttributeRecord &row = append();
        row.AttributeName.assign(name);
        row.RawValue.assign(raw);
    }
    /// "name=raw name=raw", with "@value" behind the raw value where one is told
    void addAll(const QString &rows)
    {
        for (const QString &row : rows.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QString figures = row.section(QLatin1Char('='), 1);
            add(row.section(QLatin1Char('='), 0, 0), figures.section(QLatin1Char('@'), 0, 0));
            tail->Value = figures.section(QLatin1Char('@'), 1).toUInt();
        }
    }
};

struct NvmeList : NvmeAttributeList {
    void add(const QString &name, const QString &value)
    {
        NvmeAttributeRecord &row = append();
        row.Name.assign(name);
        row.Value.assign(value);
    }
};

} // namespace samples
