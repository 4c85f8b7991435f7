#include "ReadingOrder.h"

#include <QHash>

#include <algorithm>

namespace {

using Places = QList<qsizetype>;

// Line by line from the top, each line from the left.
void ByLines(const QList<QRect>& rects, Places& places) {
    const auto above = [&](qsizetype a, qsizetype b) { return rects[a].y() < rects[b].y(); };
    const auto leftOf = [&](qsizetype a, qsizetype b) { return rects[a].x() < rects[b].x(); };
    std::stable_sort(places.begin(), places.end(), above);
    for (auto line = places.begin(); line != places.end();) {
        // Twice the centre against twice the bottom: no rounding for odd heights.
        const int bottom2 = 2 * (rects[*line].y() + rects[*line].height());
        const auto end = std::stable_partition(
            line, places.end(), [&](qsizetype i) { return 2 * rects[i].y() + rects[i].height() < bottom2; });
        std::stable_sort(line, end, leftOf);
        line = end;
    }
}

// Splits `places`, sorted along one axis, where the next one starts at least `gap` past the
// furthest end so far.
QList<Places> Split(const QList<QRect>& rects, Places places, bool alongX, int gap) {
    const auto start = [&](qsizetype i) { return alongX ? rects[i].x() : rects[i].y(); };
    const auto end = [&](qsizetype i) {
        return alongX ? rects[i].x() + rects[i].width() : rects[i].y() + rects[i].height();
    };
    std::stable_sort(places.begin(), places.end(),
                     [&](qsizetype a, qsizetype b) { return start(a) < start(b); });
    QList<Places> parts;
    int reach = 0;
    for (const qsizetype i : places) {
        if (parts.isEmpty() || start(i) >= reach + gap) {
            parts.append(Places{});
            reach = end(i);
        }
        parts.last().append(i);
        reach = std::max(reach, end(i));
    }
    return parts;
}

void Read(const QList<QRect>& rects, const Places& places, Places& order) {
    if (places.size() > 1) {
        for (const auto& [alongX, gap] : {std::pair{false, 0}, std::pair{true, kReadingGutter}}) {
            const QList<Places> parts = Split(rects, places, alongX, gap);
            if (parts.size() < 2) continue;
            for (const Places& part : parts) Read(rects, part, order);
            return;
        }
    }
    Places lines = places;
    ByLines(rects, lines);
    order += lines;
}

} // namespace

QList<qsizetype> ReadingOrder(const QList<QRect>& rects, const QList<int>& runs) {
    // One place per control outside a run, one per run; each place lists its controls.
    QList<QRect> placeRects;
    QList<Places> members;
    QHash<int, qsizetype> placeOfRun;
    for (qsizetype i = 0; i < rects.size(); ++i) {
        const int run = i < runs.size() ? runs[i] : -1;
        if (run >= 0 && placeOfRun.contains(run)) {
            const qsizetype place = placeOfRun.value(run);
            placeRects[place] |= rects[i];
            members[place].append(i);
            continue;
        }
        if (run >= 0) placeOfRun.insert(run, placeRects.size());
        placeRects.append(rects[i]);
        members.append(Places{i});
    }
    Places all(placeRects.size());
    for (qsizetype p = 0; p < all.size(); ++p) all[p] = p;
    Places placeOrder;
    Read(placeRects, all, placeOrder);
    QList<qsizetype> order;
    for (const qsizetype place : placeOrder) order += members[place];
    return order;
}
