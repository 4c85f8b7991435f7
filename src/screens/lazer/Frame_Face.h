#pragma once

#include "NSImageViewS.h"

// A full-window page holding only the background. No control shows it; it stays hidden for the
// whole run, kept in the record like every other screen.
class Frame_Face : public NSViewS {
    Q_OBJECT
public:
    explicit Frame_Face(const NSRect& frame);

    NSImageViewS* imgBackGround = nullptr;
};
