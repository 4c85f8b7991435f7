#include "Frame_Sound.h"

#include "LayoutTable.h"

Frame_Sound::Frame_Sound(const NSRect& frame) : NSViewS(frame) {
    Layout::Build(this, {
                            {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "scenario_bg"},
                        });
}

void Frame_Sound::ButtonTrackingOn() {}
