#pragma once

#include "fuzz/Mutator.h"

#include <QString>
#include <QVector>

/// One thing that is given inputs.
struct Target {
    const char *name; ///< also of its folder of sound inputs
    QByteArray (Mutator::*make)(const QVector<QByteArray> &corpus);
    /// Takes an input in; says what is wrong with the result, empty if nothing is. `mutator` decides what the
    /// input does not.
    QString (*run)(const QByteArray &input, Mutator &mutator);
};

/// All of them. They run on the simulated machine that freshMachine() made last.
const QVector<Target> &allTargets();

/// Installs an empty machine. It notes what is asked of it, so it wants to be made anew from time to time.
void freshMachine();
