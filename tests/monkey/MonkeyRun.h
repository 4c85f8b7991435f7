#pragma once

#include "Monkey.h"

#include <QMap>
#include <QStringList>

#include <array>
#include <functional>

// One monkey run: a fresh window, a seed, a number of inputs, the application's invariants
// checked after every one of them and once more when its timers have run out.
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
    qint64 screenChanges = 0;
    qint64 confirmations = 0; // times the alarm's confirmation page came up
    qint64 scrollsSeen = 0;   // inputs that found a timeline scroll running
    int mostPathPieces = 0;
    int mostTimelineItems = 0;
    int fewestListNames = 20;
    int longestName = 0;

    bool ok() const { return failedAt < 0; }
    // A few lines: what ran, where it went, and on failure how to replay it.
    QString summary() const;
};

// Called every so many inputs with the number done; answers false to stop early.
using MonkeyProgress = std::function<bool(qint64 done)>;

MonkeyResult RunMonkey(quint64 seed, qint64 inputs, const MonkeyProgress& progress = {});

// The seed and input count a replay asks for through the environment (ROBOT_MONKEY_SEED,
// ROBOT_MONKEY_INPUTS); unset or unreadable values keep the given defaults.
QList<quint64> MonkeySeedsFromEnvironment(const QList<quint64>& defaults);
qint64 MonkeyInputsFromEnvironment(qint64 fallback);
