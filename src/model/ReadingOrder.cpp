#include "ReadingOrder.h"

#include <algorithm>
#include <numeric>

QList<qsizetype> ReadingOrder(const QList<QRect>& rects) {
    QList<qsizetype> order(rects.size());
    std::iota(order.begin(), order.end(), qsizetype(0));
    const auto above = [&](qsizetype a, qsizetype b) { return rects[a].y() < rects[b].y(); };
    const auto leftOf = [&](qsizetype a, qsizetype b) { return rects[a].x() < rects[b].x(); };
    std::stable_sort(order.begin(), order.end(), above);
    for (auto line = order.begin(); line != order.end();) {
        // Twice the centre against twice the bottom: no rounding for odd heights.
        const int bottom2 = 2 * (rects[*line].y() + rects[*line].height());
        const auto end = std::stable_partition(
            line, order.end(), [&](qsizetype i) { return 2 * rects[i].y() + rects[i].height() < bottom2; });
        std::stable_sort(line, end, leftOf);
        line = end;
    }
    return order;
}
