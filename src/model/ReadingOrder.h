#pragma once

#include <QList>
#include <QRect>

// The order a person reads controls in, answered as indices into `rects`.
//
// A group of controls is cut in two, and the part above or left read first, each part as a group
// of its own: across it where a gap of kReadingLead points or more runs between controls one
// above the other (at the widest such gap); else down it where a gutter of kReadingGutter points
// or more parts columns (at the widest); else across where controls merely touch. So a panel is
// read whole before the one beside it (the grid of sounds before the timeline to its right, the
// action buttons before the list). What can be cut in no way is read line by line: a line starts
// at its topmost control, every control whose vertical centre lies within that control's height
// joins it (controls of slightly different heights or offsets side by side read as one line),
// and each line is read from the left.
//
// Controls given the same non-negative number in `runs` are one run: read together, in the order
// given (a timeline's items, whatever way their rows run), in the place of the rectangle round
// them. Equal rectangles keep their order.
QList<qsizetype> ReadingOrder(const QList<QRect>& rects, const QList<int>& runs = {});

// The least free height between two parts one above the other, and the least free width
// between two columns.
inline constexpr int kReadingLead = 8;
inline constexpr int kReadingGutter = 24;
