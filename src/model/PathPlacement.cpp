#include "PathPlacement.h"

#include "PathTables.h"

namespace PathPlacement {

namespace {

// Image numbers by command: the first piece of a path, and every later one. Command 2 is the
// one command whose first piece differs.
constexpr qint32 kFirstPieceImage[kCommandCount] = {8, 0, 2, 4, 16, 12, 21, 22, 20};
constexpr qint32 kLaterPieceImage[kCommandCount] = {8, 0, 0, 4, 16, 12, 21, 22, 20};

// A stop or circle is centred this far to the side of the exit point it follows.
constexpr float kCentreOffset = 6.0f;

bool InRange(qint32 command) {
    // Unsigned, so every negative command falls outside as well.
    return static_cast<quint32>(command) < kCommandCount;
}

float Width(qint32 image) {
    return iPathImgSizeTable[image][0];
}
float Height(qint32 image) {
    return iPathImgSizeTable[image][1];
}
float EntryX(qint32 image) {
    return ptPathLocTable[image][0];
}
float EntryY(qint32 image) {
    return ptPathLocTable[image][1];
}
float ExitX(qint32 image) {
    return ptPathLocTable[image][2];
}
float ExitY(qint32 image) {
    return ptPathLocTable[image][3];
}

} // namespace

bool IsImage(qint32 image) {
    return image >= 0 && image < kPathImageCount;
}

bool IsLineOrTurn(qint32 image) {
    return image >= 0 && image < kPathLocCount;
}

std::optional<qint32> FirstPieceImage(qint32 command) {
    if (!InRange(command)) return std::nullopt;
    return kFirstPieceImage[command];
}

std::optional<qint32> LaterPieceImage(qint32 command) {
    if (!InRange(command)) return std::nullopt;
    return kLaterPieceImage[command];
}

qint32 FirstDirect(qint32 image) {
    return IsLineOrTurn(image) ? iPathDirectOutTable[image] : kPathDirectUp;
}

NSRect FirstFrame(qint32 image, float pathHeight) {
    if (!IsImage(image)) return {};
    return NSRect{0.0f, pathHeight - Height(image), Width(image), Height(image)};
}

NSRect NextFrame(qint32 prevImage, const NSRect& prevFrame, qint32 image) {
    if (!IsImage(prevImage) || !IsImage(image)) return {};
    const float w = Width(image);
    const float h = Height(image);
    const bool hasEntry = IsLineOrTurn(image);
    // Only a line or turn has an exit point; after anything else d is 4 and the exit unused.
    const qint32 d = iPathDirectOutTable[prevImage];

    // Level with the exit along the axis across the direction of travel.
    auto alongX = [&] {
        const float ex = ExitX(prevImage);
        return hasEntry ? prevFrame.x + ex - EntryX(image) : prevFrame.x + ex + kCentreOffset - w / 2.0f;
    };
    auto alongY = [&] {
        const float ey = ExitY(prevImage);
        return hasEntry ? prevFrame.y + ey - EntryY(image) : prevFrame.y + ey + kCentreOffset - h / 2.0f;
    };

    switch (d) {
    case kPathDirectDown:
        return NSRect{alongX(), prevFrame.y + prevFrame.height, w, h};
    case kPathDirectUp:
        return NSRect{alongX(), prevFrame.y - h, w, h};
    case kPathDirectRight:
        return NSRect{prevFrame.x + prevFrame.width, alongY(), w, h};
    case kPathDirectLeft:
        return NSRect{prevFrame.x - w, alongY(), w, h};
    default:
        return NSRect{0.0f, 0.0f, w, h};
    }
}

} // namespace PathPlacement
