#pragma once

#include "FRAMESRECORD.h"
#include "NSViewS.h"
#include "ScreenHost.h"
#include "ScreenNavigator.h"

// The window's content view: creates the seven screens once, stacks them in one place and
// shows only the main menu. Screens are never created, moved or destroyed after this; they are
// only hidden and shown.
class Frame_Control : public NSViewS, public ScreenHost {
    Q_OBJECT
public:
    explicit Frame_Control(const NSRect& frame);
    // The interface file makes the content view with its parent; it always fills the window.
    explicit Frame_Control(QWidget* parent);

    void InitFrame();
    void InitFrameRecord(FRAMESRECORD* record) const;
    void InitInterWorking();

    Frame_MainMenu* frmMainMenu = nullptr;
    Frame_Scenario* frmScenario = nullptr;
    Frame_MoveMent* frmMovement = nullptr;
    Frame_Face* frmFace = nullptr;
    Frame_Lazer* frmLazer = nullptr;
    Frame_Sound* frmSound = nullptr;
    Frame_Alarm* frmAlarm = nullptr;

    static NSRect WindowFrame();

    void Follow(Route route) override;
    const ScreenNavigator& navigator() const { return m_navigator; }

private:
    // The one place where screens are switched.
    void ShowScreen(ScreenId from, ScreenId to, bool trackingOn);
    NSViewS* ScreenOf(ScreenId id) const;

    ScreenNavigator m_navigator;
};
