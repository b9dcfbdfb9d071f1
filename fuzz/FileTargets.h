// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fuzz/Mutator.h"

#include <QString>

/// Readers of files: settings, described PCs, the history, the files of a web folder, the output of tools.
/// Each returns what is wrong with the result; empty if nothing is.
namespace filetargets
{

QString runSettings(const QByteArray &input, Mutator &mutator);
QString runDescription(const QByteArray &input, Mutator &mutator);
QString runBlockDevices(const QByteArray &input, Mutator &mutator);
QString runHistory(const QByteArray &input, Mutator &mutator);
QString runVersions(const QByteArray &input, Mutator &mutator);
QString runSelfTests(const QByteArray &input, Mutator &mutator);

} // namespace filetargets
