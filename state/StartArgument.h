// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

/// What the one command-line argument asks for.
namespace startargument
{

/// True where the program is to come up on its clone page.
bool asksForClone(const QString &argument);

/// The disk text that a clone argument names behind "####"; nothing where it names none.
std::optional<QString> cloneDiskText(const QString &argument);

/// \name What the companion opens the program with
/// @{
extern const QString ForSettings;
QString forDisk(int number);
/// The number in such an argument.
std::optional<int> diskNumber(const QString &argument);
/// @}

/// True where an item's text, its blanks removed, is that disk text in any letter case.
bool matchesDisk(const QString &itemText, const QString &diskText);

} // namespace startargument
