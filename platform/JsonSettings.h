// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QSettings>
#include <QString>

#include <memory>

/// Settings stores in JSON files, for platforms that have no registry: one object per file, keys such as
/// "EN/rxUpdateLink" kept flat, texts as JSON texts, numbers as JSON numbers, truth values as such.
namespace jsonsettings
{

/// The file below `folder` that stands for a registry path. Both kinds of slash separate its folders.
QString fileOf(const QString &folder, const QString &registryPath);

/// Opens a store on a file; its folder is made if it is missing. Where nothing can be written, nothing is
/// kept.
std::unique_ptr<QSettings> open(const QString &file);

/// A store of any format, which logs where its values could not be written.
std::unique_ptr<QSettings> openAs(const QString &path, QSettings::Format format);

/// A store that keeps nothing.
std::unique_ptr<QSettings> openNothing();

/// The text of a store; false where it is none.
bool read(QIODevice &device, QSettings::SettingsMap &map);
bool write(QIODevice &device, const QSettings::SettingsMap &map);

/// Writes first values unless the file exists. Any thread.
void seed(const QString &file, const QJsonObject &values);

} // namespace jsonsettings
