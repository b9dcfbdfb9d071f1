// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fuzz/Mutator.h"

#include <QString>
#include <QVector>

/// A reader that gets inputs.
struct Target {
    const char *name; ///< also of its folder of sound inputs
    QByteArray (Mutator::*make)(const QVector<QByteArray> &corpus);
    /// Reads an input; returns what is wrong with the result, empty if nothing is. `mutator` makes the
    /// choices that the input leaves open.
    QString (*run)(const QByteArray &input, Mutator &mutator);
};

/// All of them. They run on the simulated machine that freshMachine() made last.
const QVector<Target> &allTargets();

/// Installs an empty machine. It keeps a log of all calls, so make a new one from time to time.
void freshMachine();
