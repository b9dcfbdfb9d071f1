// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What is the publisher's choice, from packaging/product/<brand>.json. The installer writes its settings;
/// where nobody has installed, the program falls back to them.
namespace product
{

/// The version of the program, "11.0.0.8".
extern const char *const Version;
/// What the entry function stores as the flags of the brand.
extern const bool SecondBrand;
extern const bool Standalone;

/// The setting of that name, with the language in front if it has one ("EN/SupportName"). Empty or 0 if the
/// publisher has no such setting.
QString text(const QString &name);
int number(const QString &name);

} // namespace product
