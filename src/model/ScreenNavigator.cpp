#include "ScreenNavigator.h"

ScreenNavigator::Step ScreenNavigator::StepOf(Route route) {
    using enum ScreenId;
    switch (route) {
    case Route::MainMenuProgram:
        return {MainMenu, Scenario, false}; // the scenario screen registered its buttons when made
    case Route::MainMenuAlarm:
        return {MainMenu, Alarm, true};
    case Route::ScenarioGo:
        return {Scenario, Movement, true};
    case Route::ScenarioBack:
        return {Scenario, MainMenu, false};
    case Route::MovementSound:
        return {Movement, Sound, true};
    case Route::MovementLazer:
        return {Movement, Lazer, true};
    case Route::MovementBack:
        return {Movement, MainMenu, true}; // and the menu's captions come back to orange
    case Route::SoundMovement:
        return {Sound, Movement, true};
    case Route::SoundLazer:
        return {Sound, Lazer, true};
    case Route::LazerSound:
        return {Lazer, Sound, true};
    case Route::LazerMovement:
        return {Lazer, Movement, true};
    case Route::AlarmBack:
        return {Alarm, MainMenu, false}; // the menu keeps the captions it had when it was left
    }
    return {MainMenu, MainMenu, false};
}

bool ScreenNavigator::follow(Route route) {
    const Step step = StepOf(route);
    if (step.from != m_shown) return false;
    m_shown = step.to;
    emit switched(step.from, step.to, step.trackingOn);
    return true;
}
