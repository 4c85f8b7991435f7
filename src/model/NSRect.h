#pragma once

#include <QRect>
#include <QRectF>
#include <QtGlobal>

// A frame in points, kept in 32-bit floats: pieces of the movement path and the timeline's
// arrival snap rely on fractional coordinates (a circle can stand at y 96.5).
struct NSRect {
    float x = 0.0f;
    float y = 0.0f;
    float width = 0.0f;
    float height = 0.0f;

    QRectF toRectF() const { return QRectF(x, y, width, height); }
    // Widgets live on whole pixels; the float frame stays the truth.
    QRect toRect() const { return toRectF().toRect(); }
    friend bool operator==(const NSRect&, const NSRect&) = default;
};

void SetNSRect(NSRect* rect, qint32 x, qint32 y, qint32 w, qint32 h);

// Convenience for tables of frames: the same conversion as SetNSRect.
inline NSRect MakeNSRect(qint32 x, qint32 y, qint32 w, qint32 h) {
    NSRect r;
    SetNSRect(&r, x, y, w, h);
    return r;
}
