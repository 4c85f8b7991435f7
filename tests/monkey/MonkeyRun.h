#pragma once

#include "Monkey.h"

#include <QMap>
#include <QStringList>

#include <functional>

// One monkey run: a fresh window, a seed, a number of inputs, the application's invariants
// checked after every event and once more when its timers have run out.
struct MonkeyResult {
    quint64 seed = 0;
    qint64 planned = 0;
    qint64 done = 0;      // inputs sent
    qint64 events = 0;    // window events they came to
    qint64 failedAt = -1; // the input after which a rule broke; -1: none broke
    QStringList broken;   // the rules broken then
    QStringList trace;    // the last inputs, oldest first
    std::array<qint64, Monkey::KindCount> sent{};
    QMap<QString, qint64> inputsOn; // inputs sent while each screen was on view

    bool ok() const { return failedAt < 0; }
    // A few lines: what ran, where it went, and on failure how to replay it.
    QString summary() const;
};

// Called every thousand inputs with the number done; answers false to stop early.
MonkeyResult RunMonkey(quint64 seed, qint64 inputs, const std::function<bool(qint64 done)>& progress = {});

// A replay asks for its seed and input count through ROBOT_MONKEY_SEED and ROBOT_MONKEY_INPUTS;
// unset or unreadable values keep the given defaults.
QList<quint64> MonkeySeedsFromEnvironment(const QList<quint64>& defaults);
qint64 MonkeyInputsFromEnvironment(qint64 fallback);
