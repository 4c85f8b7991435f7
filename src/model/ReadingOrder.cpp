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

// The widest cut across one axis: where `places`, sorted along it, part with the most free
// room between one and the next; its width, and the places before it. None: width -1.
struct Cut {
    int width = -1;
    Places before, after;
};

Cut Widest(const QList<QRect>& rects, Places places, bool alongX) {
    const auto start = [&](qsizetype i) { return alongX ? rects[i].x() : rects[i].y(); };
    const auto end = [&](qsizetype i) {
        return alongX ? rects[i].x() + rects[i].width() : rects[i].y() + rects[i].height();
    };
    std::stable_sort(places.begin(), places.end(),
                     [&](qsizetype a, qsizetype b) { return start(a) < start(b); });
    Cut cut;
    qsizetype at = 0;
    int reach = end(places.first());
    for (qsizetype k = 1; k < places.size(); ++k) {
        if (start(places[k]) - reach > cut.width) {
            cut.width = start(places[k]) - reach;
            at = k;
        }
        reach = std::max(reach, end(places[k]));
    }
    cut.before = places.first(at);
    cut.after = places.sliced(at);
    return cut;
}

void Read(const QList<QRect>& rects, const Places& places, Places& order) {
    if (places.size() > 1) {
        const Cut across = Widest(rects, places, false);
        const Cut down = Widest(rects, places, true);
        const Cut* cut = across.width >= kReadingLead   ? &across
                         : down.width >= kReadingGutter ? &down
                         : across.width >= 0            ? &across
                                                        : nullptr;
        if (cut) {
            Read(rects, cut->before, order);
            Read(rects, cut->after, order);
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
