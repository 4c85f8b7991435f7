#pragma once

#include <QPoint>
#include <QString>

#include <array>
#include <functional>
#include <random>

class AppHarness;
class QWidget;

// Random input for the real window, made the way hands make it: pointer moves, presses and
// releases anywhere, drags, double clicks, keystrokes and pasted text, all sent in at the
// window and taken by the application's event loop, whose timers keep running in between.
// Half of the pointer work aims at the controls of the screen on view, or the run would stay on
// the first screen; everything is drawn from one generator seeded by the caller, so a seed
// replays the same stream of choices.
class Monkey {
public:
    enum Kind {
        ClickControl,
        MoveToControl,
        MoveAnywhere,
        ClickAnywhere,
        DoubleClick,
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

    Monkey(AppHarness& app, quint64 seed);

    // Called after every event sent (and after every wait, when timers ran); answering false
    // says a rule broke, and the input under way sends nothing more.
    void setCheck(std::function<bool()> check);
    bool failed() const { return m_failed; }

    // Sends one input (a drag is one input made of several events) and lets the application
    // take it. Answers what was sent, for the trace of a failing run.
    QString step();

    // How many inputs of each kind were sent.
    const std::array<qint64, KindCount>& sent() const { return m_sent; }
    // How many window events those inputs came to (a key is a press and a release).
    qint64 events() const { return m_events; }
    static const char* KindName(Kind kind);

    // Texts the monkey types and pastes: the awkward ones every text field meets sooner or later.
    static QString SampleText(int index, int repeat);
    static constexpr int kSampleTexts = 14;

private:
    Kind chooseKind();
    int below(int bound);
    bool chance(int percent);

    QPoint anywhere();
    QPoint slightlyOutside();
    QWidget* chooseControl();
    QPoint pointOn(const QWidget* control);
    QPoint aim(); // a control of the screen on view when there is one, else anywhere

    QString move(QPoint p);
    QString press(QPoint p);
    QString release(QPoint p);
    QString click(QPoint p);
    QString drag();
    QString keystroke();
    QString replaceLongText();
    QString typeText();
    QString paste();
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
