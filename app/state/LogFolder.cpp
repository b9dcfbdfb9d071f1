#include "app/state/LogFolder.h"

#include <QStringList>

QString logFolderOf(const QString &logPath)
{
    QStringList parts = logPath.split(QLatin1Char('\\'));
    parts.removeLast();
    return parts.join(QLatin1Char('\\'));
}
