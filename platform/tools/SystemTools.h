// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Inventory.h"

#include <QByteArray>
#include <QStringList>

/// The system's tools as text, byte for byte as Windows writes it when its output is redirected.
namespace tools
{

/// `diskdrive get …`, `logicaldisk get …` and `partition get …`: UTF-16LE with byte-order mark, CRLF, the
/// columns sorted by name, each as wide as its longest cell plus two blanks, and a blank last line. Empty
/// bytes for a question that it does not know.
QByteArray wmic(const inventory::Machine &machine, const QStringList &arguments);

/// `-status X:`: the description of one volume; without a letter of all volumes.
QByteArray manageBde(const inventory::Machine &machine, const QStringList &arguments);

/// The task list of the machine's processes.
QByteArray tasklist(const inventory::Machine &machine);

/// The lines of `input` that contain the argument, in their letter case.
QByteArray findstr(const QStringList &arguments, const QByteArray &input);

/// The image name that `/IM` names, empty where there is none.
QString taskkillTarget(const QStringList &arguments);

} // namespace tools
