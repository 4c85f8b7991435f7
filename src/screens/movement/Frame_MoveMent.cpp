#include "Frame_MoveMent.h"

#include "LayoutTable.h"

Frame_MoveMent::Frame_MoveMent(const NSRect& frame) : NSViewS(frame) {
    Layout::Build(this, {
                            {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "scenario_bg"},
                        });
}

void Frame_MoveMent::ButtonTrackingOn() {}
