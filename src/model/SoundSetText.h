#pragma once

#include <QtGlobal>

// The sound names, twelve to a sound set page; a sound index (0 to 35) names one of them.
inline constexpr qint32 kSoundSetCount = 36;
inline constexpr qint32 kSoundSetPageSize = 12;
inline constexpr qint32 kSoundSetPageCount = kSoundSetCount / kSoundSetPageSize;

extern const char* const SoundSetText[kSoundSetCount];

// The name of a sound index; null for an index outside the table.
const char* SoundSetName(qint32 soundIndex);
