#pragma once

#include <QtGlobal>

// The large picture of the laser screen shows the robot configuration the user says was built.
namespace LazerPicture {

inline constexpr int kWidth = 380;
inline constexpr int kHeight = 340;
inline const char* const kType = "png";

// The picture for a configuration: 0, 1 and 2 have their own; any other value, which no
// control can produce, falls back to the first so the view is never left empty.
const char* Name(qint32 LazerType);

} // namespace LazerPicture
