// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>

/// What a tour is to do: its command line, its environment and what the described PC asks for.
struct TourPlan {
    QString out;      ///< folder for pictures and data, full path
    QString pcFolder; ///< full path; empty: this machine, of which only the screens are shown
    QString pcName;
    int dpi = 96;
    QJsonObject wishes; ///< "tour" of the described PC
    int stepLimit = 30; ///< seconds

    /// Whether the described PC asks for what `key` names: true, an object, or a list that is
    /// not empty.
    bool wants(const QString &key) const;
};

namespace tourplan
{

/// Reads `halvane_tour [--pc DIR | --this-pc] OUT` and the described PC. If one is wrong, returns false and
/// one line in `error`. Needs no application object.
bool read(int argc, char **argv, TourPlan *plan, QString *error);

/// Sets the environment of the program. `stateFolder` is used unless the environment names one.
void setEnvironment(const TourPlan &plan, const QString &stateFolder);

} // namespace tourplan
