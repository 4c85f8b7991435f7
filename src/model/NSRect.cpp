#include "NSRect.h"

void SetNSRect(NSRect* rect, qint32 x, qint32 y, qint32 w, qint32 h) {
    if (!rect) return;
    rect->x = static_cast<float>(x);
    rect->y = static_cast<float>(y);
    rect->width = static_cast<float>(w);
    rect->height = static_cast<float>(h);
}
