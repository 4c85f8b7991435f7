#include "Frame_Face.h"

#include "LayoutTable.h"

Frame_Face::Frame_Face(const NSRect& frame) : NSViewS(frame) {
    setAccessibleName(QStringLiteral("Face"));
    Layout::Build(this,
                  {
                      {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "scenario_bg"},
                  });
}
