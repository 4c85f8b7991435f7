#pragma once

#include "SOUNDSETCONTENTITEM.h"

class NSViewS;

// The views of the paged timeline; its numbers live in SoundTimeline.
struct SOUNDSETCONTENT {
    NSViewS* frmSoundContent = nullptr; // clips the items to its bounds
    SOUNDSETCONTENTITEM Item;
};
