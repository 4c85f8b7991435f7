#pragma once

#include "NSRect.h"
#include "PathPlacement.h"

#include <optional>

// One piece of the movement path: its picture and where it stands in the path view.
struct PATHITEMSTRUCT {
    qint32 iPathNO = 0; // reserved; nothing sets it
    qint32 iImgNO = 0;
    NSRect frame;
};

// The movement path: its pieces in drawing order, held in place rather than allocated, and the
// direction in which it leaves its newest piece. It only grows; the screen makes a view for
// every piece it is handed.
class PATHMAINSTRUCT {
public:
    // One more piece for a movement command (0..8), in a path view pathHeight points high. On an
    // empty path any command draws the first piece (an unknown one draws whatever slot 0
    // holds); on a path with pieces an unknown command, or any command once the path is full,
    // adds nothing.
    std::optional<PATHITEMSTRUCT> SetPath(qint32 command, float pathHeight);
    std::optional<PATHITEMSTRUCT> SetPathImageFirst(float pathHeight);
    std::optional<PATHITEMSTRUCT> SetPathImageNormal(qint32 image);

    qint32 iDirect = 0;
    qint32 iItemCnt = 0; // pieces drawn; also the slot the next piece takes
    PATHITEMSTRUCT Item[PathPlacement::kMaxPieces];

private:
    PATHITEMSTRUCT Add(qint32 image, const NSRect& frame);
};
