#pragma once

#include "AppHarness.h"
#include "AppInvariants.h"

#include <QMap>
#include <QPoint>
#include <QStringList>
#include <QTest>

#include <functional>
#include <random>

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

private:
    Monkey(AppHarness& app, quint64 seed) : m_app(app), m_rules(app.root()), m_rng(seed) {}
    int step(); // answers the kind of input sent
    // After every event: false once a rule broke, and then nothing more is sent.
    bool holds() {
        if (m_broken.isEmpty()) m_broken = m_rules.check();
        return m_broken.isEmpty();
    }

    int below(int bound) { return bound <= 1 ? 0 : std::uniform_int_distribution<int>(0, bound - 1)(m_rng); }
    bool chance(int percent) { return below(100) < percent; }
    QPoint anywhere() { return NotCorner({below(1024), below(768)}); }
    // (0, 0) is "the middle" to QTest.
    static QPoint NotCorner(QPoint p) { return p.isNull() ? QPoint(0, 1) : p; }
    QPoint aim(); // on a control of the screen on view
    bool move(QPoint p) {
        m_app.moveTo(p);
        return holds();
    }
    bool button(QPoint p, bool down) {
        down ? m_app.press(p) : m_app.release(p);
        m_held = down;
        return holds();
    }
    bool click(QPoint p);
    bool drag();
    bool key(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text = {});
    bool text(bool paste);
    bool wait(int ms) {
        QTest::qWait(ms);
        return holds();
    }

    AppHarness& m_app;
    const AppInvariants m_rules;
    std::mt19937_64 m_rng;
    bool m_held = false;
    QStringList m_broken;
};
