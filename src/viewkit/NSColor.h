#pragma once

#include <QColor>

// The five named colours the captions are drawn in.
namespace NSColor {
inline QColor whiteColor() {
    return QColor::fromRgbF(1.0f, 1.0f, 1.0f);
}
inline QColor orangeColor() {
    return QColor::fromRgbF(1.0f, 0.5f, 0.0f);
}
inline QColor blackColor() {
    return QColor::fromRgbF(0.0f, 0.0f, 0.0f);
}
inline QColor grayColor() {
    return QColor::fromRgbF(0.5f, 0.5f, 0.5f);
}
inline QColor greenColor() {
    return QColor::fromRgbF(0.0f, 1.0f, 0.0f);
}
} // namespace NSColor
