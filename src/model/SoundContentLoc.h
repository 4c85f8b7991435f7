#pragma once

#include "NSRect.h"

// Where the timeline puts one item: twelve items to a page, run as a snake of four rows of
// three, each with its number at its top left corner and a short bar linking it to the item
// before it. Pure arithmetic, so the screen and its tests share one rule.
struct SoundContentLoc {
    NSRect SizeLoc;    // the item button, its picture 111 by 46
    NSRect NumberText; // the number caption, its text 24 by 14
    NSRect LinkBar;    // 14 by 3 (kind 0) or 3 by 14 (kind 1)
    qint32 LinkBarType = 0;

    friend bool operator==(const SoundContentLoc&, const SoundContentLoc&) = default;
};

inline constexpr qint32 kSoundContentItemMax = 512;
inline constexpr qint32 kSoundContentPageSize = 12;
inline constexpr qint32 kSoundContentPagePitch = 217;
// The timeline view's height: 7 points more than a page, so the next page's first link bar shows
// below a full page.
inline constexpr qint32 kSoundContentViewHeight = 224;
// How far one scroll tick moves every item.
inline constexpr qint32 kSoundContentScrollStep = 20;

// Link bar kinds: a horizontal bar joining the item beside, a vertical one joining the item above.
inline constexpr qint32 kLinkBarHorizontal = 0;
inline constexpr qint32 kLinkBarVertical = 1;

// The rule for item n while page `pageShown` is on view; items of other pages lie a whole page
// pitch above or below per page of difference. A negative n has no place: all rectangles empty.
SoundContentLoc GetSoundContentLoc(qint32 n, qint32 pageShown);

// One scroll tick applied to a frame: moved dy points down (up when negative), then every value
// cut to whole points toward zero.
NSRect SoundContentScrolled(const NSRect& frame, qint32 dy);
