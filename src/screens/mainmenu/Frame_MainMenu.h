#pragma once

#include "Button.h"
#include "RobotSlide.h"

// The first screen: the robot slides up from below the window's bottom edge, then the menu
// buttons appear and come alive.
class Frame_MainMenu : public NSViewS {
    Q_OBJECT
public:
    explicit Frame_MainMenu(const NSRect& frame);

    // Shows the menu buttons, registers their hover and puts their captions back in their
    // normal colours; every call does all of it again.
    void ButtonTrackingOn() override;

    NSImageViewS* imgBackGround = nullptr;
    NSImageViewS* imgRobot = nullptr;
    RobotSlide robotSlide; // its arrival brings the menu alive
    Button* BtnProgram = nullptr;
    Button* BtnAlarm = nullptr;
    Button* BtnSync = nullptr;
    Button* BtnSetting = nullptr;
    Button* BtnQuestion = nullptr;
};

void Frame_MainMenu_ScenarioBtnAcion(void* context, Button* button);
void Frame_MainMenu_AlarmBtnAcion(void* context, Button* button);
// The three menu buttons share these two, which know the button by the one they are given.
void Frame_MainMenu_MenuBtnEntered(void* context, Button* button);
void Frame_MainMenu_MenuBtnExited(void* context, Button* button);
