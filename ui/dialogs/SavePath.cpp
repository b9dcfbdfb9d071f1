// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/SavePath.h"

#include "reports/SmartReport.h"

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

namespace
{

/// The path as it will be written.
QString completed(const QString &chosen, const QString &offered, const std::vector<SaveFormat> &formats,
                  const QString &filter)
{
    const auto has = [&chosen](const SaveFormat &format) {
        return chosen.endsWith(format.ending, Qt::CaseInsensitive);
    };
    const auto asked = std::find_if(formats.begin(), formats.end(),
                                    [&filter](const SaveFormat &format) { return format.filter == filter; });
    const QString ending = (asked == formats.end() ? formats.front() : *asked).ending;
    if (chosen.isEmpty() || formats.size() == 1)
        return savedPath(chosen, offered, ending);
    return std::any_of(formats.begin(), formats.end(), has) ? chosen : chosen + ending;
}

} // namespace

QString askForPath(QWidget *parent, const QString &title, const QString &name,
                   const std::vector<SaveFormat> &formats)
{
    QStringList filters;
    for (const SaveFormat &format : formats)
        filters << format.filter;
    const QString all = filters.join(QLatin1String(";;"));
    QString filter;
    QString path = name;
    for (;;) {
        const QString chosen = QFileDialog::getSaveFileName(parent, title, path, all, &filter);
        path = completed(chosen, name, formats, filter);
        // The dialog has asked about the name without its ending only.
        if (path == chosen || !QFileInfo::exists(path))
            return path;
    }
}
