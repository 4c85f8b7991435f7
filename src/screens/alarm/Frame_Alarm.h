#pragma once

#include "Button.h"

class Frame_Alarm : public NSViewS {
    Q_OBJECT
public:
    explicit Frame_Alarm(const NSRect& frame);

    NSImageViewS* imgBackGround = nullptr;
    Button* BtnQuestion = nullptr;
    Button* BtnBirthdayStatus = nullptr;
    Button* BtnWakeupStatus = nullptr;
    Button* BtnBack = nullptr;
    Button* BtnDone = nullptr;
    NSViewS* frmPreframe = nullptr;
};
