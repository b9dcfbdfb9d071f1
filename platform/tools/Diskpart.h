// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace tools
{

/// What a line of a script does with the disk that was selected.
enum class DiskAction { Online, Clean, ConvertMbr, CreatePrimary, Rescan };

/// How it ended.
enum class DiskOutcome {
    Done,
    AlreadyOnline,
    AccessDenied,
    DeviceError,
    SystemDisk,
    InUse,
    NotEmpty,
    NoRoom
};

/// The disks that scripts may act on.
class ScriptedDisks
{
public:
    ScriptedDisks() = default;
    ScriptedDisks(const ScriptedDisks &) = delete;
    ScriptedDisks &operator=(const ScriptedDisks &) = delete;
    virtual ~ScriptedDisks() = default;

    virtual bool has(int disk) = 0;
    /// `disk` is one that is there.
    virtual DiskOutcome act(DiskAction action, int disk) = 0;
};

/// `/s <file>`: runs the script of a file, and gives what the tool says. Lines are words in any letter case:
/// `select disk N`, `online disk`, `clean`, `convert mbr`, `create partition primary`, `rescan`, `exit`.
/// Nothing is done by a script that holds another line or does not come to an `exit`: it may have been cut
/// short. The first line that fails ends the script.
QByteArray diskpart(const QStringList &arguments, const std::function<QString(const QString &)> &nativePath,
                    ScriptedDisks &disks);

} // namespace tools
