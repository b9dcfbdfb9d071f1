// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

class QSettings;

/// The settings of the program, shared with the installer and the companion. Make one on the stack where a
/// setting is needed and let it go: values are kept when it goes. An absent key reads as 0, false or an empty
/// text; a failed write is not noticed. Main thread only.
class SettingsStore
{
public:
    /// Opens the program's own settings.
    SettingsStore();
    /// Opens the settings below another registry path; an empty path keeps nothing.
    explicit SettingsStore(const QString &registryPath);
    ~SettingsStore();

    QString text(const QString &key) const;
    int number(const QString &key) const;
    bool flag(const QString &key) const;

    /// Stores as text, a number in `value` included.
    void writeText(const QString &key, const QString &value);
    /// Stores as number.
    void writeNumber(const QString &key, int value);

private:
    std::unique_ptr<QSettings> m_pSettings;
};

/// The keys of the store.
namespace key
{
#define HALVANE_SETTING(name) inline const QString name = QStringLiteral(#name)
HALVANE_SETTING(LanguageType);
HALVANE_SETTING(TaskName);
HALVANE_SETTING(FirstTimeLaunch);
HALVANE_SETTING(ShowTrayIcon);
HALVANE_SETTING(TempValue);
HALVANE_SETTING(WarningtemValue);
HALVANE_SETTING(ShutDowntemValue);
HALVANE_SETTING(ShowWarning);
HALVANE_SETTING(DontShow);
HALVANE_SETTING(ShutDownDontShow);
HALVANE_SETTING(WarningValue);
HALVANE_SETTING(ShutDownValue);
HALVANE_SETTING(LogSavePath);
HALVANE_SETTING(MaxLogSize);
HALVANE_SETTING(SmartctlFolderPath);
HALVANE_SETTING(SCopyrightText);
HALVANE_SETTING(rxVersion);
HALVANE_SETTING(AverageUpdateSize);
HALVANE_SETTING(CopyrightText);
HALVANE_SETTING(HelpEndpoint);
#undef HALVANE_SETTING

/// Keys that exist once per language, behind the language's prefix and a slash.
inline QString ofLanguage(const QString &prefix, const QString &name)
{
    return prefix + QLatin1Char('/') + name;
}
} // namespace key
