#include "Frame_Alarm.h"

#include "LayoutTable.h"

Frame_Alarm::Frame_Alarm(const NSRect& frame) : NSViewS(frame) {
    Layout::Build(this, {
                            {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "common_bg"},
                        });
}
