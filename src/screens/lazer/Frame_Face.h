#pragma once

#include "FRAMESRECORD.h"
#include "NSImageViewS.h"

class Frame_Face : public NSViewS {
    Q_OBJECT
public:
    explicit Frame_Face(const NSRect& frame);


    NSImageViewS* imgBackGround = nullptr;
    FRAMESRECORD frmFrameRec;
};
