// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

class QSettings;

/// A setting that is stored as text: its name, and what a first run begins with.
struct TextSetting {
    const char *name;
    const char *first = "";
};

/// A setting that is stored as number, or as 0 and 1.
struct NumberSetting {
    const char *name;
    int first = 0;
};

/// The settings of the program, shared with the installer and the companion. Make one on the stack where a
/// setting is needed and let it go: values are kept when it goes. An absent setting reads as 0, false or an
/// empty text; a failed write is only logged. Main thread only; one that
/// is opened by its path serves any one thread.
class SettingsStore
{
public:
    /// Opens the program's own settings.
    SettingsStore();
    /// Opens the settings below another registry path; an empty path keeps nothing.
    explicit SettingsStore(const QString &registryPath);
    ~SettingsStore();

    /// `prefix` stands before the name of a setting that exists once for each language.
    QString text(const TextSetting &setting, const QString &prefix = QString()) const;
    int number(const NumberSetting &setting) const;
    bool flag(const NumberSetting &setting) const;
    /// The same, but an absent setting reads as what the publisher has chosen, or else what a first run
    /// begins with.
    QString textOrFirst(const TextSetting &setting, const QString &prefix = QString()) const;
    int numberOrFirst(const NumberSetting &setting) const;

    void write(const TextSetting &setting, const QString &value);
    void write(const NumberSetting &setting, int value);

private:
    std::unique_ptr<QSettings> m_pSettings;
    bool m_bWritten = false;
};

/// All settings.
namespace key
{
#define HALVANE_TEXT(name, first)                                                                            \
    inline constexpr TextSetting name                                                                        \
    {                                                                                                        \
#name, first                                                                                         \
    }
#define HALVANE_NUMBER(name, first)                                                                          \
    inline constexpr NumberSetting name                                                                      \
    {                                                                                                        \
#name, first                                                                                         \
    }
HALVANE_TEXT(LanguageType, "0");
HALVANE_TEXT(TaskName, "");
HALVANE_NUMBER(FirstTimeLaunch, 0); ///< 1 once the first start has finished
HALVANE_NUMBER(ShowTrayIcon, 1);
HALVANE_TEXT(TempValue, "C");
HALVANE_TEXT(WarningtemValue, "C");
HALVANE_TEXT(ShutDowntemValue, "C");
HALVANE_NUMBER(ShowWarning, 1);
HALVANE_NUMBER(DontShow, 0);
HALVANE_NUMBER(ShutDownDontShow, 0);
HALVANE_NUMBER(WarningValue, 45);
HALVANE_NUMBER(ShutDownValue, 50);
HALVANE_TEXT(LogSavePath, "C:\\LogFile.txt");
HALVANE_NUMBER(MaxLogSize, 99); ///< KB
HALVANE_NUMBER(SaveLog, 1);     ///< the companion writes the log
HALVANE_TEXT(TrayQuit, "");     ///< the logon in which the user has ended the companion
HALVANE_TEXT(MetricsPath, "");  ///< the companion writes the metrics there
HALVANE_NUMBER(TrayHealth, 0);  ///< the tray shows the lowest health in place of the temperature
HALVANE_TEXT(SmartctlFolderPath, "");
HALVANE_TEXT(SCopyrightText, "");
HALVANE_TEXT(rxVersion, "");
HALVANE_NUMBER(AverageUpdateSize, 0); ///< bytes
HALVANE_TEXT(CopyrightText, "");
HALVANE_TEXT(HelpEndpoint, "");
/// \name Once for each language, behind the name of its folder and a slash
/// @{
HALVANE_TEXT(rxUpdateLink, "");
HALVANE_TEXT(rxUpdate, "");
HALVANE_TEXT(SupportLink, "");
HALVANE_TEXT(SupportName, "");
HALVANE_TEXT(HelpLink_JA, "");
HALVANE_TEXT(HelpLink_KO, "");
HALVANE_TEXT(EulaLink_JA, "");
HALVANE_TEXT(CN_Update_Lnk, "");
/// @}
#undef HALVANE_TEXT
#undef HALVANE_NUMBER
} // namespace key
