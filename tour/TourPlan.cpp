// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/TourPlan.h"

#include "platform/simulated/PcDescription.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QStringList>

namespace
{

constexpr const char *PcVariable = "HALVANE_PC";
constexpr const char *StateVariable = "HALVANE_PC_STATE";
constexpr const char *LimitVariable = "HALVANE_TOUR_LIMIT";

/// The PC of the command line, else that of the environment, else the demo PC.
QString chosenPc(const QString &argument)
{
    if (!argument.isEmpty())
        return argument;
    if (qEnvironmentVariableIsSet(PcVariable))
        return qEnvironmentVariable(PcVariable);
    const QString here = QStringLiteral("demo");
    return QFileInfo::exists(here + QStringLiteral("/pc.json"))
               ? here
               : QStringLiteral(HALVANE_SOURCE_DIR) + QStringLiteral("/demo");
}

void setDefault(const char *name, const QByteArray &value)
{
    if (!qEnvironmentVariableIsSet(name))
        qputenv(name, value);
}

bool readArguments(const QStringList &arguments, QString *pc, bool *thisPc, QString *out)
{
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (argument == QLatin1String("--this-pc"))
            *thisPc = true;
        else if (argument == QLatin1String("--pc") && i + 1 < arguments.size())
            *pc = arguments.at(++i);
        else if (!argument.startsWith(QLatin1Char('-')) && out->isEmpty())
            *out = argument;
        else
            return false;
    }
    return !out->isEmpty() && (pc->isEmpty() || !*thisPc);
}

bool readDescription(const QString &folder, TourPlan *plan, QString *error)
{
    plan->pcFolder = QDir(folder).absolutePath();
    const auto description = simulated::readPc(plan->pcFolder, error);
    if (!description)
        return false;
    plan->pcName = description->name;
    plan->dpi = description->dpi;
    plan->wishes = description->tour;
    return true;
}

} // namespace

bool TourPlan::wants(const QString &key) const
{
    const QJsonValue wish = wishes.value(key);
    return wish.isArray() ? !wish.toArray().isEmpty() : wish.isObject() || wish.toBool();
}

namespace tourplan
{

bool read(int argc, char **argv, TourPlan *plan, QString *error)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    QString pc;
    QString out;
    bool thisPc = false;
    if (!readArguments(arguments, &pc, &thisPc, &out)) {
        *error = QStringLiteral("usage: halvane_tour [--pc DIR | --this-pc] OUT");
        return false;
    }
    plan->out = QDir(out).absolutePath();
    if (!thisPc && !readDescription(chosenPc(pc), plan, error))
        return false;

    if (qEnvironmentVariableIsSet(LimitVariable)) {
        plan->stepLimit = qEnvironmentVariableIntValue(LimitVariable);
        if (plan->stepLimit <= 0) {
            *error = QStringLiteral("%1 is not a number of seconds").arg(QLatin1String(LimitVariable));
            return false;
        }
    }
    return true;
}

void setEnvironment(const TourPlan &plan, const QString &stateFolder)
{
    if (plan.pcFolder.isEmpty()) {
        qunsetenv(PcVariable);
    } else {
        qputenv(PcVariable, QFile::encodeName(plan.pcFolder));
        setDefault(StateVariable, QFile::encodeName(stateFolder));
    }
    setDefault("QT_QPA_PLATFORM", "offscreen");
    // With this, fonts have the scale of the display, as on a desktop.
    qputenv("QT_FONT_DPI", QByteArray::number(plan.dpi));
    setDefault("QT_LOGGING_RULES", "*.debug=false;qt.qpa.*=false");
}

} // namespace tourplan
