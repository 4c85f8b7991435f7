#pragma once

#include "SoundContentLoc.h"

class Button;
class NSImageViewS;

// The timeline's items, three views each; entry n belongs to item n, and entries past the last
// item stay empty.
struct SOUNDSETCONTENTITEM {
    Button* BtnButton[kSoundContentItemMax] = {};
    NSImageViewS* strNumber[kSoundContentItemMax] = {};
    NSImageViewS* imgLinkBar[kSoundContentItemMax] = {};
};
