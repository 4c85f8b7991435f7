#pragma once

#include "NSRect.h"

#include <QColor>
#include <QFont>
#include <QString>

// The one caption a picture view draws over its picture. A null textStorage means no caption.
struct TEXTSTRUCT {
    QString textStorage;
    QColor textColor;
    QFont font;
    NSRect rectFrame; // only its origin is used: captions are neither clipped nor wrapped by it
};
