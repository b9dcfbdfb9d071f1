// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/SelfTests.h"

#include "platform/OwnFiles.h"
#include "platform/simulated/SelfTestText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <algorithm>

namespace simulated
{
namespace
{

const QLatin1String keyRunning("running");
const QLatin1String keyLog("log");
constexpr int abortedByHost = 1;

QJsonObject toJson(const SelfTestRun &run)
{
    return {{QStringLiteral("kind"), run.kind},
            {QStringLiteral("status"), run.end.status},
            {QStringLiteral("remainingTenths"), run.end.remainingTenths},
            {QStringLiteral("started"), run.started},
            {QStringLiteral("duration"), run.duration},
            {QStringLiteral("hours"), run.hours},
            {QStringLiteral("lba"), run.lba}};
}

SelfTestRun fromJson(const QJsonObject &object)
{
    const auto whole = [&object](const char *key) {
        constexpr double Most = 9.0e15; // so that sums and tenfolds fit
        return static_cast<qint64>(std::clamp(object.value(QLatin1String(key)).toDouble(), -Most, Most));
    };
    SelfTestRun run;
    run.kind = object.value(QLatin1String("kind")).toString();
    run.end.status = static_cast<int>(std::clamp<qint64>(whole("status"), 0, 15));
    run.end.remainingTenths = static_cast<int>(std::clamp<qint64>(whole("remainingTenths"), 0, 9));
    run.started = whole("started");
    run.duration = whole("duration");
    run.hours = whole("hours");
    run.lba = object.value(QLatin1String("lba")).toString();
    return run;
}

QJsonObject loadAll(const QString &path)
{
    return QJsonDocument::fromJson(ownfiles::contents(path)).object();
}

} // namespace

SelfTests::SelfTests(const QString &file, Clock clock) : m_file(file), m_clock(std::move(clock)) {}

SelfTests::State SelfTests::load(int disk) const
{
    const QJsonObject object = loadAll(m_file).value(QString::number(disk)).toObject();
    State state;
    if (object.contains(keyRunning))
        state.running = fromJson(object.value(keyRunning).toObject());
    for (const QJsonValue &entry : object.value(keyLog).toArray())
        state.log.append(fromJson(entry.toObject()));
    return state;
}

void SelfTests::save(int disk, const State &state) const
{
    QJsonObject object;
    if (state.running)
        object.insert(keyRunning, toJson(*state.running));
    QJsonArray log;
    for (const SelfTestRun &run : state.log)
        log.append(toJson(run));
    object.insert(keyLog, log);
    QJsonObject all = loadAll(m_file);
    all.insert(QString::number(disk), object);
    QSaveFile file(m_file);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(all).toJson());
        file.commit();
    }
}

int SelfTests::tenthsLeft(const SelfTestRun &run) const
{
    const qint64 left = run.started + run.duration - m_clock();
    // Rounded up, and full tenths only: a running test has between 90 % and 10 % before it.
    const qint64 tenths = run.duration > 0 ? (left * 10 + run.duration - 1) / run.duration : 0;
    return static_cast<int>(std::clamp<qint64>(tenths, 1, 9));
}

SelfTests::State SelfTests::settle(int disk)
{
    State state = load(disk);
    if (state.running) {
        const SelfTestRun &run = *state.running;
        const qint64 end = run.started + run.duration * (10 - run.end.remainingTenths) / 10;
        if (m_clock() >= end) {
            state.log.prepend(run);
            state.running.reset();
            save(disk, state);
        }
    }
    return state;
}

void SelfTests::start(int disk, SelfTestRun run)
{
    State state = settle(disk);
    run.started = m_clock();
    state.running = run;
    save(disk, state);
}

std::optional<int> SelfTests::remaining(int disk)
{
    const State state = settle(disk);
    return state.running ? std::optional(tenthsLeft(*state.running)) : std::nullopt;
}

void SelfTests::abort(int disk)
{
    State state = settle(disk);
    if (!state.running)
        return;
    SelfTestRun run = *state.running;
    run.end = {abortedByHost, tenthsLeft(run)};
    run.lba = QStringLiteral("-");
    state.log.prepend(run);
    state.running.reset();
    save(disk, state);
}

QByteArray SelfTests::applyTo(int disk, const QByteArray &text)
{
    const State state = settle(disk);
    QByteArray result = text;
    if (state.running)
        result = selftext::withStatus(result, selftext::inProgress, tenthsLeft(*state.running));
    else if (!state.log.isEmpty())
        result =
            selftext::withStatus(result, state.log.first().end.status, state.log.first().end.remainingTenths);
    QList<QByteArray> rows;
    for (const SelfTestRun &run : state.log)
        rows.append(selftext::logRow(run.kind, run.end.status, run.end.remainingTenths, run.hours, run.lba));
    return selftext::withLogRows(result, rows);
}

} // namespace simulated
