#pragma once

#include "PathPlacement.h"

#include <QtGlobal>

class NSImageViewS;
class NSViewS;

// One piece of the movement path. A free slot has no view.
struct PATHITEMSTRUCT {
    NSImageViewS* PathImg = nullptr; // owned by the path view
    qint32 iPathNO = 0;              // reserved; nothing sets it
    qint32 iImgNO = 0;
};

// The movement path: its pieces in drawing order, held in place rather than allocated, and the
// direction in which it leaves its newest piece.
struct PATHMAINSTRUCT {
    qint32 iDirect = 0;
    qint32 iItemCnt = 0; // pieces drawn; also the slot the next piece takes
    NSViewS* frmPath = nullptr;
    PATHITEMSTRUCT Item[PathPlacement::kMaxPieces];
};
