#pragma once

#include "Button.h"

class QTimer;

// The first screen: the robot slides up from below the window's bottom edge, then the menu
// buttons appear and come alive.
class Frame_MainMenu : public NSViewS {
    Q_OBJECT
public:
    explicit Frame_MainMenu(const NSRect& frame);

    void InitInterWorking();
    // One step of the robot's slide.
    void RobotAction();
    // Shows the menu buttons, registers their hover and puts their captions back in their
    // normal colours; every call does all of it again.
    void ButtonTrackingOn() override;

    // Where the robot stops, and how far it moves a tick.
    static constexpr float kRobotRestY = 263.0f;
    static constexpr float kRobotStep = 5.0f;
    static constexpr int kRobotTickMs = 10;

    NSImageViewS* imgBackGround = nullptr;
    NSImageViewS* imgRobot = nullptr;
    QTimer* timer = nullptr; // stopped once the robot has arrived
    Button* BtnProgram = nullptr;
    Button* BtnAlarm = nullptr;
    Button* BtnSync = nullptr;
    Button* BtnSetting = nullptr;
    Button* BtnQuestion = nullptr;
};

void Frame_MainMenu_ScenarioBtnAcion(void* context, Button* button);
void Frame_MainMenu_AlarmBtnAcion(void* context, Button* button);
void Frame_MainMenu_ProgramBtnEntered(void* context, Button* button);
void Frame_MainMenu_AlarmBtnEntered(void* context, Button* button);
void Frame_MainMenu_SyncBtnEntered(void* context, Button* button);
void Frame_MainMenu_ProgramBtnExited(void* context, Button* button);
void Frame_MainMenu_AlarmBtnExited(void* context, Button* button);
void Frame_MainMenu_SyncBtnExited(void* context, Button* button);
