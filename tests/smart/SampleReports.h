// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "inventory/CommandRunner.h"
#include "smart/DiskFigures.h"
#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "tests/support/Files.h"

#include <QStringList>

/// The real reports of tests/data/smart, and lists made of a few words.
namespace samples
{

inline QByteArray bytesOf(const QString &file)
{
    return contentOf(QStringLiteral(HALVANE_TEST_DATA "/smart/") + file);
}

/// Writes a report to the file that the tool would write.
inline QString stage(const QByteArray &bytes)
{
    const QString path = tempFile("SMART.txt");
    if (!writeFile(nativePath(path), bytes))
        qFatal("no temp file");
    return path;
}

/// Takes a report in, as the window does.
inline void read(const QByteArray &bytes)
{
    takeReportIn(stage(bytes));
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

/// "name=raw name=raw", with "@value" behind the raw value where one is told
inline SmartAttributeList ataList(const QString &rows)
{
    SmartAttributeList list;
    for (const QString &row : rows.split(' ', Qt::SkipEmptyParts)) {
        const QString figures = row.section('=', 1);
        SmartAttributeRecord &record = list.append();
        record.AttributeName.assign(row.section('=', 0, 0));
        record.RawValue.assign(figures.section('@', 0, 0));
        record.Value = figures.section('@', 1).toUInt();
    }
    return list;
}

/// Each row is "name=value".
inline NvmeAttributeList nvmeList(const QStringList &rows)
{
    NvmeAttributeList list;
    for (const QString &row : rows) {
        NvmeAttributeRecord &record = list.append();
        record.Name.assign(row.section('=', 0, 0));
        record.Value.assign(row.section('=', 1));
    }
    return list;
}

} // namespace samples
