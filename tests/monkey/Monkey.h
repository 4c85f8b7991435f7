#pragma once

#include <QMap>
#include <QStringList>

#include <functional>

// Random input for the real window, made the way hands make it: pointer moves, presses and
// releases anywhere, drags, double clicks, keystrokes and pasted text, all sent in at the window
// and taken by the application's event loop, whose timers keep running in between. Most pointer
// work aims at the controls of the screen on view, or the run would stay on the first screen.
// Everything is drawn from one generator seeded by the caller, so a seed replays the same run.
class Monkey {
public:
    struct Result {
        quint64 seed = 0;
        qint64 planned = 0;
        qint64 done = 0;
        qint64 failedAt = -1; // the input after which a rule broke
        QStringList broken;
        QStringList trace;              // the last inputs, oldest first
        QMap<QString, qint64> inputsOn; // inputs sent while each screen was on view

        bool ok() const { return failedAt < 0; }
        QString summary() const; // on failure with the line that replays it
    };

    // A fresh window and `inputs` inputs, every rule checked after each event (a drag is many)
    // and once more when the timers have run out. `progress` hears every thousand inputs and
    // answers false to stop early.
    static Result Run(quint64 seed, qint64 inputs, const std::function<bool(qint64 done)>& progress = {});
    // A replay sets ROBOT_MONKEY_SEED and ROBOT_MONKEY_INPUTS; unreadable values change nothing.
    static void FromEnvironment(QList<quint64>& seeds, qint64& inputs);
};
