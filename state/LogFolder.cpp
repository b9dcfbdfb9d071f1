// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/LogFolder.h"

#include <QStringList>

QString logFolderOf(const QString &logPath)
{
    const QStringList parts = logPath.split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    QString folder;
    for (int i = 0; i + 1 < parts.size(); ++i)
        folder += parts[i] + QLatin1Char('\\');
    return folder;
}
