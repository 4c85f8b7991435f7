#pragma once

#include <QList>
#include <QRect>

// The order a person reads controls in: line by line from the top, each line from the left. A
// line starts at its topmost control; every control whose vertical centre lies within that
// control's height joins it, so controls of slightly different heights or offsets side by side
// still read as one line. Answers the indices into `rects`; equal rectangles keep their order.
QList<qsizetype> ReadingOrder(const QList<QRect>& rects);
