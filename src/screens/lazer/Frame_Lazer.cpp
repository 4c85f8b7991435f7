#include "Frame_Lazer.h"

#include "LayoutTable.h"

Frame_Lazer::Frame_Lazer(const NSRect& frame) : NSViewS(frame) {
    Layout::Build(this, {
                            {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "scenario_bg"},
                        });
}

void Frame_Lazer::ButtonTrackingOn() {}
