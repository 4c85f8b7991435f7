#pragma once

#include "NSRect.h"

#include <optional>

// Where the pieces of a movement path go: pure rules over the path tables, no widgets. The
// screen keeps the pieces and asks these functions for every new one.
namespace PathPlacement {

// How many pieces a path holds; a command on a full path adds nothing.
inline constexpr qint32 kMaxPieces = 512;

// Commands 0..8 (anything else, negative numbers included, is out of range).
inline constexpr quint32 kCommandCount = 9;

bool IsImage(qint32 image);
bool IsLineOrTurn(qint32 image);

// The image a command draws as the first piece of an empty path, or as a later one; none when
// the command is out of range.
std::optional<qint32> FirstPieceImage(qint32 command);
std::optional<qint32> LaterPieceImage(qint32 command);

// The direction the path leaves its first piece in: the image's own, except a first stop or
// circle, after which the path is taken to go up.
qint32 FirstDirect(qint32 image);

// The first piece stands in the bottom-left corner of a path view pathHeight points high.
NSRect FirstFrame(qint32 image, float pathHeight);

// The frame of a piece of image `image` placed after the newest piece (image `prevImage` at
// `prevFrame`): against the side the newest piece leaves on, entry level with its exit; a stop
// or circle has no entry point and is centred 6 points off the exit instead. After a stop or
// circle the path starts again at the top-left corner. Both images must be valid.
NSRect NextFrame(qint32 prevImage, const NSRect& prevFrame, qint32 image);

} // namespace PathPlacement
