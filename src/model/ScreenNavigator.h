#pragma once

#include <QObject>

// The seven screens of the window, one shown at a time.
enum class ScreenId { MainMenu, Scenario, Alarm, Movement, Sound, Face, Lazer };

// Every way from one screen to another, named after the screen and the control that takes it.
enum class Route {
    MainMenuProgram,
    MainMenuAlarm,
    ScenarioGo,
    ScenarioBack,
    MovementSound,
    MovementLazer,
    MovementBack,
    SoundMovement,
    SoundLazer,
    LazerSound,
    LazerMovement,
    AlarmBack,
};

// Which screen is shown, and where each route leads. A route is taken only from the screen it
// starts on, so a late or stray action can never leave two screens shown, or none.
class ScreenNavigator : public QObject {
    Q_OBJECT
public:
    struct Step {
        ScreenId from;
        ScreenId to;
        bool trackingOn; // the screen shown makes its hover registrations anew
    };
    static Step StepOf(Route route);

    ScreenId shown() const { return m_shown; }

    // Answers whether the route was taken.
    bool follow(Route route);

signals:
    void switched(ScreenId from, ScreenId to, bool trackingOn);

private:
    ScreenId m_shown = ScreenId::MainMenu;
};
