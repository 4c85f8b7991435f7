#pragma once

#include <QtGlobal>

// The constants of the movement path, indexed by image number. Every line and turn picture has
// an entry point and an exit point; a new piece is placed so that its entry meets the exit of
// the piece before it.

// Direction in which the path leaves a piece, in the path view's coordinates (y down).
enum PathDirect : qint32 {
    kPathDirectDown = 0,
    kPathDirectRight = 1,
    kPathDirectUp = 2,
    kPathDirectLeft = 3,
    kPathDirectNone = 4, // stop and circles: the next piece starts again at the top-left corner
};

inline constexpr qint32 kPathImageCount = 23;
// Image numbers below this one are lines and turns and have entry and exit points.
inline constexpr qint32 kPathLocCount = 20;

extern const char* const strPathImgNameTable[kPathImageCount];
// Width, then height, in points; a piece's view has exactly this size.
extern const float iPathImgSizeTable[kPathImageCount][2];
extern const qint32 iPathDirectOutTable[kPathImageCount];
// Entry x, entry y, exit x, exit y, in the picture's own coordinates.
extern const float ptPathLocTable[kPathLocCount][4];
