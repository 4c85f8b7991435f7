#pragma once

#include "NSViewS.h"
#include "ScreenHost.h"
#include "ScreenNavigator.h"

#include <QTimer>

#include <array>

class Frame_MainMenu;
class Frame_Scenario;
class Frame_Alarm;
class Frame_MoveMent;
class Frame_Sound;
class Frame_Face;
class Frame_Lazer;

// The window's content view: holds the seven screens, stacked in one place, and shows one at a
// time. The main menu is built with the view; the six others, which nobody can reach before the
// robot has arrived, are built one per pass of the event loop once the first frame is painted,
// so that it waits only for the menu, and all are there when the robot arrives. Any screen needed before its
// turn is built there and then, so nothing ever finds one missing. Screens are never moved or destroyed; they
// are only hidden and shown.
class Frame_Control : public NSViewS, public ScreenHost {
    Q_OBJECT
public:
    explicit Frame_Control(const NSRect& frame);
    // The interface file makes the content view with its parent; it always fills the window.
    explicit Frame_Control(QWidget* parent);

    // The screens, each built the first time it is needed.
    Frame_MainMenu* frmMainMenu() const;
    Frame_Scenario* frmScenario() const;
    Frame_Alarm* frmAlarm() const;
    Frame_MoveMent* frmMovement() const;
    Frame_Sound* frmSound() const;
    Frame_Face* frmFace() const;
    Frame_Lazer* frmLazer() const;

    static NSRect WindowFrame();

    void Follow(Route route) override;
    const ScreenNavigator& navigator() const { return m_navigator; }

private:
    static constexpr qsizetype kScreenCount = static_cast<qsizetype>(ScreenId::Lazer) + 1;

    // The screen, built if it was not yet.
    NSViewS* ScreenOf(ScreenId id) const;
    void BuildNextScreen();
    void paintEvent(QPaintEvent* event) override;
    // The one place where screens are switched.
    void ShowScreen(ScreenId from, ScreenId to, bool trackingOn);

    // Indexed by ScreenId; empty until the screen is built. Building is not a change anyone
    // sees, so the accessors stay const.
    mutable std::array<NSViewS*, kScreenCount> frmFrameRec{};
    QTimer m_building;
    ScreenNavigator m_navigator;
};
