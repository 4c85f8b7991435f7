#pragma once

#include "LayoutTable.h"
#include "NSColor.h"
#include "SoundSetText.h"

// How a sound button looks: the one carrying the mark shows it in all three states, the others
// light up on hover; each names its sound in white.
struct SoundPictures {
    const char* up;
    const char* over;

    static SoundPictures Of(bool marked) {
        return marked ? SoundPictures{kMark, kMark} : SoundPictures{"but_normal_Btn01", "but_over_Btn01"};
    }
    static Layout::Caption Caption(qint32 sound) {
        return {SoundSetName(sound), NSColor::whiteColor(), MakeNSRect(8, 13, 82, 16), 14};
    }

    // Also the picture of every timeline item.
    static constexpr const char* kMark = "but_disabled_Btn01_1";
};
