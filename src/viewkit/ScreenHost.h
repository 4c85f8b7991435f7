#pragma once

#include "ScreenNavigator.h"

class QWidget;

// What a screen knows of the view that holds the screens: it can be asked to take a route.
// Screens never reach one another; a screen outside the root view goes nowhere.
class ScreenHost {
public:
    virtual void Follow(Route route) = 0;

    // The route taken by the host of `screen`, if it has one: every screen's way out.
    static void FollowFrom(const QWidget* screen, Route route);

protected:
    ~ScreenHost() = default;
};
