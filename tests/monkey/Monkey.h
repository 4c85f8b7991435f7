#pragma once

#include <QPoint>
#include <QString>

#include <array>
#include <functional>
#include <random>

class AppHarness;
class QWidget;

// Random input for the real window, made the way hands make it: pointer moves, presses and
// releases anywhere, drags, double clicks, keystrokes and pasted text, all sent in at the window
// and taken by the application's event loop, whose timers keep running in between. Most pointer
// work aims at the controls of the screen on view, or the run would stay on the first screen.
// Everything is drawn from one generator seeded by the caller, so a seed replays the same run.
class Monkey {
public:
    enum Kind {
        ClickControl,
        ClickAnywhere,
        DoubleClick,
        Move,
        Drag,
        StrayPress,
        StrayRelease,
        Keystroke,
        TypeText,
        Paste,
        Wait,
        LeaveWindow,
        KindCount
    };

    Monkey(AppHarness& app, quint64 seed) : m_app(app), m_rng(seed) {}

    // Called after every event sent (and after every wait); answering false says a rule broke,
    // and the input under way sends nothing more.
    void setCheck(std::function<bool()> check) { m_check = std::move(check); }
    bool failed() const { return m_failed; }

    // Sends one input (a drag is one input of several events) and answers what was sent.
    QString step();

    const std::array<qint64, KindCount>& sent() const { return m_sent; }
    qint64 events() const { return m_events; } // window events the inputs came to
    static const char* KindName(Kind kind);

private:
    int below(int bound) { return bound <= 1 ? 0 : std::uniform_int_distribution<int>(0, bound - 1)(m_rng); }
    bool chance(int percent) { return below(100) < percent; }
    QPoint anywhere();
    QWidget* chooseControl();
    QPoint aim(QWidget* control = nullptr);

    QString move(QPoint p);
    QString press(QPoint p, bool down = true); // down: false releases
    QString click(QPoint p);
    QString drag();
    QString key(int key, Qt::KeyboardModifiers modifiers, const QString& text = {});
    QString text(bool paste);
    QString wait(int ms);
    void afterEvents(int events);

    AppHarness& m_app;
    std::mt19937_64 m_rng;
    bool m_buttonHeld = false;
    std::array<qint64, KindCount> m_sent{};
    qint64 m_events = 0;
    std::function<bool()> m_check;
    bool m_failed = false;
};
