#pragma once

#include "FRAMESRECORD.h"
#include "NSImageViewS.h"

class Frame_Sound : public NSViewS {
    Q_OBJECT
public:
    explicit Frame_Sound(const NSRect& frame);

    // Hover registrations of the screen's buttons, made after the screen is shown.
    void ButtonTrackingOn();

    NSImageViewS* imgBackGround = nullptr;
    FRAMESRECORD frmFrameRec;
};
