#include "SoundSetText.h"

// Shown exactly as written here, odd spellings included: users know the sounds by these names.
const char* const SoundSetText[kSoundSetCount] = {
    "buzz",      "baby",    "tic tac", "Xmas",    "forward", "backward",    "turn",    "shoot",  "bomb",
    "fight",     "laser",   "fire",    "gun",     "destroy", "rock'n roll", "hip pop", "techno", "angel",
    "dark side", "whistle", "robot",   "vistory", "yeeeha",  "old bot",     "hero",    "funny",  "clap",
    "kiss",      "brup",    "vomit",   "defeat",  "grrr",    "money",       "suspens", "laugh",  "wow wow",
};

const char* SoundSetName(qint32 soundIndex) {
    if (soundIndex < 0 || soundIndex >= kSoundSetCount) return nullptr;
    return SoundSetText[soundIndex];
}
