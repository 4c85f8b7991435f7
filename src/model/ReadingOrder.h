#pragma once

#include <QList>
#include <QRect>

// The order a person reads controls in, answered as indices into `rects`.
//
// The window is read in bands from the top: a band ends where no control reaches below it. A
// band whose controls stand in columns, apart by a gutter of kReadingGutter points or more that
// no control crosses, is read column by column from the left, each column as a page of its own;
// so a panel is read whole before the one beside it (a grid of buttons before the timeline to
// its right, the action buttons before the list). What can be cut neither way is read line by
// line: a line starts at its topmost control, every control whose vertical centre lies within
// that control's height joins it (controls of slightly different heights or offsets side by
// side read as one line), and each line is read from the left.
//
// Controls given the same non-negative number in `runs` are one run: read together, in the order
// given (a timeline's items, whatever way their rows run), in the place of the rectangle round
// them. Equal rectangles keep their order.
QList<qsizetype> ReadingOrder(const QList<QRect>& rects, const QList<int>& runs = {});

// The least free width between two columns.
inline constexpr int kReadingGutter = 24;
