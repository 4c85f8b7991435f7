#pragma once

#include "Button.h"

class Frame_MainMenu : public NSViewS {
    Q_OBJECT
public:
    explicit Frame_MainMenu(const NSRect& frame);

    void ButtonTrackingOn();

    NSImageViewS* imgBackGround = nullptr;
    Button* BtnProgram = nullptr;
    Button* BtnAlarm = nullptr;
};

void Frame_MainMenu_ScenarioBtnAcion(void* context, Button* button);
void Frame_MainMenu_AlarmBtnAcion(void* context, Button* button);
