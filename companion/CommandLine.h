// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// The entry of the companion, and what its arguments ask for.
namespace commandline
{

enum class Wish {
    Watch, ///< "Schedular" or nothing
    Once,
    OnceJson,
    OnceMetrics,
    Collect, ///< the folder is the second argument
    Version,
    Help,
    Unknown
};

/// `arguments` without the program's name.
Wish wishOf(const QStringList &arguments);

/// Everything from process start to its end; returns the exit code. All but Watch needs no display.
int run(int argc, char **argv);

} // namespace commandline
