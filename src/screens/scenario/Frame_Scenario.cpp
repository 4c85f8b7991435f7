#include "Frame_Scenario.h"

#include "LayoutTable.h"

Frame_Scenario::Frame_Scenario(const NSRect& frame) : NSViewS(frame) {
    Layout::Build(this, {
                            {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "common_bg"},
                        });
}

void Frame_Scenario::ButtonTrackingOn() {}
