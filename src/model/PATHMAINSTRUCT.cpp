#include "PATHMAINSTRUCT.h"

#include "PathTables.h"

std::optional<PATHITEMSTRUCT> PATHMAINSTRUCT::SetPath(qint32 command, float pathHeight) {
    if (iItemCnt == 0) {
        // An unknown command still draws a first piece: the image slot 0 already holds.
        if (const auto image = PathPlacement::FirstPieceImage(command)) Item[0].iImgNO = *image;
        return SetPathImageFirst(pathHeight);
    }
    if (const auto image = PathPlacement::LaterPieceImage(command)) return SetPathImageNormal(*image);
    return std::nullopt;
}

std::optional<PATHITEMSTRUCT> PATHMAINSTRUCT::SetPathImageFirst(float pathHeight) {
    if (iItemCnt >= PathPlacement::kMaxPieces) return std::nullopt;
    const qint32 image = Item[0].iImgNO;
    if (!PathPlacement::IsImage(image)) return std::nullopt;
    iDirect = PathPlacement::FirstDirect(image);
    return Add(image, PathPlacement::FirstFrame(image, pathHeight));
}

std::optional<PATHITEMSTRUCT> PATHMAINSTRUCT::SetPathImageNormal(qint32 image) {
    // Placement needs a newest piece, and a full path takes no more.
    if (iItemCnt <= 0 || iItemCnt >= PathPlacement::kMaxPieces) return std::nullopt;
    const PATHITEMSTRUCT& newest = Item[iItemCnt - 1];
    if (!PathPlacement::IsImage(image) || !PathPlacement::IsImage(newest.iImgNO)) return std::nullopt;
    iDirect = iPathDirectOutTable[image];
    return Add(image, PathPlacement::NextFrame(newest.iImgNO, newest.frame, image));
}

PATHITEMSTRUCT PATHMAINSTRUCT::Add(qint32 image, const NSRect& frame) {
    PATHITEMSTRUCT& slot = Item[iItemCnt++];
    slot.iImgNO = image;
    slot.frame = frame;
    return slot;
}
